#include "extraction/FolderSearch.h"

#include "extraction/format/ExtractedIcon.h"
#include "extraction/format/IconHandle.h"
#include "platform/files/FileWriting.h"
#include "platform/files/FolderListing.h"
#include "platform/resources/IconLibrary.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

namespace gp {
namespace {

constexpr const char* kByFileEnding = "_x.ico";
constexpr const char* kSerialEnding = ".ico";

std::string inFolder(const std::string& folder, const std::string& name) {
  return folder.ends_with('/') ? folder + name : folder + "/" + name;
}

// The tree may be deeper than a call stack, so the folders that are open are kept here.
class FolderWalk {
 public:
  FolderWalk(std::string patterns, bool withSubfolders, const FolderVisitor& visitor)
      : patterns_(std::move(patterns)), withSubfolders_(withSubfolders), visitor_(visitor) {}

  bool run(const std::string& root) {
    bool goesOn = enter(root);
    while (goesOn && !levels_.empty()) goesOn = step();
    return goesOn;
  }

 private:
  struct Level {
    std::string folder;
    std::vector<std::string> subfolders;  // those that were not entered yet
  };

  bool enter(const std::string& folder) {
    if (!visitor_.folder(folder)) return false;
    levels_.push_back({folder, withSubfolders_ ? listSubfolders(folder, visitor_.goesOn) : std::vector<std::string>()});
    return visitor_.goesOn();
  }

  bool step() {
    Level& level = levels_.back();
    if (level.subfolders.empty()) return leave();
    const std::string name = std::move(level.subfolders.back());
    level.subfolders.pop_back();
    return enter(inFolder(level.folder, name));
  }

  bool leave() {
    const std::string folder = std::move(levels_.back().folder);
    levels_.pop_back();
    const std::vector<std::string> names = listFiles(folder, patterns_, visitor_.goesOn);
    return visitor_.goesOn() &&
           std::ranges::all_of(names, [&](const std::string& name) { return visitor_.file(inFolder(folder, name)); });
  }

  const std::string patterns_;
  const bool withSubfolders_;
  const FolderVisitor& visitor_;
  std::vector<Level> levels_;
};

}  // namespace

bool walkFolder(const std::string& folder, const std::string& patterns, bool withSubfolders,
                const FolderVisitor& visitor) {
  return FolderWalk(patterns, withSubfolders, visitor).run(folder);
}

int countIconsOfFile(const std::string& path) {
  const auto library = IconLibrary::open(path);
  return library ? static_cast<int>(library->groups().size()) : 0;
}

std::string searchedName(const SearchChoices& choices, const std::string& program, int serial, int index) {
  const std::string base = std::filesystem::path(program).stem().native();
  return choices.naming == SearchNaming::Serial ? std::to_string(serial) + "_" + base + kSerialEnding
                                                : base + std::to_string(index) + kByFileEnding;
}

void extractIconsOfFile(const std::string& path, const SearchChoices& choices, const SearchedWriter& write,
                        int& written, const std::function<bool()>& goesOn) {
  const auto library = IconLibrary::open(path);
  if (!library) return;
  int index = 0;
  for (const IconGroup& group : library->groups()) {
    if (written >= choices.maximum || !goesOn()) return;
    const std::string name = searchedName(choices, path, written, index++);
    const auto handle = libraryIcon(*library, group, choices.size);
    if (handle && write(name, fileOfExtracted(surfacesOf(*handle)))) ++written;
  }
}

void extractIconsOfFile(const std::string& path, const SearchChoices& choices, int& written,
                        const std::function<bool()>& goesOn) {
  const auto write = [&choices](const std::string& name, std::span<const std::uint8_t> bytes) {
    return writeInto(choices.target, name, bytes, ExistingFile::Replace) == WriteDefect::None;
  };
  extractIconsOfFile(path, choices, write, written, goesOn);
}

}  // namespace gp
