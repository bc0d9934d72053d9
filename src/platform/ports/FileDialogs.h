// The port for the desktop's dialogs. Only clsGPDialog (platform/dialogs) calls it; the rest of the program uses that.
#pragma once

#include "platform/gdi/Surface.h"

#include <string>
#include <vector>

namespace gp {

// One line of a dialog's file-type list: "Icon files (*.ico)" and "*.ico".
struct FileFilter {
  std::string description;
  std::string pattern;
  bool operator==(const FileFilter&) const = default;
};

// Bits of a file dialog's flag word.
inline constexpr unsigned kFileReadOnly = 0x1;
inline constexpr unsigned kFileOverwritePrompt = 0x2;
inline constexpr unsigned kFileHideReadOnly = 0x4;
inline constexpr unsigned kFileMultiSelect = 0x200;
inline constexpr unsigned kFileMustExist = 0x1000;

struct FileDialogRequest {
  std::string title;
  std::string fileName;  // the proposed name
  std::string folder;    // the initial folder; empty: the current directory
  std::vector<FileFilter> filters;
  std::string defaultExtension;
  unsigned flags = 0;  // the flag word of the platform's dialog, see clsGPDialog
};

// Bits of the printer dialog's flag word.
inline constexpr unsigned kPrintSelection = 0x1;
inline constexpr unsigned kPrintPageNumbers = 0x2;

struct PrinterRequest {
  unsigned flags = 0;
  int copies = 1;
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  // Returns true and sets `path` when the user chose a file. On false, `error` is the error code, 0 for a cancel.
  virtual bool openFile(const FileDialogRequest& request, std::string& path, int& error) = 0;
  virtual bool saveFile(const FileDialogRequest& request, std::string& path, int& error) = 0;
  // `color` is the initial colour and, on true, the chosen one.
  virtual bool chooseColor(Color& color) = 0;
  // `request` is the initial setting and, on true, the accepted one.
  virtual bool choosePrinter(PrinterRequest& request) = 0;
  // Shows the program's own folder chooser. Returns the folder, empty on Cancel. `pattern` is "*.ICO" or similar.
  virtual std::string chooseFolder(const std::string& pattern, const std::string& startFolder) = 0;
};

}  // namespace gp
