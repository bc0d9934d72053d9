#include "shell/StartUp.h"

#include "document/EditState.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/SystemInfo.h"
#include "platform/text/Paths.h"

namespace gp {
namespace {

constexpr int kMostBitsBelowHighColor = 8;
constexpr int kLeastScreenWidth = 800;
constexpr int kLeastScreenHeight = 600;

constexpr const char* kAlreadyRunning =
    "Program is already running.\n\nYou can click the File main menu and select the\nappropriate submenus there.\n\n";
constexpr const char* kCompanionRuns =
    "Custom Size Glimmerpane is running.  In order to conserve memory,\n"
    "it is not advisable to run both Glimmerpanes concurrently.\n\nContinue?\n";
constexpr const char* kFewColors =
    "Your current display setting in Windows is below High Color;\n"
    "Some images may not be displayed correctly and you will not\n"
    "be able to view/edit True Color icons.\n\nProceed still?";
constexpr const char* kUnknownWindowsDirectory = "Unknown windows directory, cannot proceed";
constexpr const char* kUnknownSystemDirectory = "Unknown windows system directory, cannot proceed";
constexpr const char* kErrorInMain = "Error encountered in main, cannot proceed";

struct StartUp {
  SystemInfo& system;
  Processes& processes;
  MessageBoxes& boxes;
  EditState& state;
  const std::string& folder;
};

bool isOnlyInstance(StartUp& start) {
  if (!start.processes.IsPrevInstance()) return true;
  start.processes.CloseWindowByTitle(kAboutTitle);
  start.boxes.tell(kAlreadyRunning, BoxIcon::Exclamation);
  return false;
}

bool endCompanion(StartUp& start) {
  if (!start.processes.IsProcessRunning(kCompanionProgram)) return true;
  if (!start.boxes.ask(kCompanionRuns)) return false;
  start.processes.TerminateProcessByName(kCompanionProgram);
  return true;
}

bool acceptScreenColors(StartUp& start) {
  start.state.process.gScreenBPP = start.system.GetScreenBPP();
  return start.state.process.gScreenBPP > kMostBitsBelowHighColor || start.boxes.ask(kFewColors);
}

bool acceptScreenSize(StartUp& start) {
  const int width = start.system.physicalScreenWidth();
  const int height = start.system.physicalScreenHeight();
  if (width >= kLeastScreenWidth && height >= kLeastScreenHeight) return true;
  return start.boxes.ask("This program requires a 800x600 screen or better.\n Your current screen is " +
                         std::to_string(width) + "x" + std::to_string(height) + ".  Proceed still?");
}

bool keepFolder(StartUp& start, const std::string& found, std::string& kept, const char* refusal) {
  if (found.empty()) start.boxes.tell(refusal);
  kept = found;
  return !found.empty();
}

bool findWindowsDirectory(StartUp& start) {
  return keepFolder(start, start.system.windowsDirectory(), start.state.process.gWindowsDir, kUnknownWindowsDirectory);
}

bool findSystemDirectory(StartUp& start) {
  return keepFolder(start, start.system.systemDirectory(), start.state.process.gSystemDir, kUnknownSystemDirectory);
}

bool findTempDirectory(StartUp& start) {
  std::string& temp = start.state.process.gTempDir;
  temp = start.system.tempDirectory();
  if (!temp.empty()) return true;
  temp = start.folder;
  if (temp.empty() || !isSeparator(temp.back())) temp += '/';
  return true;
}

using Step = bool (*)(StartUp&);
constexpr Step kSteps[] = {
    isOnlyInstance,       endCompanion,        acceptScreenColors, acceptScreenSize,
    findWindowsDirectory, findSystemDirectory, findTempDirectory,
};

bool runSteps(StartUp& start) {
  for (const Step step : kSteps)
    if (!step(start)) return false;
  return true;
}

}  // namespace

bool runStartUpChecks(SystemInfo& system, Processes& processes, MessageBoxes& boxes, EditState& state,
                      const std::string& folder) {
  StartUp start{system, processes, boxes, state, folder};
  try {
    return runSteps(start);
  } catch (...) {
    boxes.tell(kErrorInMain);
    return false;
  }
}

}  // namespace gp
