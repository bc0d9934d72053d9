#include "effects/Antialias.h"
#include "effects/Pictures.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

TEST(Antialias, APixelBecomesTheMeanOfItsTwoByTwoNeighbourhood) {
  Surface picture(3, 3, kBlack);
  picture.SetPixelV(0, 0, rgb(100, 0, 7));
  picture.SetPixelV(1, 0, rgb(50, 8, 0));
  picture.SetPixelV(0, 1, rgb(20, 0, 4));
  picture.SetPixelV(1, 1, rgb(10, 16, 2));
  // Columns (60, 0, 5.5 -> 6) and (30, 12, 1); the mean of 6 and 1, 3.5, becomes 4.
  EXPECT_EQ(antialiasPicture(picture).GetPixel(0, 0), rgb(45, 6, 4));
}

TEST(Antialias, TheColumnsAreRoundedBeforeTheyMeet) {
  Surface picture(2, 2, kBlack);
  picture.SetPixelV(0, 1, rgb(0, 1, 3));
  picture.SetPixelV(1, 1, rgb(0, 1, 3));
  // 0.5 becomes 0 and 1.5 becomes 2 on both sides.
  EXPECT_EQ(antialiasPicture(picture).GetPixel(0, 0), rgb(0, 0, 2));
}

TEST(Antialias, AFlatAreaStaysAndTheRightAndBottomEdgesFade) {
  const Surface result = antialiasPicture(Surface(4, 4, rgb(200, 200, 200)));
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 3; ++x) EXPECT_EQ(result.GetPixel(x, y), rgb(200, 200, 200));
  // Red is -1 outside: (200 - 1) / 2 = 99.5.
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(result.GetPixel(3, i), rgb(100, 100, 100));
    EXPECT_EQ(result.GetPixel(i, 3), rgb(100, 100, 100));
  }
  EXPECT_EQ(result.GetPixel(3, 3), rgb(50, 50, 50));
}

TEST(Antialias, BlackStaysBlackAtTheEdges) {
  const Surface result = antialiasPicture(Surface(2, 2, kBlack));
  for (const std::uint32_t pixel : result.pixels()) EXPECT_EQ(pixel & kColorBits, 0U);
}

TEST(Antialias, WhatIsBehindTheMaskCountsButStays) {
  const IconImage icon = iconOf({"b^.", "^^.", "..."});
  const IconImage result = applied("antialias", icon);
  EXPECT_EQ(result.image.GetPixel(0, 0), rgb(192, 192, 192));  // 127.5 is 128, 255: 191.5
  EXPECT_EQ(result.image.GetPixel(1, 0), kWhite);
  EXPECT_EQ(result.image.GetPixel(1, 1), kWhite);
  EXPECT_EQ(result.image.GetPixel(2, 2), kBlack);
}

TEST(Antialias, PicturesOfAnySizeAreTaken) {
  for (const OddSize& size : kOddSizes) {
    const Surface result = antialiasPicture(Surface(size.width, size.height, kWhite));
    EXPECT_EQ(result.width(), size.width);
    EXPECT_EQ(result.height(), size.height);
  }
}

}  // namespace
}  // namespace gp::test
