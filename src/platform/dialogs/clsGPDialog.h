// The program's single dialog object: a thin layer over the desktop's common dialogs. It composes their flag words and
// parses filter texts.
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

  // Returns the chosen path, empty after a cancel or an error. The same holds for ShowSave.
  std::string ShowOpen(const OpenOptions& options);
  std::string ShowSave(const SaveOptions& options);
  // Returns true when the user chose a colour; `color` changes only then.
  bool ShowColor(Color& color);
  // Returns true when the user accepted; only then `copies` changes. `pageRange` offers page numbers, not a selection.
  bool ShowPrinter(bool pageRange, int& copies);
  std::string chooseFolder(const std::string& pattern, const std::string& startFolder);

  // The error code of the last call; 0 after a success or a cancel.
  int extendedError() const { return extendedError_; }

 private:
  FileDialogs& dialogs_;
  int extendedError_ = 0;
};

// Returns a filter text with each ":" and "|" replaced by NUL, followed by two NULs.
std::string separateFilter(std::string_view filter);
// Returns the descriptions and patterns in a filter text, up to the first empty description. A description without a
// pattern is dropped.
std::vector<FileFilter> parseFilter(std::string_view filter);

}  // namespace gp
