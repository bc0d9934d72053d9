// All commands of gpicon, one row each. Dispatch, help, the manual page and the completions of shells are made from
// these rows.
#pragma once

#include "cli/Console.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace gp::cli {

struct Command {
  std::string_view name;
  const char* usage;    // its arguments, begun with the name
  const char* summary;  // what it gives, in a few words
  const char* help;     // lines that describe it
  const char* example;  // arguments of a call
  int (*run)(const Arguments& arguments);
  // What other tables add to usage and help; null for nothing.
  std::string (*moreUsage)() = nullptr;
  std::string (*moreHelp)() = nullptr;

  std::string wholeUsage() const;
  std::string wholeHelp() const;
  // The options that its usage names, such as "--force".
  std::vector<std::string> options() const;
};

std::span<const Command> commandTable();
// Null for a name that no command has.
const Command* findCommand(std::string_view name);

}  // namespace gp::cli
