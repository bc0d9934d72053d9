#include "palette/clsGPDIB.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace gp {
namespace {

// Pixels that state their place: red is the column, green the row from the top.
Surface numbered(int width, int height) {
  Surface picture(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) picture.SetPixelV(x, y, rgb(10 + x, 20 + y, 30));
  return picture;
}

clsGPDIB dibOf(const Surface& picture) {
  clsGPDIB dib;
  dib.CreateDIBFromPic(picture);
  return dib;
}

// The colour at a place counted from the top left corner.
Color shownAt(const clsGPDIB& dib, int x, int y) {
  return colorOf(dib.row(dib.DIBHeight() - 1 - y)[static_cast<std::size_t>(x)]);
}

TEST(Dib, ABlankOneIsBlackAndHasTheGivenSize) {
  clsGPDIB dib;
  ASSERT_TRUE(dib.CreateBlankDIB(3, 2));
  EXPECT_EQ(dib.DIBWidth(), 3);
  EXPECT_EQ(dib.DIBHeight(), 2);
  ASSERT_EQ(dib.DIBBitsPtr().size(), 6U);
  EXPECT_EQ(std::ranges::count(dib.DIBBitsPtr(), DibPixel{}), 6);
}

TEST(Dib, ASecondBlankOneReplacesTheFirst) {
  clsGPDIB dib = dibOf(numbered(5, 4));
  ASSERT_TRUE(dib.CreateBlankDIB(2, 3));
  EXPECT_EQ(dib.DIBWidth(), 2);
  EXPECT_EQ(dib.DIBHeight(), 3);
  ASSERT_EQ(dib.DIBBitsPtr().size(), 6U);
  EXPECT_EQ(std::ranges::count(dib.DIBBitsPtr(), DibPixel{}), 6);
}

TEST(Dib, ASizeThatCannotBeLeavesItEmpty) {
  constexpr int kMost = std::numeric_limits<int>::max();
  for (const auto& [width, height] :
       {std::pair{0, 5}, {5, 0}, {-1, 5}, {5, -1}, {kMost, kMost}, {23171, 23171}, {1, kMost / 4 + 1}}) {
    clsGPDIB dib = dibOf(numbered(2, 2));
    EXPECT_FALSE(dib.CreateBlankDIB(width, height)) << width << 'x' << height;
    EXPECT_TRUE(dib.isEmpty());
    EXPECT_EQ(dib.DIBWidth(), 0);
    EXPECT_EQ(dib.DIBHeight(), 0);
  }
}

TEST(Dib, PixelsAreBlueGreenRedFromTheBottomRowUpwardWithoutGaps) {
  const clsGPDIB dib = dibOf(numbered(3, 2));
  const std::uint8_t expected[] = {30, 21, 10, 0, 30, 21, 11, 0, 30, 21, 12, 0,
                                   30, 20, 10, 0, 30, 20, 11, 0, 30, 20, 12, 0};
  ASSERT_EQ(dib.DIBBitsPtr().size_bytes(), sizeof expected);
  EXPECT_EQ(std::memcmp(dib.DIBBitsPtr().data(), expected, sizeof expected), 0);
  EXPECT_EQ(dib.row(1).data(), dib.DIBBitsPtr().data() + 3);
}

TEST(Dib, APictureWithoutPixelsLeavesItEmpty) {
  clsGPDIB dib = dibOf(numbered(2, 2));
  dib.CreateDIBFromPic(Surface());
  EXPECT_TRUE(dib.isEmpty());
}

TEST(Dib, PaintingToItWithNegativeSizesTakesItsOwnSizeFromALargerSource) {
  clsGPDIB dib;
  dib.CreateBlankDIB(2, 3);
  dib.PaintToDIB(numbered(9, 9), 0, 0, -1, -1, RasterOp::SRCCOPY);
  EXPECT_EQ(dib.DIBWidth(), 2);
  EXPECT_EQ(dib.DIBHeight(), 3);
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 2; ++x) EXPECT_EQ(shownAt(dib, x, y), rgb(10 + x, 20 + y, 30)) << x << ' ' << y;
}

