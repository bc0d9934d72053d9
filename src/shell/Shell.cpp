#include "shell/Shell.h"

#include "document/Display.h"
#include "document/EditState.h"
#include "document/Hourglass.h"
#include "platform/ports/MessageBoxes.h"
#include "shell/CommandNeeds.h"
#include "shell/PanelCommands.h"
#include "shell/PanelTable.h"

#include <utility>

namespace gp {

namespace {

// The temporary file of commands on multi-icon files; it exists only between two of their steps.
constexpr const char* kScratchFileName = "gptmp.ico";

}  // namespace

Shell::Shell(EditState& state, const Ports& ports, Display& display, ProgramFolders folders)
    : state_(state),
      ports_(ports),
      display_(display),
      folders_(std::move(folders)),
      mDialog(ports.dialogs),
      context_{state, *this, display, ports.boxes, ports.pump},
      document_(context_),
      colour_(context_, mDialog, ports.pictures, folders_.settings),
      drawing_(context_, document_, colour_.selection, ports.clipboard),
      files_(context_, document_, drawing_, mDialog, folders_.scratch + "/" + kScratchFileName),
      alpha_(files_.context(), files_.iconSaver),
      effects_(context_, document_, drawing_, {mDialog, ports.pictures, ports.text}),
      animation_(files_.context(), ports.timer),
      extraction_(files_, ports.fileTypes),
      output_(context_, files_, alpha_.commands),
      settings_(state.options, settingsPath()),
      fileHistory_(kFileHistorySection, kFileHistoryLimit, settingsPath()),
      aniHistory_(kAniHistorySection, kAniHistoryLimit, settingsPath()) {}

Shell::~Shell() = default;

const ScreenState& Shell::screen() const { return state_.screen; }

void Shell::attach(ShellForms* form, FileForms* fileForms, AlphaForms* alphaForms) {
  form_ = form;
  files_.attach(fileForms);
  alpha_.commands.attach(alphaForms);
}

std::string Shell::settingsPath() const { return folders_.settings + "/" + kSettingsFileName; }

void Shell::run(const Command& command) {
  if (!command.run) return;
  guarded(std::string(command.control) + "_Click", [&] {
    if (prepare(command)) command.run(*this, command.index);
  });
}

bool Shell::prepare(const Command& command) {
  if (!mayAct() || isRefusedByList(command)) return false;
  if (!mayRun(command)) return false;
  if (command.commits == Commits::No) return true;
  document_.iconsPanel.CommitPendingPaint();
  // Committing may have saved the icon, which can change what the command needs.
  return mayRun(command);
}

// What the user does counts for the icon of the current container, which may have to be shown first. While a list is
// drawn it does not count.
bool Shell::mayAct() {
  if (extraction_.list.isDrawing()) return false;
  document_.iconsPanel.showWaitingIcon();
  return true;
}

// A panel or the pane of a film would take the place of the list.
bool Shell::isRefusedByList(const Command& command) {
  const std::string message = extraction_.list.sessionMessage();
  if (message.empty() || !opensPanel(command)) return false;
  ports_.boxes.tell(message);
  return true;
}

bool Shell::mayRun(const Command& command) {
  const char* refusal = command.unmet(*this, command.index);
  if (refusal && !*refusal) display_.announce(needs::reasonWithoutBox(command.unmet));
  return isMet(refusal);
}

bool Shell::isMet(const char* refusal) {
  if (refusal && *refusal) ports_.boxes.tell(refusal);
  return !refusal;
}

void Shell::runToolbar(const ToolbarButton& button) {
  if (!mayAct()) return;
  state_.picDisp.clearDrawing();
  display_.changed(DisplayPart::EditingArea);
  if (const Command* command = findCommand(button.control, button.commandIndex)) run(*command);
  // The toolbar removed the overlay, so a region that still exists is drawn again.
  if (state_.mRegionExists) redrawRegion();
}

void Shell::ShowRunTimeError(const std::string& name, const std::string& description) {
  // The number is always the platform's general error; the description states the cause.
  constexpr int kGeneralError = 5;
  ports_.boxes.tell(name + "\n" + std::to_string(kGeneralError) + "     " + description, BoxIcon::Exclamation);
}

// Editor: each call is forwarded to its owner.

void Shell::chooseColorChart() { colour_.selection.chooseColorChart(); }
void Shell::showChart16() { colour_.selection.imgGet16ColorChart(); }
void Shell::clearAllTools() { drawing_.tools.clearAllTools(); }
Tool Shell::selectedTool() const { return drawing_.tools.selectedTool(); }
void Shell::clearRegion() { drawing_.regions.clearRegion(); }
void Shell::redrawRegion() { drawing_.regions.redrawRegion(); }
void Shell::recordUndo() { drawing_.history.recordUndo(); }
void Shell::clearUndoHistory() { drawing_.history.clearUndoHistory(); }
void Shell::doOpenIconFileQuietly(const std::string& path, bool& ok) {
  files_.iconFiles.doOpenIconFileQuietly(path, ok);
}
void Shell::offerIconsOfFile(const std::string& path, int container) {
  files_.iconFiles.offerIconsOfFile(path, container);
}
void Shell::AskSaveCurrent(const std::string& message, bool& proceed) {
  document_.iconsPanel.showWaitingIcon();
  files_.iconSaver.AskSaveCurrent(message, proceed);
}
void Shell::setHotspotByClick(int x, int y) { files_.cursorFiles.setHotspotByClick(x, y); }
void Shell::UpdateCommands() { display_.changed(DisplayPart::Commands); }

void Shell::showPanel(int panel) {
  // A region cannot be used while a side panel is open, so it is merged.
  if (panel == kColorPanel)
    drawing_.tools.clearAllTools();
  else
    drawing_.tools.imgClearAllTools();
  const Hourglass hourglass(context_);
  if (panel != kCursorPanel) files_.cursorFiles.mark().cancel();
  if (state_.screen.mActivePanel == kColorPanel && state_.screen.aniContainerVisible) {
    state_.screen.aniContainerVisible = false;
    aniPaneHidden();
  }
  const int former = std::exchange(state_.screen.mActivePanel, panel);
  if (former == kIconsListPanel && panel != kIconsListPanel) extraction_.list.finish();
  if (former == SearchPanel::kNumber && panel != SearchPanel::kNumber) extraction_.search.finish();
  display_.changed(DisplayPart::Panel);
  UpdateCommands();
  if (panel != kIconsListPanel) document_.iconsPanel.showWaitingIcon();
}

void Shell::closePanels() {
  if (state_.screen.mActivePanel != kColorPanel) showPanel(kColorPanel);
}

void Shell::AddHistory(const std::string& path) {
  fileHistory_.add(path);
  display_.changed(DisplayPart::History);
}

void Shell::AddAniHistory(const std::string& path) {
  aniHistory_.add(path);
  display_.changed(DisplayPart::History);
}

void Shell::endAniSession() { animation_.session.end(); }
void Shell::aniPaneHidden() { animation_.session.paneHidden(); }

}  // namespace gp
