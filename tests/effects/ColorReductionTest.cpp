#include "effects/ColorReduction.h"
#include "effects/Pictures.h"
#include "palette/HalftonePalette.h"
#include "palette/PalettePictures.h"
#include "palette/clsGPPal.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <set>

namespace gp::test {
namespace {

using Method = ReductionMethod;
constexpr Method kMaskKeepers[] = {Method::Optimal,     Method::System,   Method::Optimized, Method::Nearest,
                                   Method::StandardVga, Method::Weighted, Method::Ordered};

// Rows of a slow picture run upwards.
Surface surfaceOf(const SlowPicture& picture) {
  const int width = static_cast<int>(picture[0].size());
  const int height = static_cast<int>(picture.size());
  Surface surface(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      const SlowColor& c = picture[static_cast<std::size_t>(height - 1 - y)][static_cast<std::size_t>(x)];
      surface.SetPixelV(x, y, rgb(c.r, c.g, c.b));
    }
  return surface;
}

// Painted but for holes, some of which are neither black nor white.
Surface holedMask(int width, int height) {
  Surface mask(width, height, kBlack);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      if ((3 * x + 5 * y) % 7 == 1) mask.SetPixelV(x, y, (x + y) % 3 == 0 ? rgb(128, 128, 128) : kWhite);
  return mask;
}

bool arePixelsEqual(const Surface& a, const Surface& b) {
  return a.width() == b.width() && a.height() == b.height() && std::ranges::equal(a.pixels(), b.pixels());
}

std::vector<SlowColor> slowColors(std::span<const Color> colors) {
  std::vector<SlowColor> slow;
  for (const Color color : colors) slow.push_back({redOf(color), greenOf(color), blueOf(color)});
  return slow;
}

void eachPixel(SlowPicture& p, const std::function<SlowColor(const SlowColor&)>& change) {
  for (SlowRow& row : p)
    for (SlowColor& color : row) color = change(color);
}

void matchSlowly(SlowPicture& p, std::span<const Color> palette) {
  const std::vector<SlowColor> entries = slowColors(palette);
  eachPixel(p, [&](const SlowColor& c) { return entries[static_cast<std::size_t>(slowNearest(entries, c))]; });
}

void paintMono(SlowPicture& p, const std::vector<std::vector<bool>>& light) {
  for (std::size_t y = 0; y < p.size(); ++y)
    for (std::size_t x = 0; x < p[y].size(); ++x) p[y][x] = grey(light[y][x] ? 255 : 0);
}

int slowLevel(int v) { return v < 65 ? 0 : v < 160 ? 128 : v < 224 ? 192 : 255; }

bool isOneOfSixteen(const SlowColor& c) {
  for (const SlowColor& standard : slowColors(kStandardPalette))
    if (standard == c) return true;
  return false;
}

// The rules of each level of red, told one by one.
SlowColor slowForced(SlowColor c) {
  auto& [r, g, b] = c;
  if (r == 255) {
    g = g < 128 ? 0 : 255;
    b = b < 128 ? 0 : 255;
  } else if (r == 192) {
    if (g < 128) {
      r = 128;
      g = 0;
      b = b < 128 ? 0 : 128;
    } else if (b >= 128) {
      g = b = 192;
    } else {
      r = g = 128;
      b = 0;
    }
  } else if (r == 0) {
    if (g == 0 && b == 192) b = 128;
    if (g == 128 && b >= 192) b = 128;
    if (g == 192) {
      if (b >= 192)
        g = b = 255;
      else
        g = 128, b = b < 128 ? 0 : 128;
    }
    if (g == 255) b = b < 128 ? 0 : 255;
  } else {
    if (g <= 128) {
      if (b > 0) b = 128;
    } else {
      g = 128;
      b = b < 1 ? 0 : 128;
    }
  }
  return c;
}

SlowColor slowSnap(const SlowColor& c) {
  if (isOneOfSixteen(c)) return c;
  const SlowColor snapped{slowLevel(c.r), slowLevel(c.g), slowLevel(c.b)};
  return isOneOfSixteen(snapped) ? snapped : slowForced(snapped);
}

void reduceSlowly(SlowPicture& p, Method method) {
  switch (method) {
    case Method::Optimal:
      slowFloydSteinberg(p, slowOptimal(p, 256));
      break;
    case Method::System:
      matchSlowly(p, kHalftonePalette);
      break;
    case Method::Optimized:
      slowFloydSteinberg(p, slowColors(kStandardPalette));
      break;
    case Method::Nearest:
      eachPixel(p, slowSnap);
      break;
    case Method::StandardVga:
      matchSlowly(p, kStandardPalette);
      break;
    case Method::Weighted:
      paintMono(p, slowBurkes(p));
      break;
    case Method::Ordered:
      paintMono(p, slowOrdered(p));
      break;
    case Method::SelectCutoff:
      FAIL() << "works on two surfaces";
  }
}

IconImage slowCutoff(const Surface& image, const Surface& mask, int threshold) {
  IconImage icon{Surface(image.width(), image.height(), kBlack), Surface(image.width(), image.height(), kWhite), {}};
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const Color shown = (kGround & mask.GetPixel(x, y)) ^ image.GetPixel(x, y);
      if (shown == kGround && mask.GetPixel(x, y) == kWhite) continue;
      if (redOf(shown) + greenOf(shown) + blueOf(shown) < 3 * threshold) icon.mask.SetPixelV(x, y, kBlack);
    }
  return icon;
}

void blackOut(Surface& image, const Surface& mask) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (mask.GetPixel(x, y) != kBlack) image.SetPixelV(x, y, kBlack);
}

