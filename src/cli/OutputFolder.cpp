#include "cli/OutputFolder.h"

#include "platform/files/Files.h"

#include <filesystem>

namespace gp::cli {
namespace {

bool makeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return directoryExists(folder);
}

}  // namespace

std::string OutputNames::nameFor(const std::string& bare) {
  int& number = last_[bare];
  for (;;) {
    ++number;
    std::string name = number == 1 ? bare : bare + "-" + std::to_string(number);
    if (taken_.insert(name).second) return name;
  }
}

std::string stemOf(const std::string& path) { return std::filesystem::path(path).stem().string(); }

int takeFolderArguments(const std::string& command, Arguments arguments, FolderArguments& given) {
  if (!takeOption(arguments, "-d", given.folder) || given.folder.empty())
    return badUsage(command + ": one -d DIR is needed");
  const Split split = splitOptions(arguments);
  if (!split.options.empty()) return badUsage(command + ": unknown option " + split.options.front());
  if (split.files.empty()) return badUsage(command + ": no file given");
  given.files = split.files;
  if (makeFolder(given.folder)) return kDone;
  complain(given.folder, "not a folder, and cannot be made");
  return kRefused;
}

}  // namespace gp::cli
