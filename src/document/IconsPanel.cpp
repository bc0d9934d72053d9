#include "document/IconsPanel.h"

#include "document/AlphaIndicator.h"
#include "document/Announcements.h"
#include "document/Containers.h"
#include "document/CurrentIconGuard.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "document/IconArrival.h"
#include "document/Messages.h"
#include "document/PanelNumbers.h"
#include "platform/ports/MessagePump.h"
#include "platform/resources/ShellLink.h"
#include "platform/text/Utf8.h"

namespace gp {

namespace {

constexpr std::size_t kShortestDroppedName = 5;
constexpr const char* kIconEnding = ".ICO";

// The icon file that was dropped, or that a dropped shortcut means; empty for other files.
std::string iconFileOf(const std::vector<std::string>& files) {
  if (files.empty()) return {};
  const std::string& file = files.front();
  if (file.size() >= kShortestDroppedName && endsWithAnyCase(file, kIconEnding)) return file;
  return isNamedShellLink(file) || isNamedDesktopEntry(file) ? droppedIconFile(file) : std::string();
}

}  // namespace

IconsPanel::IconsPanel(const Context& context, EditingArea& editingArea, IconArrival& arrival)
    : context_(context), state_(context.state), editingArea_(editingArea), arrival_(arrival) {}

void IconsPanel::EndToolAction() {
  if (!state_.current().used) return;
  context_.editor.clearRegion();
  state_.picDisp.clearDrawing();
  state_.screen.lblDispXY.at(static_cast<std::size_t>(Readout::Region)).clear();
  context_.display.changed(DisplayPart::EditingArea);
  context_.display.changed(DisplayPart::Readouts);
  context_.editor.UpdateCommands();
}

void IconsPanel::CommitPendingPaint() {
  if (!state_.current().used || !state_.mPendingPaint) return;
  EndToolAction();
  context_.editor.clearAllTools();
  leaveCurrent();
}

// Stores unsaved changes in the container. Returns false when the user cancels.
bool IconsPanel::leaveCurrent() {
  if (!state_.IsIconChanged()) return true;
  if (state_.options.promptToSave && !mayCurrentIconGo(context_, kReminderHint)) return false;
  // The container has its icon, and the Editing Area another one.
  if (arrival_.displayWaits()) return true;
  editingArea_.UpdatePanelFromCurrent();
  context_.editor.UpdateCommands();
  return true;
}

void IconsPanel::storeForList(const IconImage& icon, const IconContainerRec& record) {
  arrival_.fillContainer(state_.mCurContainer, icon, record);
  arrival_.setDisplayWaits(true);
  context_.display.changed(DisplayPart::IconsPanel);
  context_.editor.UpdateCommands();
}

bool IconsPanel::displayWaits() const { return arrival_.displayWaits(); }

bool IconsPanel::showWaitingIcon() {
  if (!arrival_.displayWaits()) return false;
  showCurrentContainer();
  return true;
}

void IconsPanel::SwitchContainer(int container) {
  if (isHeld_) return;
  EndToolAction();
  const ScreenState& screen = state_.screen;
  const bool sidePanelUp = screen.mActivePanel != kColorPanel && screen.mActivePanel != kIconsListPanel;
  if (sidePanelUp && !screen.aniContainerVisible) context_.editor.closePanels();
  if (!leaveCurrent()) return;

  state_.mCurContainer = container;
  context_.display.changed(DisplayPart::IconsPanel);
  // The Icons List only selects the container; its icon is shown later.
  if (screen.mActivePanel != kIconsListPanel)
    showCurrentContainer();
  else
    arrival_.setDisplayWaits(true);
  context_.display.announce(news::container(state_.mCurContainer, nameOf(state_.current())));
}

void IconsPanel::showCurrentContainer() {
  const Hourglass hourglass(context_);
  if (!state_.current().used) {
    showEmptyContainer();
    context_.editor.showChart16();
    context_.editor.UpdateCommands();
    return;
  }
  arrival_.showCurrentContainer();
  context_.editor.UpdateCommands();
  if (state_.current().hasAlpha) flashAlphaIndicator(state_, context_.display, context_.pump);
  context_.pump.pump();
}

void IconsPanel::showEmptyContainer() {
  arrival_.setDisplayWaits(false);
  ++state_.iconSerial;
  state_.screen.fraTools[1] = false;
  ClearContainer(state_);
  editingArea_.SizeEditSurfaces(kDefaultIconSize);
  editingArea_.SizePanelSurfaces(kDefaultIconSize);
  editingArea_.showEmpty();
  context_.editor.clearUndoHistory();
  context_.editor.clearRegion();
  editingArea_.ClearStatusBar();
  context_.editor.clearAllTools();
  context_.display.changed(DisplayPart::IconsPanel);
  context_.display.changed(DisplayPart::Tools);
}

void IconsPanel::PanelRightClick(int container) {
  if (isHeld_) return;
  if (state_.screen.mActivePanel == kIconsListPanel) context_.editor.closePanels();
  context_.pump.pump();
  SwitchContainer(container);
  context_.editor.chooseColorChart();
}

bool IconsPanel::PanelDragOver(const std::vector<std::string>& files) const { return !iconFileOf(files).empty(); }

void IconsPanel::PanelDrop(int container, const std::vector<std::string>& files) {
  const std::string file = iconFileOf(files);
  if (isHeld_ || file.empty()) return;
  showWaitingIcon();
  CommitPendingPaint();
  if (state_.screen.mActivePanel != kColorPanel && !state_.screen.aniContainerVisible) context_.editor.closePanels();

  // The Editing Area shows the former container, of which the loader does not know.
  const int former = state_.mCurContainer;
  if (container != former && state_.IsIconChanged()) editingArea_.UpdatePanelFromCurrent();
  state_.mCurContainer = container;
  bool ok = false;
  context_.editor.doOpenIconFileQuietly(file, ok);
  if (ok) {
    SwitchContainer(state_.mCurContainer);
    context_.editor.chooseColorChart();
    return;
  }
  state_.mCurContainer = former;
  context_.editor.offerIconsOfFile(file, container);
}

void IconsPanel::AreaDrop(const std::vector<std::string>& files) {
  if (isHeld_ || !PanelDragOver(files)) return;
  showWaitingIcon();
  CommitPendingPaint();
  if (mayCurrentIconGo(context_)) PanelDrop(state_.mCurContainer, files);
}

void IconsPanel::updateFromCurrent() {
  if (isHeld_ || state_.screen.mActivePanel == kIconsListPanel || !state_.current().present) return;
  editingArea_.UpdatePanelFromCurrent();
  context_.editor.clearUndoHistory();
  context_.editor.recordUndo();
  context_.editor.UpdateCommands();
}

}  // namespace gp
