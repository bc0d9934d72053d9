#include "cli/Console.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace gp::cli {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\n'; }

// In UTF-8 the control characters from 0x80 up are two bytes, the first of them 0xC2.
bool isControl(unsigned char before, unsigned char byte) {
  return byte < 0x20 || byte == 0x7F || (before == 0xC2 && byte < 0xA0);
}

std::string escaped(unsigned char byte) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  return {'\\', 'x', kDigits[byte >> 4], kDigits[byte & 15]};
}

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

std::string printable(std::string_view text) {
  std::string line;
  unsigned char before = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    line += isControl(before, byte) ? escaped(byte) : std::string(1, c);
    before = byte;
  }
  return line;
}

void complain(const std::string& file, const std::string& reason) {
  std::fprintf(stderr, "gpicon: %s: %s\n", printable(file).c_str(), printable(oneLine(reason)).c_str());
}

bool refuse(const std::string& file, const std::string& reason) {
  complain(file, reason);
  return false;
}

int badUsage(const std::string& text) {
  std::fprintf(stderr, "gpicon: %s (see gpicon --help)\n", printable(text).c_str());
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

bool takeFlag(Arguments& arguments, std::string_view flag) {
  const auto end = std::ranges::find(arguments, "--");
  const auto kept = std::remove(arguments.begin(), end, flag);
  const bool isTaken = kept != end;
  arguments.erase(kept, end);
  return isTaken;
}

int takeListArguments(const std::string& command, Arguments arguments, ListArguments& given) {
  given.asJson = takeFlag(arguments, "--json");
  Split split = splitOptions(arguments);
  if (!split.options.empty()) return badUsage(command + ": unknown option " + split.options.front());
  if (split.files.empty()) return badUsage(command + ": no file given");
  given.files = std::move(split.files);
  return kDone;
}

bool parseNumber(std::string_view text, int& number) {
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end && number >= 0;
}

bool parseNumbers(std::string_view text, std::vector<int>& numbers) {
  for (;;) {
    const std::size_t comma = text.find(',');
    if (!parseNumber(text.substr(0, comma), numbers.emplace_back())) return false;
    if (comma == std::string_view::npos) return true;
    text.remove_prefix(comma + 1);
  }
}

}  // namespace gp::cli
