// Code that all subcommands of gpicon share: the exit statuses, error messages, and parsing of options. Results go to
// stdout, errors to stderr.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gp::cli {

enum ExitStatus { kDone = 0, kRefused = 1, kBadUsage = 2 };

using Arguments = std::vector<std::string>;

// The text with control characters written as "\x0A", so that one line stays one line.
std::string printable(std::string_view text);
// Prints "gpicon: FILE: REASON" on stderr. Line breaks of a message box become single blanks.
void complain(const std::string& file, const std::string& reason);
// The same; returns false.
bool refuse(const std::string& file, const std::string& reason);
// Prints "gpicon: TEXT" and a hint to the help on stderr; returns kBadUsage.
int badUsage(const std::string& text);

// Separates options from files. An option begins with "-"; "--" ends the options and is dropped.
struct Split {
  Arguments options;
  Arguments files;
};
Split splitOptions(const Arguments& arguments);

// Removes "NAME VALUE" from the arguments before "--". False when the value is missing or the option occurs twice;
// without the option, `value` is not changed.
bool takeOption(Arguments& arguments, std::string_view name, std::string& value);

// Removes all occurrences of a flag from the arguments before "--". True when there was one.
bool takeFlag(Arguments& arguments, std::string_view flag);

// What a command that prints about files is given.
struct ListArguments {
  Arguments files;
  bool asJson = false;
};
// Parses "[--json] FILE...". Returns kDone, or kBadUsage after an error message.
int takeListArguments(const std::string& command, Arguments arguments, ListArguments& given);

// False for anything but a number from 0 up.
bool parseNumber(std::string_view text, int& number);
// Appends numbers with commas between them. False for anything else.
bool parseNumbers(std::string_view text, std::vector<int>& numbers);

}  // namespace gp::cli
