// Converts reals to integers and texts to numbers, with the program's rounding and parsing rules.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace gp {

// Returns a whole real as an integer, limited to the range of int; 0 for NaN.
inline int limitToInteger(double whole) {
  constexpr double kLeast = std::numeric_limits<int>::min();
  constexpr double kMost = std::numeric_limits<int>::max();
  return whole >= kLeast && whole <= kMost ? static_cast<int>(whole)
         : whole > kMost                   ? std::numeric_limits<int>::max()
         : whole < kLeast                  ? std::numeric_limits<int>::min()
                                           : 0;
}
// Returns the nearest integer, ties to even.
inline int roundToInteger(double value) { return limitToInteger(std::nearbyint(value)); }
// The same, limited to 0..255.
int roundToByte(double value);
// Int rounds down, Fix truncates toward zero.
inline int Int(double value) { return limitToInteger(std::floor(value)); }
inline int Fix(double value) { return limitToInteger(std::trunc(value)); }
// Truncating division and its remainder, which has the sign of the dividend. The divisor must not be 0.
constexpr int divide(int dividend, int divisor) { return dividend / divisor; }
constexpr int Mod(int dividend, int divisor) { return dividend % divisor; }

// Parses the number at the start of a text, after blanks (sign, digits, point, exponent). Returns 0 if there is none or
// it is out of range.
double Val(std::string_view text);
// Returns the upper-case hexadecimal digits of the 32-bit value, without leading zeros; "0" for 0.
std::string Hex(std::int32_t value);
// Returns the value of "&H" followed by the given digits: up to four digits are a signed 16-bit value ("FFFF" is -1),
// up to eight a signed 32-bit value. Stops at the first other character and after eight digits; 0 without digits.
std::int32_t valueOfHex(std::string_view digits);

// Key filters: return the key code that is accepted, 0 to drop the key. Backspace (8) is always accepted.
int DigitsOnlyKey(int keyCode);
// Converts the letters a to f to upper case.
int HexDigitsOnlyKey(int keyCode);

}  // namespace gp
