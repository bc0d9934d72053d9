#include "document/PatternCells.h"

#include <gtest/gtest.h>
#include <set>

namespace gp {
namespace {

std::set<std::uint32_t> coloursOf(const Surface& cell) { return {cell.pixels().begin(), cell.pixels().end()}; }

TEST(PatternCells, EachIsEightPixelsSquareAndHasTwoColours) {
  for (int i = 0; i < kPatternCellCount; ++i) {
    const Surface& cell = patternCell(i);
    EXPECT_EQ(cell.width(), 8) << i;
    EXPECT_EQ(cell.height(), 8) << i;
    EXPECT_EQ(coloursOf(cell).size(), 2u) << i;
  }
}

TEST(PatternCells, TheGrayOneIsACheckOfFourPixels) {
  const Surface& cell = patternCell(0);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) {
      const bool dark = (x < 4) == (y < 4);
      EXPECT_EQ(cell.GetPixel(x, y), dark ? 0xB4B4B4 : 0xD0D0D0) << x << ',' << y;
    }
  }
}

TEST(PatternCells, TheBlueOneIsMostlyLightBlueAndRunsDiagonally) {
  const Surface& cell = patternCell(1);
  EXPECT_EQ(cell.GetPixel(4, 0), rgb(0xD6, 0xE8, 0xFA));
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(cell.GetPixel(i, i), rgb(0xA8, 0xCB, 0xEE)) << i;
    EXPECT_EQ(cell.GetPixel((i + 1) % 8, i), rgb(0xA8, 0xCB, 0xEE)) << i;
  }
}

TEST(PatternCells, TheTurquoiseOneHasTwoDots) {
  const Surface& cell = patternCell(2);
  EXPECT_EQ(cell.GetPixel(0, 0), rgb(0xA6, 0xE6, 0xE0));
  EXPECT_EQ(cell.GetPixel(1, 1), rgb(0x6C, 0xC9, 0xC2));
  EXPECT_EQ(cell.GetPixel(6, 6), rgb(0x6C, 0xC9, 0xC2));
  EXPECT_EQ(cell.GetPixel(6, 1), rgb(0xA6, 0xE6, 0xE0));
}

TEST(PatternCells, NoColourIsThatOfTheLinesOrOfTheGround) {
  const std::set<std::uint32_t> taken = {0x606060, static_cast<std::uint32_t>(kGround)};
  for (int i = 0; i < kPatternCellCount; ++i) {
    for (std::uint32_t colour : coloursOf(patternCell(i))) EXPECT_FALSE(taken.contains(colour)) << i;
  }
}

TEST(PatternCells, AnIndexOutsideGivesTheGrayOne) {
  EXPECT_EQ(&patternCell(-1), &patternCell(0));
  EXPECT_EQ(&patternCell(kPatternCellCount), &patternCell(0));
}

}  // namespace
}  // namespace gp
