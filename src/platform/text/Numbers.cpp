#include "platform/text/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>

namespace gp {
namespace {

constexpr int kMaxByte = 255;
constexpr int kBackspace = 8;
constexpr int kHexBase = 16;
constexpr std::size_t kShortHexDigits = 4;
constexpr std::size_t kLongHexDigits = 8;

bool isDigit(int c) { return c >= '0' && c <= '9'; }
bool isLetter(int c, char first, char last) { return c >= first && c <= last; }
bool isHexDigit(char c) { return isDigit(c) || isLetter(c, 'A', 'F') || isLetter(c, 'a', 'f'); }

// std::from_chars would accept "inf" and "nan" as numbers.
bool beginsLikeNumber(std::string_view text) {
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
  return !text.empty() && (isDigit(text.front()) || text.front() == '.');
}

}  // namespace

int roundToByte(double value) { return std::clamp(roundToInteger(value), 0, kMaxByte); }

double Val(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  if (!beginsLikeNumber(text)) return 0;
  if (text.front() == '+') text.remove_prefix(1);
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

std::string Hex(std::int32_t value) {
  std::array<char, kLongHexDigits> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), static_cast<std::uint32_t>(value), kHexBase).ptr;
  for (char& digit : digits)
    if (isLetter(digit, 'a', 'f')) digit = static_cast<char>(digit - 'a' + 'A');
  return std::string(digits.begin(), end);
}

std::int32_t valueOfHex(std::string_view digits) {
  std::size_t count = 0;
  while (count < digits.size() && count < kLongHexDigits && isHexDigit(digits[count])) ++count;
  std::uint32_t value = 0;
  std::from_chars(digits.data(), digits.data() + count, value, kHexBase);
  return count <= kShortHexDigits ? static_cast<std::int16_t>(value) : static_cast<std::int32_t>(value);
}

int DigitsOnlyKey(int keyCode) { return isDigit(keyCode) || keyCode == kBackspace ? keyCode : 0; }

int HexDigitsOnlyKey(int keyCode) {
  const int upper = isLetter(keyCode, 'a', 'z') ? keyCode - 'a' + 'A' : keyCode;
  return isDigit(upper) || isLetter(upper, 'A', 'F') || upper == kBackspace ? upper : 0;
}

}  // namespace gp
