// The command bodies that belong to the shell itself: history, options, help and the companion program.
#include "platform/files/Files.h"
#include "shell/CommandLine.h"
#include "shell/Shell.h"
#include "shell/StartUp.h"

namespace gp {

namespace {

constexpr const char* kHelpFile = "GPHelp.chm";
constexpr int kEnlargedOption = 3;
constexpr int kPixelRgbOption = 5;
constexpr int kUpdateOnlyOption = 9;

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
  if (ports_.boxes.ask("Confirm to reset to default settings?")) resetToDefault();
}

void Shell::exitProgram() {
  if (form_) form_->unload();
}

void Shell::showAbout() {
  if (form_) form_->showAbout();
}

}  // namespace gp
