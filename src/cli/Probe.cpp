#include "cli/Subcommands.h"
#include "files/IconDecoder.h"
#include "files/IconFileBytes.h"
#include "files/IconProbe.h"

#include <cstdio>

namespace gp::cli {
namespace {

bool probeFile(const std::string& path) {
  const auto bytes = readIconFile(path);
  if (!bytes) {
    complain(path, describe(IconDefect::NotReadable));
    return false;
  }
  std::printf("%s\t%s\n", path.c_str(), probeIcon(bytes->span(), true).joined().c_str());
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
