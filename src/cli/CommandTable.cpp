#include "cli/CommandTable.h"

#include <algorithm>
#include <cctype>

namespace gp::cli {
namespace {

std::string withMore(const char* text, std::string (*more)()) { return more ? text + more() : text; }

bool isOptionLetter(char letter) { return letter == '-' || std::isalpha(static_cast<unsigned char>(letter)) != 0; }

}  // namespace

std::string Command::wholeUsage() const { return withMore(usage, moreUsage); }

std::string Command::wholeHelp() const { return withMore(help, moreHelp); }

std::vector<std::string> Command::options() const {
  const std::string text = wholeUsage();
  std::vector<std::string> options;
  for (auto at = text.begin(); at != text.end();) {
    const bool begins = *at == '-' && at != text.begin() && (*(at - 1) == ' ' || *(at - 1) == '[');
    const auto end = std::find_if_not(at, text.end(), isOptionLetter);
    const std::string option(at, end);
    if (begins && option.size() > 1 && std::ranges::find(options, option) == options.end()) options.push_back(option);
    at = begins ? end : at + 1;
  }
  return options;
}

const Command* findCommand(std::string_view name) {
  const auto rows = commandTable();
  const auto found = std::ranges::find(rows, name, &Command::name);
  return found == rows.end() ? nullptr : &*found;
}

}  // namespace gp::cli
