// The logic of the program's own folder chooser: the chosen folder, the content of lists and labels, and the question
// on OK. The form keeps no state. A folder that cannot be entered is refused and the chosen folder does not change.
#pragma once

#include "platform/ports/MessageBoxes.h"

#include <string>
#include <string_view>
#include <vector>

namespace gp {

// Height in twips of the form without its file list.
inline constexpr int kShrunkDirDialogHeight = 4500;

// One line of DirListBox1: the folders on the path to the chosen one, the chosen one, then the folders in it.
struct FolderRow {
  std::string name;
  std::string path;
  int depth = 0;        // 0 for the root
  bool isOpen = false;  // part of the path to the chosen folder, or the chosen folder
};

class DirChooser {
 public:
  // `pattern` is, for example, "*.ICO" or "*.*". An empty or unusable start folder means the current directory.
  DirChooser(std::string pattern, const std::string& startFolder);

  // Enters a folder, which becomes the current directory. Returns false when that fails.
  bool changeFolder(const std::string& folder);
  // Enters the top folder of a drive. Returns false when that fails.
  bool changeDrive(const std::string& drive) { return changeFolder(drive); }
  void setPattern(const std::string& pattern);
  // Reads the folder's content again.
  void refresh();

  const std::string& pattern() const { return pattern_; }  // cboFilePattern
  const std::string& folder() const { return folder_; }    // lblSelectedDir
  const std::vector<std::string>& files() const { return files_; }
  std::vector<FolderRow> folderRows() const;
  // Returns the root, the user's home folder, and the folders in the usual mount folders.
  std::vector<std::string> drives() const;
  // Returns the innermost of drives() that contains the folder.
  std::string drive() const;
  // Returns the parent folder; the root is its own parent.
  std::string parentFolder() const;
  // lblIconsInDir: the number of files in the folder that match the pattern.
  std::string filesInDirText() const;

  // cmdOK. Returns true when the form can close with folder() as its result. Asks the user if the folder has no files.
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
