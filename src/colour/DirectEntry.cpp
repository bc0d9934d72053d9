#include "colour/DirectEntry.h"

#include "platform/text/Numbers.h"
#include "platform/text/Utf8.h"

namespace gp {

namespace {

constexpr const char* kLargestHex = "FFFFFF";

// Corrects a hexadecimal text to a valid colour. Intended: the upper bound is checked against the decimal number at the
// start of the text, so "FFFFFF" (0 in decimal) passes.
std::string correctedHex(const std::string& text) {
  if (valueOfHex(text) < 0) return "0";
  if (Val(text) > kLargestColor) return kLargestHex;
  return text;
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
      text_ = Hex(roundToInteger(Val(correctedDecimal(text_))));
  }
  mDirectEntryHex = !mDirectEntryHex;
}

std::optional<Color> DirectEntry::proceed() {
  if (text_.empty() || Val(text_) < 0) return std::nullopt;
  text_ = hexTicked_ ? correctedHex(text_) : correctedDecimal(text_);
  return hexTicked_ ? valueOfHex(text_) : roundToInteger(Val(text_));
}

}  // namespace gp
