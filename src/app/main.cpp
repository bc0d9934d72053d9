// The desktop program: creates the ports, the shell and the main form.
#include "document/EditState.h"
#include "document/ui/QtDisplay.h"
#include "files/ui/FileIconImage.h"
#include "platform/files/FileWriting.h"
#include "platform/files/ProgramFolders.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/FirstPaint.h"
#include "platform/qt/ProgramStyle.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtFileDialogs.h"
#include "platform/qt/QtFileTypeIcons.h"
#include "platform/qt/QtMessageBoxes.h"
#include "platform/qt/QtMessagePump.h"
#include "platform/qt/QtPictureLoader.h"
#include "platform/qt/QtProcesses.h"
#include "platform/qt/QtSystemInfo.h"
#include "platform/qt/QtTextDrawing.h"
#include "platform/qt/QtTimer.h"
#include "shell/Shell.h"
#include "shell/StartUp.h"
#include "shell/ui/frmDirDialog.h"
#include "shell/ui/frmGPAbout.h"
#include "shell/ui/frmGPEdit.h"

#include <QApplication>

#include <string>

namespace {

// File names may be any bytes, so the argument is used unchanged.
std::string commandLineOf(int argc, char** argv) { return argc > 1 ? argv[1] : ""; }

int run(QApplication& application, const std::string& commandLine) {
  gp::QtMessageBoxes boxes;
  gp::QtFileDialogs dialogs(
      [&boxes](const std::string& pattern, const std::string& startFolder) {
        return gp::frmDirDialog::choose(pattern, startFolder, boxes);
      },
      [](const std::string& path) { return gp::imageOfFile(path, gp::FilePictures::kSide); });
  gp::QtMessagePump pump;
  gp::QtSystemInfo system;
  gp::QtProcesses processes;
  gp::QtClipboard clipboard(gp::QtClipboard::Asking::Later);
  gp::QtPictureLoader pictures;
  gp::QtTextDrawing text;
  gp::QtTimer timer;
  gp::QtFileTypeIcons fileTypes;
  const gp::ProgramFolders folders = gp::programFolders();

  gp::EditState state;
  if (!gp::runStartUpChecks(system, processes, boxes, state, folders.settings)) return 0;

  gp::frmGPAbout startUpPicture;
  startUpPicture.showAtStart();
  gp::QtDisplay display;
  gp::Shell shell(state, {boxes, dialogs, pump, system, processes, clipboard, pictures, text, timer, fileTypes},
                  display, folders);
  gp::frmGPEdit form(shell, display, commandLine);
  clipboard.onChange = [&shell] { shell.UpdateCommands(); };
  shell.formLoad();
  gp::afterFirstPaint(form, [&clipboard] { clipboard.startAsking(); });
  form.show();
  startUpPicture.close();
  return application.exec();
}

}  // namespace

int main(int argc, char** argv) {
  gp::ignoreWriteSignals();
  // The menu bar is part of the form on every desktop; querying for a native one costs a round trip at start-up.
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication application(argc, argv);
  QApplication::setApplicationName(gp::kProgramName);
  QApplication::setApplicationVersion(GLIMMERPANE_VERSION);
  QGuiApplication::setDesktopFileName("glimmerpane");
  gp::installProgramStyle();
  gp::installAccessibility();
  return run(application, commandLineOf(argc, argv));
}