TEST(ColorReduction, EqualsTheSlowModelOnEveryPicture) {
  const std::vector<NamedPicture> pictures = palettePictures();
  ASSERT_GE(pictures.size(), 20U);
  for (const NamedPicture& picture : pictures) {
    const Surface image = surfaceOf(picture.pixels);
    const Surface mask = holedMask(image.width(), image.height());
    for (const Method method : kMaskKeepers) {
      SlowPicture slow = picture.pixels;
      reduceSlowly(slow, method);
      Surface expected = surfaceOf(slow);
      if (method != Method::Nearest) blackOut(expected, mask);
      const IconImage result = reduceColors(image, mask, {method});
      EXPECT_TRUE(arePixelsEqual(result.image, expected)) << picture.name << ' ' << static_cast<int>(method);
      EXPECT_TRUE(arePixelsEqual(result.mask, mask)) << picture.name << ' ' << static_cast<int>(method);
    }
  }
}

TEST(ColorReduction, TheCutoffEqualsTheSlowModelOnEveryPicture) {
  for (const NamedPicture& picture : palettePictures()) {
    const Surface image = surfaceOf(picture.pixels);
    const Surface mask = holedMask(image.width(), image.height());
    for (const int threshold : {0, 1, 100, 128, 200, 255, 354}) {
      const IconImage result = reduceColors(image, mask, {Method::SelectCutoff, threshold});
      const IconImage expected = slowCutoff(image, mask, threshold);
      EXPECT_TRUE(arePixelsEqual(result.image, expected.image)) << picture.name << ' ' << threshold;
      EXPECT_TRUE(arePixelsEqual(result.mask, expected.mask)) << picture.name << ' ' << threshold;
    }
  }
}

std::set<std::uint32_t> colorsIn(const Surface& surface) { return {surface.pixels().begin(), surface.pixels().end()}; }

TEST(ColorReduction, TheColorsThatAreLeftAreThoseOfTheMethod) {
  const auto allowed = [](std::span<const Color> palette) {
    return std::set<std::uint32_t>(palette.begin(), palette.end());
  };
  const std::set<std::uint32_t> standard = allowed(kStandardPalette);
  const std::set<std::uint32_t> mono{storedForm(kBlack), storedForm(kWhite)};
  const std::pair<Method, std::set<std::uint32_t>> cases[] = {{Method::System, allowed(kHalftonePalette)},
                                                              {Method::Optimized, standard},
                                                              {Method::Nearest, standard},
                                                              {Method::StandardVga, standard},
                                                              {Method::Weighted, mono},
                                                              {Method::Ordered, mono}};
  for (const NamedPicture& picture : palettePictures()) {
    const Surface image = surfaceOf(picture.pixels);
    const Surface mask(image.width(), image.height(), kBlack);
    for (const auto& [method, colors] : cases)
      EXPECT_TRUE(std::ranges::includes(colors, colorsIn(reduceColors(image, mask, {method}).image))) << picture.name;
    EXPECT_LE(colorsIn(reduceColors(image, mask, {Method::Optimal}).image).size(), 256U) << picture.name;
  }
}

