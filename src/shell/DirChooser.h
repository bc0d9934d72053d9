// The rules of the program's own folder chooser: which folder is chosen, what its lists and labels show, and what is
// asked on OK. The form keeps nothing of its own. Folders that cannot be entered are refused and the former one stays.
#pragma once

#include "platform/ports/MessageBoxes.h"

#include <string>
#include <string_view>
#include <vector>

namespace gp {

// Height in twips of the form without its file list.
inline constexpr int kShrunkDirDialogHeight = 4500;

// One line of DirListBox1: the folders on the way to the chosen one, itself, then the folders in it.
struct FolderRow {
  std::string name;
  std::string path;
  int depth = 0;        // 0 for the drive
  bool isOpen = false;  // on the way to the chosen folder, or the chosen folder itself
};

class DirChooser {
 public:
  // `pattern` is such as "*.ICO" or "*.*". An empty or unusable start folder means the current directory.
  DirChooser(std::string pattern, const std::string& startFolder);

  // Enters a folder, which becomes the current directory. False when that cannot be done.
  bool changeFolder(const std::string& folder);
  // Enters the top folder of a drive. False as above.
  bool changeDrive(const std::string& drive) { return changeFolder(drive); }
  void setPattern(const std::string& pattern);
  // Reads the folder again.
  void refresh();

  const std::string& pattern() const { return pattern_; }  // cboFilePattern
  const std::string& folder() const { return folder_; }    // lblSelectedDir
  const std::vector<std::string>& files() const { return files_; }
  std::vector<FolderRow> folderRows() const;
  // The root and what is mounted below it for users, and the user's own folder.
  std::vector<std::string> drives() const;
  // The one of drives() that the folder lies in, the nearest if there are several.
  std::string drive() const;
  // The folder above; the root is its own.
  std::string parentFolder() const;
  // lblIconsInDir: how many files of the pattern the folder holds.
  std::string filesInDirText() const;

  // cmdOK. True when the form may close with folder() as its result; a folder without files is asked about.
  bool accept(MessageBoxes& boxes) const;

 private:
  bool showsAllFiles() const;
  std::string extension() const;
  std::string noFilesQuestion() const;

  std::string pattern_;
  std::string folder_;
  std::vector<std::string> files_;
};

}  // namespace gp
