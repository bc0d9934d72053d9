#include "colour/DirectEntry.h"

#include <gtest/gtest.h>

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
