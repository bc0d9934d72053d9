#include "colour/DirectEntry.h"

#include "platform/text/Numbers.h"
#include "platform/text/Utf8.h"

namespace gp {

namespace {

constexpr std::size_t kHexDigits = 6;

// Corrects a hexadecimal text to a valid colour. Its six digits, read as a decimal number, are never above
// kLargestColor: an "E" is a digit and not an exponent.
std::string correctedHex(const std::string& text) { return valueOfHex(text) < 0 ? "0" : text; }

// Six digits, because the parser would read four digits from 8000 on as a negative number.
std::string sixHexDigits(Color color) {
  const std::string digits = Hex(color);
  return std::string(kHexDigits - digits.size(), '0') + digits;
}

std::string correctedDecimal(const std::string& text) {
  const double value = Val(text);
  if (value < 0) return "0";
  if (value > kLargestColor) return std::to_string(kLargestColor);
  return text;
}

}  // namespace

void DirectEntry::setText(const std::string& text) { text_ = firstCharacters(text, maxLength()); }

int DirectEntry::filterKey(int keyCode) const {
  return hexTicked_ ? HexDigitsOnlyKey(keyCode) : DigitsOnlyKey(keyCode);
}

void DirectEntry::toggleHex() {
  hexTicked_ = !hexTicked_;
  if (!text_.empty()) {
    if (mDirectEntryHex)
      text_ = std::to_string(valueOfHex(correctedHex(text_)));
    else
      text_ = sixHexDigits(roundToInteger(Val(correctedDecimal(text_))));
  }
  mDirectEntryHex = !mDirectEntryHex;
}

std::optional<Color> DirectEntry::proceed() {
  if (text_.empty() || Val(text_) < 0) return std::nullopt;
  text_ = hexTicked_ ? correctedHex(text_) : correctedDecimal(text_);
  return hexTicked_ ? valueOfHex(text_) : roundToInteger(Val(text_));
}

}  // namespace gp
