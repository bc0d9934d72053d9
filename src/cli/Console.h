// What every subcommand of gpicon shares: the exit statuses, the line for a bad file, and taking options out of the
// arguments. Results go to stdout, complaints to stderr.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gp::cli {

enum ExitStatus { kDone = 0, kRefused = 1, kBadUsage = 2 };

using Arguments = std::vector<std::string>;

// "gpicon: FILE: REASON" on stderr. Line breaks of a message box become single blanks.
void complain(const std::string& file, const std::string& reason);
// "gpicon: TEXT" and where help is, on stderr; gives kBadUsage.
int badUsage(const std::string& text);

// Takes the options out of the arguments: what begins with "-" up to "--", which goes too.
struct Split {
  Arguments options;
  Arguments files;
};
Split splitOptions(const Arguments& arguments);

// Takes "NAME VALUE" out of the arguments, if it stands before "--". False when it lacks its value or stands there
// twice; without it the value stays empty.
bool takeOption(Arguments& arguments, std::string_view name, std::string& value);

// False for anything but a number of 0 or more.
bool parseNumber(std::string_view text, int& number);

}  // namespace gp::cli
