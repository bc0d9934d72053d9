#include "effects/EffectCases.h"
#include "effects/Pictures.h"
#include "effects/Texture.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr int kCustom = 3, kStyle1 = 0, kStyle2 = 1;
constexpr Color kGrey = rgb(128, 128, 128);

IconImage paintedIcon(int side, Color color) { return {Surface(side, side, color), Surface(side, side, kBlack), {}}; }

IconImage textured(const IconImage& icon, const Surface& pattern, int depth, int style) {
  return applied("texture", icon, withPictures({kCustom, depth, style}, {{pattern, Surface(), {}}}));
}

// The colours of the pixels of a row.
std::vector<Color> rowOf(const IconImage& icon, int y) {
  std::vector<Color> colors;
  for (int x = 0; x < icon.width(); ++x) colors.push_back(icon.image.GetPixel(x, y));
  return colors;
}

// A pattern of 3 x 3 pixels in grey.
Surface patternOf9(const std::vector<int>& levels) {
  Surface pattern(3, 3);
  for (int i = 0; i < 9; ++i) {
    const int level = levels[static_cast<std::size_t>(i)];
    pattern.SetPixelV(i % 3, i / 3, rgb(level, level, level));
  }
  return pattern;
}

TEST(Texture, APatternOfOneColorChangesNothing) {
  for (const Color color : {kBlack, kWhite, rgb(1, 130, 255)})
    for (int depth = kLeastDepth; depth <= kMostDepth; ++depth)
      for (const int style : {kStyle1, kStyle2})
        for (const int size : kIconSides)
          for (const IconImage& icon : generatedIcons(size))
            ASSERT_TRUE(samePixels(textured(icon, Surface(48, 48, color), depth, style), icon)) << depth;
}

TEST(Texture, APixelFollowsTheDifferenceToItsLowerRightNeighbour) {
  // 128 + 0.5 * (100 - 60) is 148: 148 / 128 * 128 + 20.
  const Surface pattern = patternOf9({100, 0, 0, 0, 60, 0, 0, 0, 60});
  EXPECT_EQ(textured(paintedIcon(3, kGrey), pattern, 5, kStyle1).image.GetPixel(0, 0), rgb(168, 168, 168));
  EXPECT_EQ(textured(paintedIcon(3, kGrey), pattern, 5, kStyle2).image.GetPixel(0, 0), rgb(88, 88, 88));
  EXPECT_EQ(textured(paintedIcon(3, kGrey), pattern, 1, kStyle1).image.GetPixel(0, 0), rgb(136, 136, 136));
  // 148 / 128 * 200 + 20 is 251.25, 148 / 128 * 255 + 20 is beyond white.
  EXPECT_EQ(textured(paintedIcon(3, rgb(200, 0, 255)), pattern, 5, kStyle1).image.GetPixel(0, 0), rgb(251, 20, 255));
}

TEST(Texture, TheLastColumnAndRowUseTheirLeftAndUpperNeighbours) {
  // Rows and columns that differ, so that each wrong neighbour would show.
  const Surface pattern = patternOf9({10, 20, 40, 80, 160, 30, 60, 120, 240});
  const IconImage result = textured(paintedIcon(3, kGrey), pattern, 1, kStyle1);
  const auto changed = [](int from, int to) {
    const int level = 128 + static_cast<int>(std::nearbyint((from - to) / 10.0));
    return rgb(2 * level - 128, 2 * level - 128, 2 * level - 128);
  };
  EXPECT_EQ(rowOf(result, 0), (std::vector{changed(10, 160), changed(20, 30), changed(40, 160)}));
  EXPECT_EQ(rowOf(result, 1), (std::vector{changed(80, 120), changed(160, 240), changed(30, 120)}));
  EXPECT_EQ(rowOf(result, 2), (std::vector{changed(60, 160), changed(120, 30), changed(240, 160)}));
}

TEST(Texture, RedCountsMostAndBlueLeast) {
  const auto levelOf = [](Color high) {
    Surface pattern(2, 2, kBlack);
    pattern.SetPixelV(0, 0, high);
    return redOf(textured(paintedIcon(2, kGrey), pattern, 5, kStyle1).image.GetPixel(0, 0));
  };
  // 0.5 * 80 is 40. Its part raises the level, which counts twice on this grey.
  EXPECT_EQ(levelOf(rgb(80, 0, 0)), 128 + 2 * 28);
  EXPECT_EQ(levelOf(rgb(0, 80, 0)), 128 + 2 * 8);
  EXPECT_EQ(levelOf(rgb(0, 0, 80)), 128 + 2 * 4);
}

