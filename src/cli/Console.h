// What every subcommand of gpicon shares: the exit statuses, the line for a bad file, and reading an icon file with its
// directory. Results go to stdout, complaints to stderr.
#pragma once

#include "files/IcoDirectory.h"
#include "platform/files/Files.h"

#include <optional>
#include <string>
#include <vector>

namespace gp::cli {

enum ExitStatus { kDone = 0, kRefused = 1, kBadUsage = 2 };

using Arguments = std::vector<std::string>;

// "gpicon: FILE: REASON" on stderr.
void complain(const std::string& file, const std::string& reason);
// "gpicon: TEXT" and where help is, on stderr; gives kBadUsage.
int badUsage(const std::string& text);

struct IconFile {
  FileBytes bytes;
  IconDirectory directory;
};
// Nothing for what is no icon file, which has then been complained about.
std::optional<IconFile> openIconFile(const std::string& path);

// Takes the options out of the arguments: what begins with "-" up to "--", which goes too.
struct Split {
  Arguments options;
  Arguments files;
};
Split splitOptions(const Arguments& arguments);

}  // namespace gp::cli
