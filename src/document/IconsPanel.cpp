#include "document/IconsPanel.h"

#include "document/AlphaIndicator.h"
#include "document/Containers.h"
#include "document/EditingArea.h"
#include "document/Hourglass.h"
#include "document/Messages.h"
#include "document/PanelNumbers.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/text/Utf8.h"

#include <algorithm>

namespace gp {

namespace {

constexpr std::size_t kShortestDroppedName = 5;
constexpr const char* kIconEnding = ".ICO";

bool samePixels(const Surface& a, const Surface& b) {
  return !SurfaceSizeDiffers(a, b) && std::ranges::equal(a.pixels(), b.pixels());
}

}  // namespace

IconsPanel::IconsPanel(EditState& state, Editor& editor, EditingArea& editingArea, Display& display, MessagePump& pump)
    : state_(state), editor_(editor), editingArea_(editingArea), display_(display), pump_(pump) {}

void IconsPanel::EndToolAction() {
  if (!state_.current().used) return;
  editor_.clearRegion();
  state_.picDisp.clearDrawing();
  state_.screen.lblDispXY.at(static_cast<std::size_t>(Readout::Region)).clear();
  state_.mPendingPaint = false;
  state_.mRegionActive = false;
  display_.changed(DisplayPart::EditingArea);
  display_.changed(DisplayPart::Readouts);
  editor_.UpdateCommands();
}

void IconsPanel::CommitPendingPaint() {
  if (state_.current().used && state_.mPendingPaint) SwitchContainer(state_.mCurContainer);
}

// Keeps what was painted before another container is shown. False when the user wants to stay.
bool IconsPanel::leaveCurrent() {
  if (!state_.IsIconChanged()) return true;
  if (state_.options.promptToSave) {
    bool proceed = true;
    editor_.AskSaveCurrent(kReminderHint, proceed);
    if (!proceed) return false;
  }
  editor_.UpdatePanelFromCurrent();
  editor_.UpdateCommands();
  return true;
}

void IconsPanel::SwitchContainer(int container) {
  EndToolAction();
  const ScreenState& screen = state_.screen;
  const bool sidePanelUp = screen.mActivePanel != kColorPanel && screen.mActivePanel != kIconsListPanel;
  if (sidePanelUp && !screen.aniContainerVisible) editor_.closePanels();
  if (!leaveCurrent()) return;

  state_.mCurContainer = container;
  display_.changed(DisplayPart::IconsPanel);
  // In the Icons List the icon is only chosen; its display waits.
  if (screen.mActivePanel == kIconsListPanel) return;
  showContainer(container);
}

void IconsPanel::showContainer(int container) {
  Hourglass hourglass(state_, display_);
  if (!state_.current().used) {
    showEmptyContainer();
    editor_.showChart16();
    editor_.UpdateCommands();
    return;
  }
  const auto index = static_cast<std::size_t>(container);
  editingArea_.SizeEditSurfaces(state_.current().size);
  BitbltPic(state_.picPanelImage.at(index), state_.picImage);
  BitbltPic(state_.picPanelMask.at(index), state_.picMask);
  state_.gAlphaValues = state_.mAlphaRecs.at(index);
  editor_.ComposeCurrentIcon();
  editor_.ShowCurrentIcon();
  editor_.clearUndoHistory();
  editor_.recordUndo();
  editor_.chooseColorChart();
  editor_.UpdateCommands();
  if (state_.current().hasAlpha) flashAlphaIndicator(state_, display_, pump_);
  pump_.pump();
}

void IconsPanel::showEmptyContainer() {
  state_.screen.fraTools[1] = false;
  editor_.ClearContainer();
  editingArea_.SizeEditSurfaces(kDefaultIconSize);
  editingArea_.SizePanelSurfaces(kDefaultIconSize);
  editingArea_.showEmpty();
  state_.gAlphaValues = AlphaMatrix();
  editor_.clearUndoHistory();
  editor_.clearRegion();
  editor_.ClearStatusBar();
  editor_.clearAllTools();
  display_.changed(DisplayPart::IconsPanel);
  display_.changed(DisplayPart::Tools);
}

void IconsPanel::PanelRightClick(int container) {
  if (state_.screen.mActivePanel == kIconsListPanel) editor_.closePanels();
  pump_.pump();
  SwitchContainer(container);
  editor_.chooseColorChart();
}

bool IconsPanel::PanelDragOver(const std::vector<std::string>& files) const {
  return !files.empty() && files.front().size() >= kShortestDroppedName && endsWithAnyCase(files.front(), kIconEnding);
}

void IconsPanel::PanelDrop(int container, const std::vector<std::string>& files) {
  if (!PanelDragOver(files)) return;
  CommitPendingPaint();
  if (state_.screen.mActivePanel != kColorPanel && !state_.screen.aniContainerVisible) editor_.closePanels();

  // What is on the Editing Area belongs to the former container, which the loader does not know of.
  const int former = state_.mCurContainer;
  if (state_.IsIconChanged()) editor_.UpdatePanelFromCurrent();
  const Surface image = state_.picImage;
  const Surface mask = state_.picMask;
  const auto status = state_.screen.lblStatusPanel;
  state_.mCurContainer = container;
  bool ok = false;
  editor_.doOpenIconFileQuietly(files.front(), ok);
  if (ok) {
    SwitchContainer(state_.mCurContainer);
    editor_.chooseColorChart();
    return;
  }
  state_.mCurContainer = former;
  const bool touched = status != state_.screen.lblStatusPanel || !samePixels(image, state_.picImage) ||
                       !samePixels(mask, state_.picMask);
  if (touched) showContainer(former);
  display_.changed(DisplayPart::IconsPanel);
}

void IconsPanel::updateFromCurrent() {
  if (state_.screen.mActivePanel == kIconsListPanel || !state_.current().present) return;
  editor_.UpdatePanelFromCurrent();
  editor_.clearUndoHistory();
  editor_.recordUndo();
  editor_.UpdateCommands();
}

}  // namespace gp