TEST(ColorReduction, WhatIsNotPaintedBecomesBlackAndTheMaskStays) {
  for (const Method method : kMaskKeepers) {
    if (method == Method::Nearest) continue;
    const IconImage icon = iconOf({"~^/.", "w^bw"});
    EXPECT_EQ(rowsOf(reduceColors(icon.image, icon.mask, {method})), (Rows{"..-.", "w.bw"}))
        << static_cast<int>(method);
  }
}

TEST(ColorReduction, OnlyNearestLeavesPixelsThatInvert) {
  const IconImage icon = iconOf({"~^/."});
  const IconImage result = reduceColors(icon.image, icon.mask, {Method::Nearest});
  EXPECT_TRUE(arePixelsEqual(result.mask, icon.mask));
  EXPECT_EQ(result.image.GetPixel(0, 0), rgb(0, 128, 128));
  EXPECT_EQ(result.image.GetPixel(1, 0), kWhite);
  EXPECT_EQ(result.image.GetPixel(2, 0), rgb(0, 128, 128));
  EXPECT_EQ(result.image.GetPixel(3, 0), kBlack);
}

// Pixels that do not show still count while colours are chosen and errors spread.
TEST(ColorReduction, PixelsThatDoNotShowTakePart) {
  Surface image(2, 1, rgb(100, 100, 100));
  Surface mask(2, 1, kBlack);
  const auto second = [&] { return reduceColors(image, mask, {Method::Weighted}).image.GetPixel(1, 0); };
  // The mean is 100: the first pixel is white and leaves the second one darker.
  EXPECT_EQ(second(), kBlack);
  mask.SetPixelV(0, 0, kWhite);
  EXPECT_EQ(second(), kBlack);
  // The mean is 50 now, and nothing is left over from the first pixel.
  image.SetPixelV(0, 0, kBlack);
  EXPECT_EQ(second(), kWhite);
}

// The matrix of Ordered and all errors begin at the bottom left.
TEST(ColorReduction, OrderedLeavesOneWhitePixelOfABlackBlockInItsBottomLeftCorner) {
  const IconImage icon = iconOf(flatRows(5, 5, 'b'));
  EXPECT_EQ(rowsOf(reduceColors(icon.image, icon.mask, {Method::Ordered})),
            (Rows{"wbbbw", "bbbbb", "bbbbb", "bbbbb", "wbbbw"}));
}

TEST(ColorReduction, FewColorsStayWithOptimal) {
  const IconImage icon = iconOf({"opbw", "gsro", "wbpr"});
  EXPECT_EQ(rowsOf(reduceColors(icon.image, icon.mask, {Method::Optimal})), rowsOf(icon));
}

TEST(ColorReduction, IconsOfAnySizeKeepIt) {
  for (const auto& [width, height] : kOddSizes) {
    const IconImage icon = iconOf(flatRows(width, height, 'w'));
    for (const Method method : kMaskKeepers)
      EXPECT_EQ(rowsOf(reduceColors(icon.image, icon.mask, {method})), flatRows(width, height, 'w')) << width;
    EXPECT_EQ(rowsOf(reduceColors(icon.image, icon.mask, {Method::SelectCutoff, 354})), flatRows(width, height, 'b'));
    EXPECT_EQ(rowsOf(reduceColors(icon.image, icon.mask, {Method::SelectCutoff, 128})), flatRows(width, height, '.'));
  }
}

// Cutoff --------------------------------------------------------------------------------------------------------------

Rows cutOff(const Rows& rows, int threshold) {
  const IconImage icon = iconOf(rows);
  return rowsOf(reduceColors(icon.image, icon.mask, {Method::SelectCutoff, threshold}));
}

