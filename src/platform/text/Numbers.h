// The one place where reals become integers and texts become numbers, with the program's rounding and reading rules.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace gp {

// The integer that a whole real stands for, limited to the range of int; 0 for what is no number.
inline int limitToInteger(double whole) {
  constexpr double kLeast = std::numeric_limits<int>::min();
  constexpr double kMost = std::numeric_limits<int>::max();
  return whole >= kLeast && whole <= kMost ? static_cast<int>(whole)
         : whole > kMost                   ? std::numeric_limits<int>::max()
         : whole < kLeast                  ? std::numeric_limits<int>::min()
                                           : 0;
}
// Nearest integer, ties to even.
inline int roundToInteger(double value) { return limitToInteger(std::nearbyint(value)); }
// The same, limited to 0..255.
int roundToByte(double value);
// Int rounds down, Fix truncates toward zero.
inline int Int(double value) { return limitToInteger(std::floor(value)); }
inline int Fix(double value) { return limitToInteger(std::trunc(value)); }
// Truncating division and its remainder, which keeps the sign of the dividend. The divisor must not be 0.
constexpr int divide(int dividend, int divisor) { return dividend / divisor; }
constexpr int Mod(int dividend, int divisor) { return dividend % divisor; }

// The number a text begins with after blanks (sign, digits, point, exponent); 0 if none, or if it is too large to hold.
double Val(std::string_view text);
// Upper-case hexadecimal digits of the 32-bit value, without leading zeros; "0" for 0.
std::string Hex(std::int32_t value);
// What the numeric parser makes of "&H" and the given digits: up to four digits are a signed 16-bit value ("FFFF" is
// -1), up to eight a signed 32-bit value. Reading stops at the first character that is no digit, and after eight; 0 if
// none.
std::int32_t valueOfHex(std::string_view digits);

// Key filters: the key code that passes, 0 for a dropped one. Backspace (8) always passes.
int DigitsOnlyKey(int keyCode);
// Letters a to f are turned to upper case.
int HexDigitsOnlyKey(int keyCode);

}  // namespace gp
