#include "cli/Subcommands.h"
#include "files/cursor/CursorProbe.h"
#include "files/format/IcoLayout.h"
#include "files/format/IconDecoder.h"
#include "files/format/IconProbe.h"

#include <cstdio>

namespace gp::cli {
namespace {

std::string numbersOf(const IconFile& file) {
  return file.directory.type == ico::kTypeCursor ? probeCursor(file).joined() : probeIcon(file, true).joined();
}

bool probeFile(const std::string& path) {
  const auto file = readIconFile(path);
  if (!file) {
    complain(path, describe(IconDefect::NotReadable));
    return false;
  }
  std::printf("%s\t%s\n", printable(path).c_str(), numbersOf(*file).c_str());
  return true;
}

}  // namespace

int runProbe(const Arguments& arguments) {
  const Split split = splitOptions(arguments);
  if (!split.options.empty()) return badUsage("probe: unknown option " + split.options.front());
  if (split.files.empty()) return badUsage("probe: no file given");
  int status = kDone;
  for (const std::string& path : split.files)
    if (!probeFile(path)) status = kRefused;
  return status;
}

}  // namespace gp::cli