// 'b' where one painted pixel of that colour becomes black, '.' where it vanishes.
char cutPixel(Color color, int threshold) {
  const Surface image(1, 1, color);
  const Surface mask(1, 1, kBlack);
  return rowsOf(reduceColors(image, mask, {Method::SelectCutoff, threshold}))[0][0];
}

TEST(Cutoff, DarkPixelsBecomeBlackAndLighterOnesVanish) {
  EXPECT_EQ(cutOff({"obgw", "psr."}, 128), (Rows{"bb..", "..b."}));
}

TEST(Cutoff, TheMeanIsComparedAsARealNumber) {
  EXPECT_EQ(cutPixel(rgb(127, 128, 128), 128), 'b');
  EXPECT_EQ(cutPixel(rgb(128, 128, 127), 128), 'b');
  EXPECT_EQ(cutPixel(rgb(128, 128, 128), 128), '.');
  EXPECT_EQ(cutPixel(rgb(129, 128, 128), 128), '.');
  EXPECT_EQ(cutPixel(rgb(128, 129, 127), 128), '.');
  EXPECT_EQ(cutPixel(rgb(1, 1, 0), 1), 'b');
  EXPECT_EQ(cutPixel(rgb(0, 1, 1), 1), 'b');
  EXPECT_EQ(cutPixel(rgb(1, 1, 1), 1), '.');
}

TEST(Cutoff, AThresholdOfOneLeavesAlmostBlackAlone) { EXPECT_EQ(cutOff({"bogw", "prs."}, 1), (Rows{"b...", "...."})); }

TEST(Cutoff, AThresholdOfZeroOrLessLeavesNothing) {
  for (const int threshold : {0, -1, std::numeric_limits<int>::min()})
    EXPECT_EQ(cutOff({"bogw", "prs.", "^~/-"}, threshold), flatRows(4, 3, '.')) << threshold;
}

TEST(Cutoff, AThresholdAboveAnyMeanBlackensAllThatIsPainted) {
  EXPECT_EQ(cutPixel(kWhite, 255), '.');
  EXPECT_EQ(cutPixel(kWhite, 256), 'b');
  for (const int threshold : {354, std::numeric_limits<int>::max()})
    EXPECT_EQ(cutOff({"bogw", "prs."}, threshold), (Rows{"bbbb", "bbb."})) << threshold;
}

TEST(Cutoff, TheGroundIsTransparentAndItsColorPaintedIsNot) {
  EXPECT_EQ(cutOff({"s."}, 192), Rows{".."});
  EXPECT_EQ(cutOff({"s."}, 193), Rows{"b."});
}

TEST(Cutoff, PixelsThatInvertGoByWhatTheyShow) {
  // White on the ground shows 0x3F3F3F.
  EXPECT_EQ(cutOff({"^"}, 63), Rows{"."});
  EXPECT_EQ(cutOff({"^"}, 64), Rows{"b"});
  // (32, 96, 152) shows (224, 160, 88).
  EXPECT_EQ(cutOff({"~"}, 157), Rows{"."});
  EXPECT_EQ(cutOff({"~"}, 158), Rows{"b"});
}

TEST(Cutoff, AMaskThatIsNotWhiteIsNoGround) {
  // Half the ground's bits show: 0x808080.
  EXPECT_EQ(cutOff({"-"}, 128), Rows{"."});
  EXPECT_EQ(cutOff({"-"}, 129), Rows{"b"});
  // It stays one where the picture makes it look like the ground.
  const Surface image(1, 1, rgb(64, 64, 64));
  const Surface mask(1, 1, rgb(128, 128, 128));
  EXPECT_EQ(rowsOf(reduceColors(image, mask, {Method::SelectCutoff, 193})), Rows{"b"});
}

TEST(Cutoff, TheThresholdIs128UnlessTold) { EXPECT_EQ(ReductionSettings{}.threshold, 128); }

TEST(Cutoff, TheResultIsBlackOrTransparentEverywhere) {
  for (const Rows& rows : randomIcons(200))
    for (const int threshold : {1, 64, 128, 193, 354})
      for (const std::string& row : cutOff(rows, threshold)) EXPECT_EQ(row.find_first_not_of("b."), std::string::npos);
}

}  // namespace
}  // namespace gp::test
