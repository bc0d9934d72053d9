#include "cli/Console.h"

#include "files/IconDecoder.h"
#include "files/IconFileBytes.h"

#include <cstdio>

namespace gp::cli {

void complain(const std::string& file, const std::string& reason) {
  std::fprintf(stderr, "gpicon: %s: %s\n", file.c_str(), reason.c_str());
}

int badUsage(const std::string& text) {
  std::fprintf(stderr, "gpicon: %s (see gpicon --help)\n", text.c_str());
  return kBadUsage;
}

std::optional<IconFile> openIconFile(const std::string& path) {
  auto bytes = readIconFile(path);
  if (!bytes) {
    complain(path, describe(IconDefect::NotReadable));
    return std::nullopt;
  }
  IconFile file{std::move(*bytes), {}};
  file.directory = parseIconDirectory(file.bytes.span());
  if (file.directory.isIcon() && !file.directory.entries.empty()) return file;
  complain(path, describe(IconDefect::NotAnIcon));
  return std::nullopt;
}

Split splitOptions(const Arguments& arguments) {
  Split split;
  bool onlyFiles = false;
  for (const std::string& argument : arguments) {
    if (!onlyFiles && argument == "--")
      onlyFiles = true;
    else if (!onlyFiles && argument.size() > 1 && argument.front() == '-')
      split.options.push_back(argument);
    else
      split.files.push_back(argument);
  }
  return split;
}

}  // namespace gp::cli
