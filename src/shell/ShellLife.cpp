// The life cycle of the main form: Load, the first Activate, Resize and QueryUnload.
#include "document/Containers.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "platform/files/Backups.h"
#include "platform/files/Files.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"
#include "platform/text/ProfileFile.h"
#include "shell/CommandLine.h"
#include "shell/FormPlacement.h"
#include "shell/Shell.h"
#include "shell/UnsavedQuestion.h"

#include <filesystem>
#include <system_error>

namespace gp {
namespace {

constexpr const char* kBackupQuestion =
    "\n\nWriting this file was interrupted, so it may be damaged.  Its former content has been kept.\n"
    "Yes puts the former content back, No leaves the file as it is and removes what was kept,\n"
    "Cancel asks again at the next start.\n\n"
    "Put the former content back?";
constexpr const char* kNotRestored = "\n\nThe former content cannot be put back.  It is kept in\n";

}  // namespace

void Shell::formLoad() {
  state_.mInLoad = true;
  resetToDefault();
  for (state_.mCurContainer = 0; state_.mCurContainer < kContainerCount; ++state_.mCurContainer) {
    gp::ClearContainer(state_);
    state_.current().seq = static_cast<std::int16_t>(state_.mCurContainer);
  }
  state_.mCurContainer = 0;
  placeForm();
  state_.process.mLastFolder = settings_.GetLastFolder();
  if (state_.process.mLastFolder.empty()) state_.process.mLastFolder = folders_.settings;
  state_.process.mDesktopFolder = ports_.system.desktopDirectory();
  state_.mAlphaRecs.fill(AlphaMatrix());
  state_.mInLoad = false;
}

void Shell::placeForm() {
  StoredPlace stored;
  settings_.GetScreenPos(stored);
  start_ =
      startOfForm(stored, ports_.system.screenWidth() * kTwipsPerPixel, ports_.system.screenHeight() * kTwipsPerPixel);
  if (form_) form_->setPlace(start_.place());
}

void Shell::formActivate(const std::string& commandLine) {
  if (!mFirstActivate) return;
  mFirstActivate = false;
  if (settings_.LoadOptions()) {
    fileHistory_.load();
    aniHistory_.load();
  }
  document_.areaOptions.SetGrid(state_.options.grid);
  state_.screen.pixelRgbVisible = state_.options.displayPixelRgb;
  showEmptyStart();
  offerBackups();
  guarded("Form_Activate", [&] { openCommandLineFile(commandLine); });
  applyStartScreen();
}

// Of files that were being written in place when the program or the machine stopped.
void Shell::offerBackups() {
  for (const LeftBackup& left : leftBackups(folders_.state)) {
    if (!FileExists(left.backup)) continue;  // removed with an older one of the same file
    const BoxAnswer answer =
        ports_.boxes.show(left.path + kBackupQuestion, BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes);
    if (answer == BoxAnswer::No) discard(left);
    if (answer == BoxAnswer::Yes && !restore(left))
      ports_.boxes.tell(left.path + kNotRestored + left.backup, BoxIcon::Exclamation);
  }
}

void Shell::showEmptyStart() {
  state_.screen.fraTools = {true, false};
  document_.iconsPanel.showEmptyContainer();
  for (DisplayPart part : {DisplayPart::History, DisplayPart::Readouts, DisplayPart::ColorPanel, DisplayPart::Panel})
    display_.changed(part);
  UpdateCommands();
  ports_.pump.pump();
}

void Shell::openCommandLineFile(const std::string& commandLine) {
  const CommandLineFile file = readCommandLine(commandLine);
  state_.process.mCommandFile = file.path;
  if (file.kind == CommandLineKind::Missing) ports_.boxes.tell(fileNotFoundText(file.path), BoxIcon::Exclamation);
  bool ok = false;
  if (file.kind == CommandLineKind::Ico) files_.iconFiles.doOpenIconFile(file.path, false, ok);
  if (file.kind == CommandLineKind::Cur) files_.cursorFiles.doOpenCursorFile(file.path, ok);
  if (file.kind == CommandLineKind::Ani) animation_.session.openFile(file.path);
  if (ok) return;
  std::error_code ignored;
  std::filesystem::current_path(folders_.settings, ignored);
}

void Shell::applyStartScreen() {
  if (!form_) return;
  const FormPlace before = form_->place();
  const FormPlace place = gp::applyStartScreen(before, static_cast<StartScreen>(state_.options.startScreen), start_);
  if (place.maximized && !before.maximized)
    form_->maximize();
  else if (place.width != before.width || place.height != before.height)
    form_->setPlace(place);
}

void Shell::formResize(int dispContainerWidth, int dispContainerHeight) {
  document_.iconsPanel.showWaitingIcon();
  if (!state_.mInLoad) document_.areaOptions.setRoom(dispContainerWidth, dispContainerHeight);
}

void Shell::saveSettings() {
  ProfileFile profile(settingsPath());
  const FormPlace place = form_ ? form_->place() : FormPlace{.minimized = true};
  if (!place.minimized)
    settings_.SaveScreenPos(profile, place.left, place.top, place.width, place.height, place.maximized);
  // Before the first Activate the options are only the defaults and must not be saved.
  if (!mFirstActivate) settings_.SaveOptions(profile);
  settings_.SaveLastFolder(profile, state_.process.mLastFolder);
  (void)profile.save();  // the program ends, and keeps the settings of the last time when it cannot
}

bool Shell::queryUnload() {
  const std::string question = unsavedQuestion(state_);
  if (!question.empty() && !ports_.boxes.ask(question)) return false;
  if (!animation_.session.mayExit()) return false;
  files_.cursorFiles.mark().cancel();
  extraction_.list.finish();
  extraction_.search.finish();
  saveSettings();
  return true;
}

}  // namespace gp
