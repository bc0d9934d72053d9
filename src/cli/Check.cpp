#include "cli/Discrepancies.h"
#include "cli/ImageFile.h"
#include "cli/Subcommands.h"

#include <cstdio>

namespace gp::cli {
namespace {

// Reads the whole file, unlike openImageFile: its size is one of the things that are checked.
std::optional<IconFile> openWholeFile(const std::string& path) {
  auto file = readWholeIconFile(path);
  if (file && (file->isIcon() || file->isCursor())) return file;
  complain(path, describe(file ? IconDefect::NotAnIcon : IconDefect::NotReadable));
  return std::nullopt;
}

void print(const std::string& path, const Discrepancy& discrepancy) {
  const std::string index = discrepancy.index < 0 ? kNothingTold : std::to_string(discrepancy.index);
  std::printf("%s\t%s\t%s\t%s\t%s\t%s\n", printable(path).c_str(), index.c_str(), discrepancy.what,
              discrepancy.directory.c_str(), discrepancy.header.c_str(), discrepancy.pixels.c_str());
}

bool checkFile(const std::string& path) {
  const auto file = openWholeFile(path);
  if (!file) return false;
  bool isHealthy = true;
  findDiscrepancies(*file, [&](const Discrepancy& discrepancy) {
    isHealthy = false;
    print(path, discrepancy);
  });
  return isHealthy;
}

}  // namespace

int runCheck(const Arguments& arguments) {
  const Split split = splitOptions(arguments);
  if (!split.options.empty()) return badUsage("check: unknown option " + split.options.front());
  if (split.files.empty()) return badUsage("check: no file given");
  int status = kDone;
  for (const std::string& path : split.files)
    if (!checkFile(path)) status = kRefused;
  return status;
}

}  // namespace gp::cli
