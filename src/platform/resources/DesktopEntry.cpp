#include "platform/resources/ShellLink.h"
#include "platform/text/Utf8.h"

#include <string_view>

namespace gp {
namespace {

constexpr std::string_view kGroup = "[Desktop Entry]", kKey = "Icon";
constexpr std::string_view kEscapes = "sntr\\", kEscaped = " \n\t\r\\";
constexpr std::string_view kBlanks = " \t\r";

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  return first == std::string_view::npos ? std::string_view()
                                         : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Removes the first line of the text and returns it.
std::string_view takeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return trimmed(line);
}

// An unknown escape is kept as it is.
std::string decoded(std::string_view value) {
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i) {
    const std::size_t escape =
        value[i] == '\\' && i + 1 < value.size() ? kEscapes.find(value[i + 1]) : std::string_view::npos;
    if (escape != std::string_view::npos) ++i;
    text += escape == std::string_view::npos ? value[i] : kEscaped[escape];
  }
  return text;
}

}  // namespace

std::string iconOfDesktopEntry(std::span<const std::uint8_t> bytes) {
  std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  bool isInGroup = false;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    if (line.starts_with('[')) {
      if (isInGroup) return {};
      isInGroup = line == kGroup;
    }
    const std::size_t sign = line.find('=');
    if (!isInGroup || sign == std::string_view::npos || trimmed(line.substr(0, sign)) != kKey) continue;
    const std::string_view value = trimmed(line.substr(sign + 1));
    return value.find('\0') == std::string_view::npos ? decoded(value) : std::string();
  }
  return {};
}

}  // namespace gp
