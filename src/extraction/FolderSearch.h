// Searches the programs in a folder tree for icons and saves each icon as a file. One thread; the caller is asked
// between files and icons whether to go on. Links to folders are not followed, only regular files are opened, and
// folders that cannot be read end their level only.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace gp {

// What happens on the way. Each returns false to end the walk.
struct FolderVisitor {
  std::function<bool(const std::string& folder)> folder = [](const std::string&) {
    return true;
  };  // before its content
  std::function<bool(const std::string& path)> file;
  // While a folder is listed, which can take long.
  std::function<bool()> goesOn = [] { return true; };
};

// Visits the files of a folder whose names match one of the patterns ("*.exe;*.dll"), sorted by name, case ignored;
// with subfolders, these come first, each with its own ones first, from the last name to the first. False when the
// visitor ended the walk. A folder that cannot be read, or whose path is longer than the system allows, has no content.
bool walkFolder(const std::string& folder, const std::string& patterns, bool withSubfolders,
                const FolderVisitor& visitor);

// How the files are named: <target>/<base><i>_x.ico, or <target>/<serial>_<base>.ico.
enum class SearchNaming { ByFile, Serial };

inline constexpr int kSearchedLarge = 32, kSearchedSmall = 16;

struct SearchChoices {
  std::string target;  // an existing folder
  int size = kSearchedLarge;
  SearchNaming naming = SearchNaming::ByFile;
  int maximum = 1000;  // files to write at most
};

// The number of icons in a program or library; 0 for any other file.
int countIconsOfFile(const std::string& path);

// The name of an icon's file: `serial` counts the files from 0, `index` the icons of the program.
std::string searchedName(const SearchChoices& choices, const std::string& program, int serial, int index);

// Writes a file with that name; false when it cannot.
using SearchedWriter = std::function<bool(const std::string& name, std::span<const std::uint8_t> bytes)>;

// Writes the icons of one program. `written` is the number of files so far and grows with each file that was written.
// Ends when it reaches the maximum, and when `goesOn` returns false, which is asked before each icon. Icons that cannot
// be drawn or written are left out.
void extractIconsOfFile(const std::string& path, const SearchChoices& choices, int& written,
                        const std::function<bool()>& goesOn);
// The same with a writer of files in the place of the target.
void extractIconsOfFile(const std::string& path, const SearchChoices& choices, const SearchedWriter& write,
                        int& written, const std::function<bool()>& goesOn);

}  // namespace gp
