// Facts about the process and its system, and the folders and files that dialogs start from.
#pragma once

#include <string>

namespace gp {

// Start-up fills the first five once; the last two change as files are opened and saved.
struct ProcessValues {
  int gScreenBPP = 32;
  std::string gWindowsDir;
  std::string gSystemDir;
  std::string gTempDir;
  std::string mDesktopFolder;
  std::string mLastFolder;   // folder of the last file dialog
  std::string mCommandFile;  // the file last opened by command line, dialog or history
};

}  // namespace gp