TEST(Dib, PaintingToItKeepsWhatASmallerSourceDoesNotCover) {
  clsGPDIB dib;
  dib.CreateBlankDIB(3, 3);
  dib.PaintToDIB(numbered(2, 1), 0, 0, -1, -1, RasterOp::SRCCOPY);
  EXPECT_EQ(shownAt(dib, 1, 0), rgb(11, 20, 30));
  EXPECT_EQ(shownAt(dib, 2, 0), kBlack);
  EXPECT_EQ(shownAt(dib, 0, 1), kBlack);
}

TEST(Dib, APartIsPaintedToItsTopLeftCorner) {
  clsGPDIB dib;
  dib.CreateBlankDIB(4, 4);
  dib.PaintToDIB(numbered(9, 9), 5, 6, 2, 1, RasterOp::SRCCOPY);
  EXPECT_EQ(shownAt(dib, 0, 0), rgb(15, 26, 30));
  EXPECT_EQ(shownAt(dib, 1, 0), rgb(16, 26, 30));
  EXPECT_EQ(shownAt(dib, 2, 0), kBlack);
  EXPECT_EQ(shownAt(dib, 0, 1), kBlack);
  dib.PaintToDIB(numbered(9, 9), 5, 6, 1, -1, RasterOp::SRCINVERT);
  EXPECT_EQ(shownAt(dib, 0, 0), kBlack);
  EXPECT_EQ(shownAt(dib, 0, 2), rgb(15, 28, 30));
}

TEST(Dib, PaintingFromItWithNegativeSizesCopiesAll) {
  const clsGPDIB dib = dibOf(numbered(3, 2));
  Surface target(6, 6);
  dib.PaintFromDIB(target, 1, 2, -1, -1, 0, 0, RasterOp::SRCCOPY);
  for (int y = 0; y < 6; ++y) {
    for (int x = 0; x < 6; ++x) {
      const bool painted = x >= 1 && x < 4 && y >= 2 && y < 4;
      EXPECT_EQ(target.GetPixel(x, y), painted ? rgb(9 + x, 18 + y, 30) : kWhite) << x << ' ' << y;
    }
  }
}

TEST(Dib, APartIsPaintedFromIt) {
  const clsGPDIB dib = dibOf(numbered(5, 5));
  Surface target(4, 4);
  dib.PaintFromDIB(target, 0, 0, 1, 2, 3, 2, RasterOp::SRCAND);
  EXPECT_EQ(target.GetPixel(0, 0), rgb(13, 22, 30));
  EXPECT_EQ(target.GetPixel(0, 1), rgb(13, 23, 30));
  EXPECT_EQ(target.GetPixel(1, 0), kWhite);
  EXPECT_EQ(target.GetPixel(0, 2), kWhite);
}

TEST(Dib, AnEmptyOnePaintsNothing) {
  clsGPDIB dib;
  dib.PaintToDIB(numbered(2, 2), 0, 0, -1, -1, RasterOp::SRCCOPY);
  EXPECT_TRUE(dib.isEmpty());
  Surface target = numbered(2, 2);
  dib.PaintFromDIB(target, 0, 0, -1, -1, 0, 0, RasterOp::SRCCOPY);
  EXPECT_EQ(target.GetPixel(1, 1), rgb(11, 21, 30));
}

TEST(Dib, ClearingUpEmptiesIt) {
  clsGPDIB dib = dibOf(numbered(2, 2));
  dib.ClearUp();
  EXPECT_TRUE(dib.isEmpty());
  EXPECT_EQ(dib.DIBWidth(), 0);
  EXPECT_EQ(dib.DIBHeight(), 0);
}

}  // namespace
}  // namespace gp
