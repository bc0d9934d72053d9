// The one dialog object of the program: a thin layer over the desktop's common dialogs that composes their flag words
// and takes filter texts apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/FileDialogs.h"

namespace gp {

struct OpenOptions {
  std::string fileName;
  std::string filter;
  bool multiSelect = false;
  bool fileMustExist = true;
  bool readOnly = false;
  bool hideReadOnly = true;
  std::string initialFolder;
  std::string title;
  std::string defaultExtension;
};

struct SaveOptions {
  std::string fileName;
  std::string filter;
  std::string defaultExtension;
  bool overwritePrompt = true;
  std::string initialFolder;
  std::string title;
};

class clsGPDialog {
 public:
  explicit clsGPDialog(FileDialogs& dialogs) : dialogs_(dialogs) {}

  // The chosen path, or empty.
  std::string ShowOpen(const OpenOptions& options);
  std::string ShowSave(const SaveOptions& options);
  // True when a colour was chosen.
  bool ShowColor(Color& color);
  // True when accepted.
  bool ShowPrinter(bool pageRange, int& copies);
  std::string chooseFolder(const std::string& pattern, const std::string& startFolder);

  // The error of the last call; 0 after a success or a cancel.
  int extendedError() const { return extendedError_; }

 private:
  FileDialogs& dialogs_;
  int extendedError_ = 0;
};

// A filter text with every ":" and "|" turned into NUL, ended by two NULs.
std::string separateFilter(std::string_view filter);
// The pairs of such a text.
std::vector<FileFilter> parseFilter(std::string_view filter);

}  // namespace gp