TEST(Texture, WhatIsNotPaintedStaysAsItIs) {
  const Surface pattern = patternOf9({200, 0, 0, 0, 100, 0, 0, 0, 0});
  const IconImage icon = iconOf({".^~", "^.^", "~~."});
  for (const int style : {kStyle1, kStyle2}) EXPECT_TRUE(samePixels(textured(icon, pattern, 9, style), icon));
}

TEST(Texture, ASmallPatternIsTiledAndALargeOneIsCut) {
  const Surface large = customPattern();
  Surface small(16, 16);
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) small.SetPixelV(x, y, large.GetPixel(x, y));
  EXPECT_TRUE(samePixels(textured(paintedIcon(16, kGrey), large, 5, 0), textured(paintedIcon(16, kGrey), small, 5, 0)));
  const IconImage tiled = textured(paintedIcon(48, kGrey), small, 5, 0);
  for (int y = 0; y < 31; ++y)
    for (int x = 0; x < 31; ++x) ASSERT_EQ(tiled.image.GetPixel(x, y), tiled.image.GetPixel(x + 16, y + 16));
}

TEST(Texture, EachStoredPatternIsClearlyVisibleAndDifferent) {
  std::vector<IconImage> results;
  for (int pattern = 0; pattern < kStoredPatterns; ++pattern)
    for (const int size : kIconSides) {
      ASSERT_EQ(storedPattern(pattern).width(), 48);
      ASSERT_EQ(storedPattern(pattern).height(), 48);
      const IconImage result = applied("texture", paintedIcon(size, kGrey), {pattern, 5, kStyle1});
      const auto isClear = [](std::uint32_t pixel) { return std::abs(redOf(static_cast<Color>(pixel)) - 128) >= 5; };
      EXPECT_GE(std::ranges::count_if(result.image.pixels(), isClear) * 10, size * size) << pattern << " " << size;
      for (const IconImage& other : results) EXPECT_FALSE(samePixels(other, result));
      results.push_back(result);
    }
}

TEST(Texture, AStoredPatternCanBeRepeatedWithoutASeam) {
  // The step across the edge is not larger than the largest one inside.
  for (int index = 0; index < kStoredPatterns; ++index) {
    const Surface& pattern = storedPattern(index);
    const auto step = [&pattern](int x1, int y1, int x2, int y2) {
      return std::abs(redOf(pattern.GetPixel(x1, y1)) - redOf(pattern.GetPixel(x2, y2)));
    };
    int inX = 0, inY = 0, acrossX = 0, acrossY = 0;
    for (int i = 0; i < 48; ++i) {
      for (int at = 0; at < 47; ++at) {
        inX = std::max(inX, step(at, i, at + 1, i));
        inY = std::max(inY, step(i, at, i, at + 1));
      }
      acrossX = std::max(acrossX, step(47, i, 0, i));
      acrossY = std::max(acrossY, step(i, 47, i, 0));
    }
    EXPECT_LE(acrossX, inX) << index;
    EXPECT_LE(acrossY, inY) << index;
  }
}

TEST(Texture, AnIconThatIsPaintedNowhereIsRefused) {
  const IconImage inverting{Surface(16, 16, kWhite), Surface(16, 16, kWhite), {}};
  for (IconImage icon : {transparentIcon(16), inverting}) {
    EXPECT_STREQ(kTexture.refusal(icon, {0, 5, 0}).text, "Current icon is blank, i.e. no painted area yet.");
    icon.mask.SetPixelV(15, 15, kBlack);
    EXPECT_EQ(kTexture.refusal(icon, {0, 5, 0}).text, nullptr);
  }
  EXPECT_EQ(kTexture.refusal(paintedIcon(16, kGrey), {0, 5, 0}).text, nullptr);
}

TEST(Texture, APatternHas48x48Pixels) {
  EXPECT_EQ(refusalOfPattern(48, 48), "");
  EXPECT_EQ(refusalOfPattern(47, 48), "Incoming image is 47 x 48, not of the size of 48x48.");
  EXPECT_EQ(refusalOfPattern(48, 47), "Incoming image is 48 x 47, not of the size of 48x48.");
  EXPECT_EQ(refusalOfPattern(2147483648, 1), "Incoming image is 2147483648 x 1, not of the size of 48x48.");
}

TEST(Texture, PicturesOfAnySizeAreTaken) {
  for (const OddSize& size : kOddSizes) {
    const IconImage icon{Surface(size.width, size.height, kGrey), Surface(size.width, size.height, kBlack), {}};
    const IconImage result = textured(icon, customPattern(), 9, kStyle1);
    EXPECT_EQ(result.width(), size.width);
    EXPECT_EQ(result.height(), size.height);
  }
}

}  // namespace
}  // namespace gp::test
