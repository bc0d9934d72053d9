#include "document/IconSizes.h"
#include "document/Magnifier.h"
#include "document/PatternCells.h"
#include "platform/gdi/SurfaceOps.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace gp {
namespace {

constexpr Color kPatternLines = 0x606060;
constexpr int kLargestFactor = 40;
// All that the Editing Area uses at usual sizes of the screen, and some of the larger ones.
constexpr int kFactors[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 16, 17, 25, kLargestFactor};

bool same(const Surface& a, const Surface& b) {
  return !SurfaceSizeDiffers(a, b) && std::ranges::equal(a.pixels(), b.pixels());
}

struct Icon {
  Surface image, mask;
};

// Opaque, transparent and inverting pixels in any order.
Icon randomIcon(int width, int height, unsigned seed) {
  std::mt19937 random(seed);
  Icon icon{Surface(width, height, kBlack), Surface(width, height, kWhite)};
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      const auto kind = random() % 3;
      if (kind != 0) icon.image.SetPixelV(x, y, static_cast<Color>(random() & kColorBits));
      if (kind == 1) icon.mask.SetPixelV(x, y, kBlack);
    }
  return icon;
}

// The slow twin: the rules of the grid for one pixel of the Editing Area.
struct Rules {
  int factor;
  int entry;  // of mnuOptionsSubGrid

  bool isLine(int position) const { return position > 0 && position % factor == 0; }
  Color grid(int x, int y) const {
    if (entry == 6) return kWhite;
    if (entry == 2) return isLine(x) && isLine(y) ? 0x800000 : kWhite;
    if (!isLine(x) && !isLine(y)) return kWhite;
    return entry == 1 ? kBlack : kPatternLines;
  }
  Color ground(int x, int y) const {
    const bool patterned = entry >= 3 && entry <= 5;
    return patterned ? patternCell(entry - 3).GetPixel(x % kPatternCellSize, y % kPatternCellSize) : 0xC0C0C0;
  }
  Color magnified(const Icon& icon, int x, int y) const {
    const Color image = icon.image.GetPixel(x / factor, y / factor);
    const bool isOpaque = icon.mask.GetPixel(x / factor, y / factor) == kBlack;
    return (isOpaque ? image : ground(x, y) ^ image) & grid(x, y);
  }
  // One row, cell after cell: the rules of a cell's first pixel, which may be a line, and of all others.
  void magnifiedRow(const Icon& icon, int y, std::uint32_t* to) const {
    for (int cell = 0, x = 0; cell < icon.image.width(); ++cell) {
      const Color image = icon.image.GetPixel(cell, y / factor);
      const bool isOpaque = icon.mask.GetPixel(cell, y / factor) == kBlack;
      const Color first = grid(x, y);
      const Color others = grid(x + 1, y);
      for (int i = 0; i < factor; ++i, ++x) {
        const Color behind = isOpaque ? 0 : grounds[y % kPatternCellSize][x % kPatternCellSize];
        *to++ = storedForm((behind ^ image) & (i == 0 ? first : others));
      }
    }
  }
  void prepareGrounds() {
    for (int y = 0; y < kPatternCellSize; ++y)
      for (int x = 0; x < kPatternCellSize; ++x) grounds[y][x] = ground(x, y);
  }

  Color grounds[kPatternCellSize][kPatternCellSize] = {};
};

class EveryGrid : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Magnifier, EveryGrid, testing::Range(0, kGridCount));

TEST_P(EveryGrid, IsWhatTheRulesSayForEachPixelAtEachSizeAndFactor) {
  const Grid grid = gridOf(gridColorOf(GetParam()));
  for (const int size : kIconSides)
    for (const int factor : kFactors) {
      const Icon icon = randomIcon(size, size, static_cast<unsigned>(size * kLargestFactor + factor));
      const Surface shown = magnified(icon.image, icon.mask, factor, grid);
      Rules rules{factor, GetParam()};
      rules.prepareGrounds();
      ASSERT_EQ(shown.width(), size * factor);
      ASSERT_EQ(shown.height(), size * factor);
      std::vector<std::uint32_t> row(static_cast<std::size_t>(size * factor));
      for (int y = 0; y < shown.height(); ++y) {
        rules.magnifiedRow(icon, y, row.data());
        ASSERT_EQ(std::memcmp(shown.row(y).data(), row.data(), row.size() * sizeof row[0]), 0)
            << "size " << size << ", factor " << factor << ", row " << y;
      }
    }
}

