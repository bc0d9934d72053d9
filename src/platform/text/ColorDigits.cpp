#include "platform/text/ColorDigits.h"

#include <charconv>
#include <cstdint>

namespace gp {
namespace {

constexpr std::size_t kDigits = 6;
constexpr int kHexadecimal = 16;

// The digits have red on top, a Colour has it at the bottom.
constexpr Color swapRedAndBlue(Color color) { return rgb(blueOf(color), greenOf(color), redOf(color)); }

}  // namespace

std::optional<Color> colorOfDigits(std::string_view digits) {
  std::uint32_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number, kHexadecimal);
  if (digits.size() != kDigits || error != std::errc() || stop != end) return std::nullopt;
  return swapRedAndBlue(static_cast<Color>(number));
}

std::string digitsOfColor(Color color) {
  std::string digits;
  for (int shift = 4 * (static_cast<int>(kDigits) - 1); shift >= 0; shift -= 4)
    digits += "0123456789ABCDEF"[swapRedAndBlue(color) >> shift & 0xF];
  return digits;
}

}  // namespace gp
