#include "platform/text/Numbers.h"

#include <gtest/gtest.h>
#include <limits>

namespace gp {
namespace {

TEST(Numbers, RoundingTakesTheNearestAndTiesGoToEven) {
  EXPECT_EQ(roundToInteger(0.5), 0);
  EXPECT_EQ(roundToInteger(1.5), 2);
  EXPECT_EQ(roundToInteger(2.5), 2);
  EXPECT_EQ(roundToInteger(2.51), 3);
  EXPECT_EQ(roundToInteger(-0.5), 0);
  EXPECT_EQ(roundToInteger(-1.5), -2);
}

TEST(Numbers, RoundingStaysInTheRangeOfIntegers) {
  EXPECT_EQ(roundToInteger(1e30), std::numeric_limits<int>::max());
  EXPECT_EQ(roundToInteger(-1e30), std::numeric_limits<int>::min());
  EXPECT_EQ(roundToInteger(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(Int(std::numeric_limits<double>::infinity()), std::numeric_limits<int>::max());
}

TEST(Numbers, RoundingToAByteIsLimitedTo0And255) {
  EXPECT_EQ(roundToByte(-3), 0);
  EXPECT_EQ(roundToByte(254.5), 254);
  EXPECT_EQ(roundToByte(255.5), 255);
  EXPECT_EQ(roundToByte(1e300), 255);
}

TEST(Numbers, IntRoundsDownAndFixTruncates) {
  EXPECT_EQ(Int(-2.5), -3);
  EXPECT_EQ(Int(2.9), 2);
  EXPECT_EQ(Fix(-2.9), -2);
  EXPECT_EQ(Fix(2.9), 2);
}

TEST(Numbers, DivisionTruncatesAndTheRemainderKeepsTheSignOfTheDividend) {
  EXPECT_EQ(divide(-7, 2), -3);
  EXPECT_EQ(Mod(-7, 2), -1);
  EXPECT_EQ(Mod(7, -2), 1);
}

TEST(Numbers, ValReadsTheNumberThatATextBeginsWith) {
  EXPECT_EQ(Val("12abc"), 12);
  EXPECT_EQ(Val("  +3.5 x"), 3.5);
  EXPECT_EQ(Val("-0.25"), -0.25);
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("1e3"), 1000);
  EXPECT_EQ(Val("1e"), 1);
}

TEST(Numbers, ValOfATextWithoutANumberIsZero) {
  for (const char* text : {"", "   ", "abc", "-", "+-1", ".", "inf", "nan", "-inf", "$5", "1e999"})
    EXPECT_EQ(Val(text), 0) << text;
}

TEST(Numbers, HexWritesUpperCaseDigitsWithoutLeadingZeros) {
  EXPECT_EQ(Hex(0), "0");
  EXPECT_EQ(Hex(255), "FF");
  EXPECT_EQ(Hex(0x00C0FFEE), "C0FFEE");
  EXPECT_EQ(Hex(-1), "FFFFFFFF");
}

TEST(Numbers, UpToFourHexDigitsAreASigned16BitValue) {
  EXPECT_EQ(valueOfHex("7FFF"), 32767);
  EXPECT_EQ(valueOfHex("8000"), -32768);
  EXPECT_EQ(valueOfHex("FFFF"), -1);
  EXPECT_EQ(valueOfHex("ff"), 255);
}

TEST(Numbers, UpToEightHexDigitsAreASigned32BitValue) {
  EXPECT_EQ(valueOfHex("0FFFF"), 65535);
  EXPECT_EQ(valueOfHex("FFFFFF"), 0xFFFFFF);
  EXPECT_EQ(valueOfHex("FFFFFFFF"), -1);
  EXPECT_EQ(valueOfHex("80000000"), std::numeric_limits<int>::min());
}

TEST(Numbers, HexReadingStopsAtTheFirstOtherCharacter) {
  EXPECT_EQ(valueOfHex(""), 0);
  EXPECT_EQ(valueOfHex("G1"), 0);
  EXPECT_EQ(valueOfHex("-1"), 0);
  EXPECT_EQ(valueOfHex("1G"), 1);
  EXPECT_EQ(valueOfHex("123456789"), 0x12345678);
}

TEST(Numbers, TheDigitFilterKeepsDigitsAndBackspace) {
  for (int key = 0; key < 256; ++key)
    EXPECT_EQ(DigitsOnlyKey(key), (key >= '0' && key <= '9') || key == 8 ? key : 0) << key;
}

TEST(Numbers, TheHexFilterKeepsHexDigitsInUpperCase) {
  EXPECT_EQ(HexDigitsOnlyKey('0'), '0');
  EXPECT_EQ(HexDigitsOnlyKey('9'), '9');
  EXPECT_EQ(HexDigitsOnlyKey('A'), 'A');
  EXPECT_EQ(HexDigitsOnlyKey('f'), 'F');
  EXPECT_EQ(HexDigitsOnlyKey(8), 8);
  for (const int dropped : {int{'g'}, int{'G'}, int{'z'}, int{' '}, int{'/'}, int{':'}, int{'@'}, 13, 0, -1})
    EXPECT_EQ(HexDigitsOnlyKey(dropped), 0) << dropped;
}

}  // namespace
}  // namespace gp