TEST_P(EveryGrid, AloneIsWhiteExceptForItsLines) {
  const Grid grid = gridOf(gridColorOf(GetParam()));
  for (const int factor : {2, 3, 8, 15, kLargestFactor}) {
    const Surface alone = gridAlone(7, 5, factor, grid);
    const Rules rules{factor, GetParam()};
    ASSERT_EQ(alone.width(), 7 * factor);
    ASSERT_EQ(alone.height(), 5 * factor);
    for (int y = 0; y < alone.height(); ++y)
      for (int x = 0; x < alone.width(); ++x)
        ASSERT_EQ(alone.GetPixel(x, y), rules.grid(x, y)) << factor << ": " << x << ", " << y;
  }
}

TEST_P(EveryGrid, HasAGroundThatRepeatsFromTheTopLeftCorner) {
  const Rules rules{1, GetParam()};
  const Surface ground = groundOf(29, 13, gridOf(gridColorOf(GetParam())));
  for (int y = 0; y < ground.height(); ++y)
    for (int x = 0; x < ground.width(); ++x) ASSERT_EQ(ground.GetPixel(x, y), rules.ground(x, y)) << x << ", " << y;
}

TEST_P(EveryGrid, DrawnOnALargerTargetLeavesTheRestOfItAlone) {
  const Grid grid = gridOf(gridColorOf(GetParam()));
  const Icon icon = randomIcon(16, 16, 1);
  Surface target(16 * 3 + 5, 16 * 3 + 2, 0x123456);
  drawMagnified(icon.image, icon.mask, 3, grid, target);
  const Surface expected = magnified(icon.image, icon.mask, 3, grid);
  for (int y = 0; y < target.height(); ++y)
    for (int x = 0; x < target.width(); ++x)
      ASSERT_EQ(target.GetPixel(x, y), expected.contains(x, y) ? expected.GetPixel(x, y) : 0x123456) << x << ", " << y;
}

TEST_P(EveryGrid, AnIconOfAnyShapeIsMagnifiedAlike) {
  const Icon icon = randomIcon(5, 3, 7);
  const Surface shown = magnified(icon.image, icon.mask, 4, gridOf(gridColorOf(GetParam())));
  const Rules rules{4, GetParam()};
  ASSERT_EQ(shown.width(), 20);
  ASSERT_EQ(shown.height(), 12);
  for (int y = 0; y < shown.height(); ++y)
    for (int x = 0; x < shown.width(); ++x) ASSERT_EQ(shown.GetPixel(x, y), rules.magnified(icon, x, y));
}

TEST(Magnifier, AFactorOfOneWithoutAGridIsTheIconOnTheGround) {
  const Icon icon = randomIcon(16, 16, 3);
  const Surface shown = magnified(icon.image, icon.mask, 1, Grid());
  const Rules rules{1, 6};
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) EXPECT_EQ(shown.GetPixel(x, y), rules.magnified(icon, x, y));
}

TEST(Magnifier, ResultsArePicturesThatClearingKeeps) {
  const Icon icon = randomIcon(16, 16, 4);
  Surface shown = magnified(icon.image, icon.mask, 12, gridOf(gridColorOf(0)));
  const Surface before = shown;
  shown.fill(kBlack);
  shown.clearDrawing();
  EXPECT_TRUE(same(shown, before));
}

TEST(Magnifier, AnEnlargedPictureHasASquareForEachPixel) {
  const Surface picture = randomIcon(6, 4, 5).image;
  const Surface large = enlarged(picture, 9);
  ASSERT_EQ(large.width(), 54);
  ASSERT_EQ(large.height(), 36);
  for (int y = 0; y < large.height(); ++y)
    for (int x = 0; x < large.width(); ++x) EXPECT_EQ(large.GetPixel(x, y), picture.GetPixel(x / 9, y / 9));
}

TEST(Magnifier, AnEmptyIconGivesAnEmptyPicture) {
  EXPECT_EQ(magnified(Surface(), Surface(), 12, gridOf(gridColorOf(3))).width(), 0);
  EXPECT_EQ(enlarged(Surface(), 12).height(), 0);
}

TEST(Grid, FollowsTheCodeOfItsEntry) {
  const GridKind kinds[] = {GridKind::Lines,   GridKind::Lines,   GridKind::Dots, GridKind::Pattern,
                            GridKind::Pattern, GridKind::Pattern, GridKind::None};
  const Color colors[] = {0x606060, kBlack, 0x800000, 0x606060, 0x606060, 0x606060, kWhite};
  for (int entry = 0; entry < kGridCount; ++entry) {
    const Grid grid = gridOf(gridColorOf(entry));
    EXPECT_EQ(grid.kind, kinds[entry]) << entry;
    EXPECT_EQ(grid.color, colors[entry]) << entry;
    EXPECT_EQ(grid.pattern, entry == 4 ? 1 : entry == 5 ? 2 : 0) << entry;
  }
}

}  // namespace
}  // namespace gp
