// The command bodies of the shell itself: history, options, help and the companion program.
#include "document/CurrentIconGuard.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "platform/files/Files.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"
#include "shell/CommandLine.h"
#include "shell/CommandNeeds.h"
#include "shell/PanelTable.h"
#include "shell/Shell.h"
#include "shell/StartUp.h"

namespace gp {

namespace {

constexpr const char* kHelpFile = "GPHelp.chm";
constexpr const char* kAniQuestion = "Animated cursor session for 32x32 icons only\nTerminate animated cursor session?";
constexpr int kEnlargedOption = 3;
constexpr int kPixelRgbOption = 5;
constexpr int kUpdateOnlyOption = 9;

}  // namespace

void Shell::openFromHistory(int index) {
  const std::string path = fileHistory_.path(index);
  if (path.empty()) return;
  closePanels();
  // The session is for icons of one size, and a file can hold another. It ends after the last question.
  const bool endsAniSession = state_.screen.aniContainerVisible;
  if (endsAniSession && !ports_.boxes.ask(kAniQuestion)) return;
  if (!mayCurrentIconGo(context_) || !isThere(path)) return;
  if (endsAniSession) endAniSession();
  bool ok = false;
  files_.iconFiles.doOpenIconFile(path, true, ok);
  if (ok) state_.process.mCommandFile = path;
}

bool Shell::isThere(const std::string& path) {
  if (FileExists(path)) return true;
  ports_.boxes.tell(fileNotFoundText(path), BoxIcon::Exclamation);
  return false;
}

void Shell::openFromAniHistory(int index) {
  const std::string path = aniHistory_.path(index);
  if (!path.empty() && isThere(path)) animation_.session.openFile(path);
}

void Shell::chooseTool(Tool tool) {
  if (mayAct() && isMet(needs::icon(*this, tool))) drawing_.tools.selectTool(tool);
}

void Shell::chooseColorPicker() {
  if (mayAct() && isMet(needs::icon(*this, kNoIndex))) colour_.selection.imgColorPicker();
}

void Shell::shiftTowards(ShiftCell cell) {
  if (mayAct() && isMet(needs::icon(*this, kShift))) drawing_.shift.padRelease(cell);
}

void Shell::zoom(ZoomStep step) {
  if (!mayAct()) return;
  document_.areaOptions.zoom(step);
  drawing_.tools.followMagnification();
}

void Shell::openHelp() {
  const std::string manual = folders_.dataFile(kHelpFile);
  if (!FileExists(manual)) {
    ports_.boxes.tell("GPHelp.chm missing in current folder.", BoxIcon::Exclamation);
    return;
  }
  ports_.processes.openDocument(manual);
}

void Shell::switchToCustomSize() {
  const std::string companion = folders_.dataFile(kCompanionProgram);
  if (!FileExists(companion) || !ports_.processes.start(companion)) {
    ports_.boxes.tell(std::string(kCompanionProgram) + " missing in current folder.", BoxIcon::Exclamation);
    return;
  }
  exitProgram();
}

void Shell::toggleOption(int index) {
  if (index == kUpdateOnlyOption && state_.mRegionExists) return;
  bool& option = state_.options.*findBooleanOption(index)->member;
  option = !option;
  if (index == kEnlargedOption) document_.areaOptions.ApplyEnlargedOption();
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
  document_.areaOptions.SetGrid(state_.options.grid);
  state_.screen.pixelRgbVisible = state_.options.displayPixelRgb;
  display_.changed(DisplayPart::Readouts);
  UpdateCommands();
}

void Shell::confirmReset() {
  if (!ports_.boxes.ask("Confirm to reset to default settings?")) return;
  resetToDefault();
  document_.areaOptions.ApplyEnlargedOption();
}

void Shell::cmdProceed() {
  if (!mayAct()) return;
  const PanelRow* panel = findPanel(state_.screen.mActivePanel);
  if (!panel || !panel->proceed) return;
  // The Current Icon may have changed while the panel was open.
  const Command* command = panel->command ? findCommand(panel->command, panel->commandIndex) : nullptr;
  if (!command || mayRun(*command)) panel->proceed(*this);
}

void Shell::cmdCancel() {
  if (!extraction_.list.mayClose()) return;
  showPanel(kColorPanel);
  ports_.pump.pump();
  if (state_.current().present) document_.editingArea.MagnifyIcon();
}

void Shell::escapeKey() {
  if (extraction_.list.stopDrawing()) return;
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
