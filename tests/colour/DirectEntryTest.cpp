#include "colour/DirectEntry.h"

#include <gtest/gtest.h>
#include <iomanip>
#include <sstream>
#include <string>
#include <utility>

namespace gp {
namespace {

DirectEntry decimalEntry() {
  DirectEntry entry;
  entry.toggleHex();
  return entry;
}

TEST(DirectEntry, StartsEmptyAndHexadecimal) {
  const DirectEntry entry;
  EXPECT_EQ(entry.text(), "");
  EXPECT_TRUE(entry.isHex());
  EXPECT_EQ(entry.maxLength(), 6);
}

TEST(DirectEntry, SixDigitsAreTheColourWithBlueInFront) {
  DirectEntry entry;
  entry.setText("FF8001");
  EXPECT_EQ(entry.proceed(), 0xFF8001);
}

TEST(DirectEntry, TheLargestHexValuePassesTheRangeTestAsZero) {
  DirectEntry entry;
  entry.setText("FFFFFF");
  EXPECT_EQ(entry.proceed(), 0xFFFFFF);
  EXPECT_EQ(entry.text(), "FFFFFF");
}

TEST(DirectEntry, ADecimal16777216IsCorrected) {
  DirectEntry entry = decimalEntry();
  entry.setText("16777216");
  EXPECT_EQ(entry.proceed(), 0xFFFFFF);
  EXPECT_EQ(entry.text(), "16777215");
}

TEST(DirectEntry, AMinusCannotBeTypedInEitherBase) {
  DirectEntry entry;
  EXPECT_EQ(entry.filterKey('-'), 0);
  EXPECT_EQ(decimalEntry().filterKey('-'), 0);
}

TEST(DirectEntry, TheKeyFilterKeepsDigitsBackspaceAndInHexTheLettersAToF) {
  DirectEntry hex;
  EXPECT_EQ(hex.filterKey('7'), '7');
  EXPECT_EQ(hex.filterKey('c'), 'C');
  EXPECT_EQ(hex.filterKey('F'), 'F');
  EXPECT_EQ(hex.filterKey('g'), 0);
  EXPECT_EQ(hex.filterKey(8), 8);
  const DirectEntry decimal = decimalEntry();
  EXPECT_EQ(decimal.filterKey('7'), '7');
  EXPECT_EQ(decimal.filterKey('c'), 0);
  EXPECT_EQ(decimal.filterKey(8), 8);
}

TEST(DirectEntry, TurningHexOffAndOnReturnsTheSameColour) {
  for (const char* text : {"FFFFFF", "0", "1", "7FFF", "12345", "C0C0C0", "800000"}) {
    DirectEntry entry;
    entry.setText(text);
    const auto before = entry.proceed();
    entry.toggleHex();
    entry.toggleHex();
    EXPECT_EQ(entry.proceed(), before) << text;
  }
}

std::string sixDigits(int value) {
  std::ostringstream digits;
  digits << std::hex << std::uppercase << std::setw(6) << std::setfill('0') << value;
  return digits.str();
}

// Returns what is wrong after a typed text of six digits, of this value, went through decimal and back; empty if
// nothing.
std::string lostOffAndOn(int value) {
  DirectEntry entry;
  entry.setText(sixDigits(value));
  entry.toggleHex();
  if (entry.text() != std::to_string(value)) return sixDigits(value) + " became " + entry.text();
  entry.toggleHex();
  if (entry.text() != sixDigits(value)) return sixDigits(value) + " came back as " + entry.text();
  if (entry.proceed() != value || entry.text() != sixDigits(value)) return sixDigits(value) + " is another colour";
  return {};
}

// 0 and FF, the neighbours of a sign, and values whose digits contain an "E", which is no exponent.
constexpr int kThirdChannels[] = {0x00, 0x01, 0x1E, 0x7F, 0x80, 0x9E, 0xE0, 0xFF};

TEST(DirectEntry, OffAndOnKeepsEveryValueOfTwoChannelsBesideSamplesOfTheThird) {
  for (const int third : kThirdChannels)
    for (int pair = 0; pair <= 0xFFFF; ++pair) {
      ASSERT_EQ(lostOffAndOn(third << 16 | pair), "");
      ASSERT_EQ(lostOffAndOn(pair << 8 | third), "");
    }
}

TEST(DirectEntry, ADecimalValueIsTheSameColourInHex) {
  for (int value = 0; value <= 0xFFFFFF; value += value < 0x10000 ? 1 : 251) {
    DirectEntry entry = decimalEntry();
    entry.setText(std::to_string(value));
    entry.toggleHex();
    ASSERT_EQ(entry.text(), sixDigits(value));
    ASSERT_EQ(entry.proceed(), value);
  }
}

TEST(DirectEntry, GreenStaysGreenWhenHexIsTurnedOffAndOn) {
  DirectEntry entry;
  entry.setText("00FF00");
  entry.toggleHex();
  EXPECT_EQ(entry.text(), "65280");
  entry.toggleHex();
  EXPECT_EQ(entry.text(), "00FF00");
  EXPECT_EQ(entry.proceed(), 0x00FF00);
}

TEST(DirectEntry, FewerDigitsReturnAsSixOfTheSameValue) {
  const std::pair<const char*, const char*> texts[] = {{"0", "000000"},    {"F", "00000F"},    {"1E9", "0001E9"},
                                                       {"7FFF", "007FFF"}, {"8000", "000000"}, {"0FFFF", "00FFFF"},
                                                       {"9E9", "0009E9"}};
  for (const auto& [typed, returned] : texts) {
    DirectEntry entry;
    entry.setText(typed);
    entry.toggleHex();
    entry.toggleHex();
    EXPECT_EQ(entry.text(), returned) << typed;
  }
}

TEST(DirectEntry, AnEAmongTheDigitsIsNoExponent) {
  DirectEntry entry;
  entry.setText("001E30");
  EXPECT_EQ(entry.proceed(), 0x001E30);
  EXPECT_EQ(entry.text(), "001E30");
}

TEST(DirectEntry, TurningHexOffShowsTheDecimalValueAndAllowsEightDigits) {
  DirectEntry entry;
  entry.setText("FFFFFF");
  entry.toggleHex();
  EXPECT_EQ(entry.text(), "16777215");
  EXPECT_EQ(entry.maxLength(), 8);
  EXPECT_FALSE(entry.isHex());
}

// The parser reads four digits as a signed number of 16 bits, so these are negative and become 0.
TEST(DirectEntry, FourDigitsFrom8000OnAreNegativeAndBecomeZero) {
  DirectEntry entry;
  entry.setText("FFFF");
  EXPECT_EQ(entry.proceed(), 0);
  EXPECT_EQ(entry.text(), "0");
  entry.setText("00FFFF");
  EXPECT_EQ(entry.proceed(), 0xFFFF);
}

TEST(DirectEntry, AnEmptyTextSelectsNothing) {
  DirectEntry entry;
  EXPECT_FALSE(entry.proceed().has_value());
}

TEST(DirectEntry, ToggledWhileEmptyItStaysEmpty) { EXPECT_EQ(decimalEntry().text(), ""); }

TEST(DirectEntry, TextIsCutToTheLengthOfTheBase) {
  DirectEntry entry;
  entry.setText("1234567");
  EXPECT_EQ(entry.text(), "123456");
}

}  // namespace
}  // namespace gp
