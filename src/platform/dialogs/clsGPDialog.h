// The one dialog object of the program: a thin layer over the desktop's common dialogs that composes their flag words
// and takes filter texts apart.
#pragma once

#include "platform/ports/FileDialogs.h"

#include <string>
#include <string_view>
#include <vector>

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
  // True when a colour was chosen; only then `color` changes.
  bool ShowColor(Color& color);
  // True when accepted; only then `copies` changes. `pageRange` offers page numbers instead of a selection.
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
// The descriptions and patterns in a filter text, up to its first empty description. A description without a pattern is
// dropped.
std::vector<FileFilter> parseFilter(std::string_view filter);

}  // namespace gp
