#include "files/format/DepthTexts.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

TEST(DepthTexts, AreOfColorsForPalettesAndOfBitsForTrueColor) {
  EXPECT_EQ(colorText({2, 1}), "2-color");
  EXPECT_EQ(colorText({256, 8}), "256-color");
  EXPECT_EQ(colorText({-1, 24}), "True Color 24 BPP");
  EXPECT_EQ(colorText({-1, 32}), "True Color 32 BPP");
}

TEST(DepthTexts, FileNamesHoldColorsOrBits) {
  EXPECT_EQ(colorsInFileName({16, 4}), "16");
  EXPECT_EQ(colorsInFileName({256, 0}), "256");
  EXPECT_EQ(colorsInFileName({-1, 24}), "24bpp");
}

}  // namespace
}  // namespace gp::test
