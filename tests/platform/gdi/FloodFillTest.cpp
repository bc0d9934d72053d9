#include "platform/gdi/FloodFill.h"
#include "platform/gdi/GoldenFile.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace gp {
namespace {

using test::GoldenCase;
using test::samePixels;

constexpr int kSide = 32;

std::vector<Color> paletteOf(const GoldenCase& c) {
  std::vector<Color> colors;
  std::istringstream list(c.text("palette"));
  for (std::string entry; std::getline(list, entry, ',');) colors.push_back(static_cast<Color>(test::parseHex(entry)));
  return colors;
}

Surface labelled(const GoldenCase& c, std::size_t firstRow) {
  const std::vector<Color> palette = paletteOf(c);
  Surface s(kSide, kSide);
  for (int y = 0; y < kSide; ++y)
    for (int x = 0; x < kSide; ++x) s.SetPixelV(x, y, palette[c.rows[firstRow + y][x] - '0']);
  return s;
}

// Scans the whole picture repeatedly until nothing changes.
void slowFill(Surface& s, int x, int y, Color from) {
  std::vector<std::pair<int, int>> inside = {{x, y}};
  std::vector<bool> isInside(static_cast<std::size_t>(s.width()) * s.height());
  isInside[static_cast<std::size_t>(y) * s.width() + x] = true;
  for (bool grown = true; grown;) {
    grown = false;
    for (int j = 0; j < s.height(); ++j)
      for (int i = 0; i < s.width(); ++i) {
        const std::size_t at = static_cast<std::size_t>(j) * s.width() + i;
        if (isInside[at] || s.GetPixel(i, j) != from) continue;
        const bool next = (i > 0 && isInside[at - 1]) || (i + 1 < s.width() && isInside[at + 1]) ||
                          (j > 0 && isInside[at - s.width()]) || (j + 1 < s.height() && isInside[at + s.width()]);
        if (!next) continue;
        isInside[at] = grown = true;
        inside.push_back({i, j});
      }
  }
  for (const auto& [i, j] : inside) s.SetPixelV(i, j, s.fillColor);
}

TEST(FloodFill, EqualsThePlatformsPixels) {
  int checked = 0;
  for (const GoldenCase& c : test::readGoldenFile("floodfill.txt")) {
    Surface s = labelled(c, 1);
    s.fillColor = paletteOf(c)[c.number("newlabel")];
    EXPECT_EQ(ExtFloodFill(s, c.number("x"), c.number("y"), paletteOf(c)[c.number("startlabel")]),
              c.number("ret") == 1);
    EXPECT_TRUE(samePixels(s, labelled(c, 2 + kSide))) << c.name;
    ++checked;
  }
  std::printf("floodfill.txt: %d reference cases checked\n", checked);
  EXPECT_EQ(checked, 48);
}

TEST(FloodFill, SpansEqualThePixelLoopOnManyMazes) {
  std::mt19937 random(11);
  for (int i = 0; i < 200; ++i) {
    Surface s(1 + i % 23, 1 + i % 17);
    for (int y = 0; y < s.height(); ++y)
      for (int x = 0; x < s.width(); ++x)
        if (random() % 3 == 0) s.SetPixelV(x, y, kBlack);
    s.fillColor = kGround;
    Surface slow = s;
    const int x = static_cast<int>(random() % static_cast<unsigned>(s.width()));
    const int y = static_cast<int>(random() % static_cast<unsigned>(s.height()));
    const Color from = s.GetPixel(x, y);
    ASSERT_TRUE(ExtFloodFill(s, x, y, from));
    slowFill(slow, x, y, from);
    ASSERT_TRUE(samePixels(s, slow)) << "round " << i;
  }
}

TEST(FloodFill, FillingAnAreaWithItsOwnColourChangesNothing) {
  Surface s(5, 5, kGround);
  s.fillColor = kGround;
  const Surface before = s;
  EXPECT_TRUE(ExtFloodFill(s, 2, 2, kGround));
  EXPECT_TRUE(samePixels(s, before));
}

TEST(FloodFill, AStartOutsideOrOfAnotherColourIsRefused) {
  Surface s(5, 5);
  EXPECT_FALSE(ExtFloodFill(s, 5, 0, kWhite));
  EXPECT_FALSE(ExtFloodFill(s, 0, -1, kNoColor));
  EXPECT_FALSE(ExtFloodFill(s, 2, 2, kBlack));
  EXPECT_EQ(s.GetPixel(2, 2), kWhite);
}

TEST(FloodFill, ALargeAreaNeedsNoRecursion) {
  Surface s(2000, 2000);
  s.fillColor = kBlack;
  EXPECT_TRUE(ExtFloodFill(s, 1000, 1000, kWhite));
  EXPECT_EQ(s.GetPixel(1999, 0), kBlack);
}

}  // namespace
}  // namespace gp
