// The folder that subcommands write their files to, with a different name for each.
#pragma once

#include "cli/Console.h"

#include <cstdint>
#include <map>
#include <set>
#include <span>
#include <string>

namespace gp::cli {

// Makes names unique: NAME, NAME-2, NAME-3 ... Extensions are added by the caller.
class OutputNames {
 public:
  std::string nameFor(const std::string& bare);
  // Reserves a name, so that no file gets it.
  void keepOff(const std::string& name) { taken_.insert(name); }

 private:
  std::set<std::string> taken_;
  std::map<std::string, int> last_;  // the last number given to a bare name
};

// The file name in a path, without extension; "stdin" for standard input.
std::string stemOf(const std::string& path);

// What one call may write.
struct OutputBounds {
  std::uint64_t bytes = std::uint64_t{256} << 20;
  std::uint64_t files = 100'000;
};

// The parsed arguments "FILE... -d DIR [--force] [--max-size MB]".
struct FolderArguments {
  Arguments files;
  std::string folder;
  bool replaces = false;  // existing files
  OutputBounds bounds;
};

inline constexpr const char* kTooMuch = "more than one call may write (see --max-size)";

// Writes the files of one call. Nothing outside the folder is touched, whatever another person put there.
class OutputFolder {
 public:
  explicit OutputFolder(const FolderArguments& given)
      : folder_(given.folder), left_(given.bounds), replaces_(given.replaces) {}

  bool hasRoomFor(std::uint64_t files, std::uint64_t bytes) const {
    return files <= left_.files && bytes <= left_.bytes;
  }
  // False, after an error message, when the file cannot be written, may not be replaced, or exceeds the bounds.
  [[nodiscard]] bool write(const std::string& name, std::span<const std::uint8_t> bytes);
  // The same without the message: returns the reason, null after a success.
  [[nodiscard]] const char* tryWrite(const std::string& name, std::span<const std::uint8_t> bytes);
  std::string pathOf(const std::string& name) const { return folder_ + "/" + name; }

 private:
  std::string folder_;
  OutputBounds left_;
  bool replaces_;
};

// Each returns kDone, or another exit status after an error message. The first parses the arguments, the second creates
// the folder if necessary, the third does both.
int parseFolderArguments(const std::string& command, Arguments arguments, FolderArguments& given);
int makeFolderFor(const FolderArguments& given);
int takeFolderArguments(const std::string& command, const Arguments& arguments, FolderArguments& given);

}  // namespace gp::cli
