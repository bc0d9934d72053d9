#include "colour/ColorCount.h"
#include "colour/ColorTables.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

int countOf(const Surface& surface) {
  int count = 0;
  GetColorBitCount_Image(surface, count);
  return count;
}

// A picture of 32x32 whose pixels take the colours of a function, column by column.
template <class F>
Surface column(F color) {
  Surface surface(32, 32, kBlack);
  for (int i = 0; i < 32 * 32; ++i) surface.SetPixelV(i / 32, i % 32, color(i));
  return surface;
}

TEST(ColorCount, BlackAndWhiteCountAsTwo) {
  EXPECT_EQ(countOf(Surface(16, 16, kBlack)), 2);
  EXPECT_EQ(countOf(Surface(16, 16, kWhite)), 2);
  EXPECT_EQ(countOf(column([](int i) { return i % 2 ? kWhite : kBlack; })), 2);
}

TEST(ColorCount, TheSixteenStandardColorsCountAsSixteen) {
  EXPECT_EQ(countOf(column([](int i) { return mChartColors16[static_cast<std::size_t>(i % 16)].color; })), 16);
  EXPECT_EQ(countOf(Surface(16, 16, 0xC0C0C0)), 16);
}

TEST(ColorCount, OneOtherColorMakesIt256) {
  Surface surface(16, 16, kWhite);
  surface.SetPixelV(15, 15, 0x010101);
  EXPECT_EQ(countOf(surface), 256);
}

TEST(ColorCount, BlackIsFreeAndTheCornerCountsOnlyWhenItComesAgain) {
  // The colour of the corner, and 255 others, and black: 257 different colours are still accepted.
  const auto passing = [](int i) { return i <= 255 ? 0x100000 + i : kBlack; };
  EXPECT_EQ(countOf(column(passing)), 256);
  // The colour of the corner, occurring again, is one more than the table holds.
  EXPECT_EQ(countOf(column([&](int i) { return i == 300 ? 0x100000 : passing(i); })), -1);
}

TEST(ColorCount, TheColorThatFillsTheTableFails) {
  EXPECT_EQ(countOf(column([](int i) { return 0x100000 + std::min(i, 256); })), -1);
  EXPECT_EQ(countOf(column([](int i) { return 0x100000 + std::min(i, 255); })), 256);
}

TEST(ColorCount, BitsOfACount) {
  EXPECT_EQ(convBPP_Upto24(2), 1);
  EXPECT_EQ(convBPP_Upto24(16), 4);
  EXPECT_EQ(convBPP_Upto24(256), 8);
  for (const int colors : {-1, 0, 4, 255}) EXPECT_EQ(convBPP_Upto24(colors), 24) << colors;
}

}  // namespace
}  // namespace gp::test
