#include "cli/Console.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace gp::cli {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\n'; }

std::string oneLine(std::string_view text) {
  std::string line;
  for (auto at = text.begin(); at != text.end();) {
    const auto end = isBlank(*at) ? std::find_if_not(at, text.end(), isBlank) : at + 1;
    const bool breaks = std::find(at, end, '\n') != end;
    if (!breaks)
      line.append(at, end);
    else if (!line.empty() && end != text.end())
      line += ' ';
    at = end;
  }
  return line;
}

}  // namespace

void complain(const std::string& file, const std::string& reason) {
  std::fprintf(stderr, "gpicon: %s: %s\n", file.c_str(), oneLine(reason).c_str());
}

int badUsage(const std::string& text) {
  std::fprintf(stderr, "gpicon: %s (see gpicon --help)\n", text.c_str());
  return kBadUsage;
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

bool takeOption(Arguments& arguments, std::string_view name, std::string& value) {
  bool taken = false;
  for (auto at = arguments.begin(); at != arguments.end() && *at != "--";) {
    if (*at != name) {
      ++at;
      continue;
    }
    if (taken || at + 1 == arguments.end() || (at + 1)->empty()) return false;
    value = *(at + 1);
    at = arguments.erase(at, at + 2);
    taken = true;
  }
  return true;
}

bool parseNumber(std::string_view text, int& number) {
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end && number >= 0;
}

}  // namespace gp::cli
