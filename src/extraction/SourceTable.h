// The table of the sources that the Icons List can show, and how one is chosen and listed.
#pragma once

#include "extraction/IconSource.h"
#include "files/FilesContext.h"

#include <memory>
#include <string>

namespace gp {

class FileTypeIcons;

// mListSource.
enum class ListSource {
  None = 0,
  Folder = 1,
  AniFrames = 2,
  LargeIcons = 3,
  SmallIcons = 4,
  IclScan = 5,
  FileType = 6,
  Desktop = 7,
};

struct SourceRow;

// A source that was listed, or the message that explains why not.
struct OpenedList {
  const SourceRow* row = nullptr;  // of another source when the user has chosen so
  std::unique_ptr<IconSource> source;
  std::string failure;
};

struct SourceRow {
  int menuIndex;  // of mnuExtractSub; kFolderCommand for the command of the menu File
  ListSource source;
  const char* session;  // in "You are already in ... session."
  const char* label;    // lblExtract(0)
  const char* filter;   // of the file dialog; null where the source is no file
  bool startsWithLibrary;
  OpenedList (*list)(const FilesContext& context, const SourceRow& row, const std::string& path, FileTypeIcons& icons);
};

inline constexpr int kFolderCommand = -1;

// Null for another index.
const SourceRow* findSource(int menuIndex);
// Asks for the file or folder of a source; empty after Cancel. The desktop's folder is known: no dialog.
std::string askForSource(FilesContext& context, const SourceRow& row);

}  // namespace gp
