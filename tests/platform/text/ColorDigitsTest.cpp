#include "platform/text/ColorDigits.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

TEST(ColorDigits, SixDigitsInAnyCaseAreAColorWithRedFirst) {
  EXPECT_EQ(colorOfDigits("Ff8001"), rgb(255, 128, 1));
  EXPECT_EQ(colorOfDigits("000000"), kBlack);
  EXPECT_EQ(colorOfDigits("ffFFff"), kWhite);
  for (const char* text : {"", "12345", "1234567", "00000g", "-00001", "+00001", "0x0001", " 00001", "00001 "})
    EXPECT_EQ(colorOfDigits(text), std::nullopt) << text;
}

TEST(ColorDigits, TheDigitsOfAColorGiveItBack) {
  EXPECT_EQ(digitsOfColor(rgb(255, 128, 1)), "FF8001");
  EXPECT_EQ(digitsOfColor(kBlack), "000000");
  for (const Color color : {kBlack, kWhite, rgb(1, 2, 3), rgb(0xAB, 0xCD, 0xEF)})
    EXPECT_EQ(colorOfDigits(digitsOfColor(color)), color);
}

}  // namespace
}  // namespace gp
