#include "platform/text/Utf16.h"

#include <cstdint>

namespace gp {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstPair = 0x10000;
constexpr int kSurrogateBits = 10, kContinuationBits = 6;

bool isHigh(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
bool isLow(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

char32_t ofPair(char16_t high, char16_t low) {
  return kFirstPair + (static_cast<char32_t>(high & 0x3FF) << kSurrogateBits | (low & 0x3FF));
}

void append(char32_t character, std::string& text) {
  if (character < 0x80) {
    text += static_cast<char>(character);
    return;
  }
  const int continuations = character < 0x800 ? 1 : character < kFirstPair ? 2 : 3;
  const std::uint32_t lead = 0xF0U << (3 - continuations) & 0xFF;
  text += static_cast<char>(lead | character >> continuations * kContinuationBits);
  for (int i = continuations - 1; i >= 0; --i)
    text += static_cast<char>(0x80 | (character >> i * kContinuationBits & 0x3F));
}

}  // namespace

std::string utf8Of(std::u16string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    const bool isPair = isHigh(unit) && i + 1 < text.size() && isLow(text[i + 1]);
    if (isPair)
      append(ofPair(unit, text[++i]), result);
    else
      append(isHigh(unit) || isLow(unit) ? kReplacement : unit, result);
  }
  return result;
}

}  // namespace gp
