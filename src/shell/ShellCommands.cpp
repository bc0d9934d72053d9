// The command bodies that belong to the shell itself: history, options, help and the companion program.
#include "document/Messages.h"
#include "platform/files/Files.h"
#include "shell/CommandLine.h"
#include "shell/PanelTable.h"
#include "shell/Shell.h"
#include "shell/StartUp.h"

#include <algorithm>

namespace gp {

namespace {

constexpr const char* kHelpFile = "GPHelp.chm";
constexpr int kEnlargedOption = 3;
constexpr int kPixelRgbOption = 5;
constexpr int kUpdateOnlyOption = 9;

// The Edit menu by its index.
struct EditCommand {
  int index;
  bool needsIcon;  // says so when there is none
  void (*run)(Drawing& drawing);
};

constexpr EditCommand kEditCommands[] = {
    {0, true, [](Drawing& drawing) { drawing.history.doUndoAll(); }},
    {1, true, [](Drawing& drawing) { drawing.history.doUndo(); }},
    {2, true, [](Drawing& drawing) { drawing.history.doRedo(); }},
    {4, false, [](Drawing& drawing) { drawing.clipboardCommands.doCutRegion(true); }},
    {5, false, [](Drawing& drawing) { drawing.clipboardCommands.doCutRegion(false); }},
    {6, true, [](Drawing& drawing) { drawing.clipboardCommands.doCopyRegion(); }},
    {7, false, [](Drawing& drawing) { drawing.clipboardCommands.doPaste(false); }},
    {8, false, [](Drawing& drawing) { drawing.clipboardCommands.doPaste(true); }},
    {9, false, [](Drawing& drawing) { drawing.clipboardCommands.clearClipboard(); }},
    {13, true, [](Drawing& drawing) { drawing.containerCopies.doClearContainer(); }},
};

const EditCommand* findEditCommand(int index) {
  const auto* found = std::ranges::find(kEditCommands, index, &EditCommand::index);
  return found == std::end(kEditCommands) ? nullptr : found;
}

}  // namespace

void Shell::openIconFile() {
  iconsPanel_.CommitPendingPaint();
  iconFiles_.doMnuFileOpenIcon();
}

void Shell::openFromHistory(int index) {
  const std::string path = fileHistory_.path(index);
  if (path.empty()) return;
  iconsPanel_.CommitPendingPaint();
  closePanels();
  if (state_.IsIconChanged()) {
    bool proceed = true;
    AskSaveCurrent("", proceed);
    if (!proceed) return;
  }
  if (!FileExists(path)) {
    ports_.boxes.tell(fileNotFoundText(path), BoxIcon::Exclamation);
    return;
  }
  bool ok = false;
  doOpenIconFile(path, true, ok);
  if (!ok) return;
  state_.process.mCommandFile = path;
  colors_.chooseColorChart();
}

void Shell::openHelp() {
  const std::string manual = folder_ + "/" + kHelpFile;
  if (!FileExists(manual)) {
    ports_.boxes.tell("GPHelp.chm missing in current folder.", BoxIcon::Exclamation);
    return;
  }
  ports_.processes.openDocument(manual);
}

void Shell::switchToCustomSize() {
  const std::string companion = folder_ + "/" + kCompanionProgram;
  if (!FileExists(companion) || !ports_.processes.start(companion)) {
    ports_.boxes.tell(std::string(kCompanionProgram) + " missing in current folder.", BoxIcon::Exclamation);
    return;
  }
  exitProgram();
}

void Shell::toggleOption(int index) {
  if (index == kUpdateOnlyOption && state_.mRegionActive) return;
  bool& option = state_.options.*findBooleanOption(index)->member;
  option = !option;
  if (index == kEnlargedOption) editingArea_.ApplyEnlargedOption();
  if (index == kPixelRgbOption) {
    state_.screen.pixelRgbVisible = option;
    display_.changed(DisplayPart::Readouts);
  }
  UpdateCommands();
}

void Shell::selectStartScreen(int index) {
  state_.options.startScreen = index;
  UpdateCommands();
}

void Shell::resetToDefault() {
  settings_.resetToDefaults();
  editingArea_.SetGrid(state_.options.grid);
  state_.screen.pixelRgbVisible = state_.options.displayPixelRgb;
  display_.changed(DisplayPart::Readouts);
  UpdateCommands();
}

void Shell::confirmReset() {
  if (!ports_.boxes.ask("Confirm to reset to default settings?")) return;
  resetToDefault();
  editingArea_.ApplyEnlargedOption();
}

void Shell::mnuEditSub(int index) {
  const EditCommand* command = findEditCommand(index);
  if (!command) return;
  if (command->needsIcon && !state_.current().used)
    tellNoIconYet(ports_.boxes);
  else
    command->run(drawing_);
}

void Shell::cmdProceed() {
  const PanelRow* panel = findPanel(state_.screen.mActivePanel);
  if (panel && panel->proceed) panel->proceed(*this);
}

void Shell::cmdCancel() {
  showPanel(kColorPanel);
  ports_.pump.pump();
  if (state_.current().present) MagnifyIcon();
}

void Shell::escapeKey() {
  if (state_.screen.mActivePanel != kColorPanel)
    cmdCancel();
  else if (state_.mRegionExists)
    drawing_.tools.imgClearAllTools();
}

void Shell::exitProgram() {
  if (form_) form_->unload();
}

void Shell::showAbout() {
  if (form_) form_->showAbout();
}

}  // namespace gp
