// Gradients: exact pixels, and slow models of them.
#include "effects/EffectCases.h"
#include "effects/Gradient.h"
#include "effects/ModelIcons.h"
#include "effects/Pictures.h"

#include <cmath>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr Color kEnd = rgb(240, 120, 60);
enum { kLinear, kSymmetric, kSquare, kSpherical };

EffectValues values(int kind, int angle = 0, int center = kMiddlePoint) { return {kind, kBlack, kEnd, angle, center}; }

Color entry(Color from, Color to, int steps, int i) {
  const auto channel = [&](int a, int b) {
    return static_cast<int>(std::nearbyint(a + static_cast<double>(b - a) / steps * i));
  };
  return rgb(channel(redOf(from), redOf(to)), channel(greenOf(from), greenOf(to)), channel(blueOf(from), blueOf(to)));
}

TEST(Gradient, LinearRunsFromTopToBottomAndTheCornersAreCutOff) {
  // 16 pixels: the square has 25, of which rows 4 to 19 are shown, turned around its middle.
  const Surface picture = gradientPicture(16, 16, values(kLinear));
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) ASSERT_EQ(picture.GetPixel(x, y), entry(kBlack, kEnd, 25, y + 4)) << x << " " << y;
}

TEST(Gradient, AngleNoughtAndAWholeTurnAreTheSame) {
  for (const int size : kIconSides)
    for (const int kind : {kLinear, kSymmetric})
      EXPECT_TRUE(
          samePixels(gradientPicture(size, size, values(kind, 0)), gradientPicture(size, size, values(kind, 360))));
}

TEST(Gradient, AQuarterTurnRunsAcrossAndHalfATurnUpwards) {
  // The square of 24 pixels has 36 rows; its middle is at 18.
  const Surface across = gradientPicture(24, 24, values(kLinear, 90));
  const Surface upwards = gradientPicture(24, 24, values(kLinear, 180));
  for (int y = 0; y < 24; ++y)
    for (int x = 0; x < 24; ++x) {
      ASSERT_EQ(across.GetPixel(x, y), entry(kBlack, kEnd, 36, x + 6)) << x << " " << y;
      ASSERT_EQ(upwards.GetPixel(x, y), entry(kBlack, kEnd, 36, 36 - (y + 6))) << x << " " << y;
    }
}

TEST(Gradient, SymmetricCountsDownAgainAfterTheMiddle) {
  // The square of 32 pixels has 47 rows, half 23, a ramp of 30; rows 7 to 38 are shown.
  const Surface picture = gradientPicture(32, 32, values(kSymmetric));
  const int expected[32] = {7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22,
                            23, 23, 22, 21, 20, 19, 18, 17, 16, 15, 14, 13, 12, 11, 10, 9};
  for (int y = 0; y < 32; ++y) EXPECT_EQ(picture.GetPixel(5, y), entry(kBlack, kEnd, 30, expected[y])) << y;
}

TEST(Gradient, SquareHasRingsFromTheEdge) {
  const Surface picture = gradientPicture(16, 16, values(kSquare));
  const int expected[16] = {2, 3, 4, 5, 6, 7, 8, 8, 8, 8, 7, 6, 5, 4, 3, 2};
  for (int i = 0; i < 16; ++i) {
    EXPECT_EQ(picture.GetPixel(i, 7), entry(kBlack, kEnd, 8, expected[i])) << i;
    EXPECT_EQ(picture.GetPixel(8, i), entry(kBlack, kEnd, 8, expected[i])) << i;
    EXPECT_EQ(picture.GetPixel(i, i), entry(kBlack, kEnd, 8, expected[i])) << i;
    EXPECT_EQ(picture.GetPixel(i, 0), entry(kBlack, kEnd, 8, 2)) << i;
  }
}

TEST(Gradient, SphericalStartsAtTheCenter) {
  // The farthest corner is the upper left one, a pixel further out: sqrt(9 * 9 + 9 * 9), rounded 13.
  const Surface picture = gradientPicture(16, 16, values(kSpherical));
  EXPECT_EQ(picture.GetPixel(8, 8), entry(kBlack, kEnd, 13, 1));
  EXPECT_EQ(picture.GetPixel(9, 8), entry(kBlack, kEnd, 13, 1));
  EXPECT_EQ(picture.GetPixel(10, 10), entry(kBlack, kEnd, 13, 3));
  EXPECT_EQ(picture.GetPixel(0, 0), entry(kBlack, kEnd, 13, 11));
  // From the upper left corner it is the lower right one: sqrt(16 * 16 + 16 * 16), rounded 23.
  const Surface corner = gradientPicture(16, 16, values(kSpherical, 0, pointValue(0, 0)));
  EXPECT_EQ(corner.GetPixel(0, 0), entry(kBlack, kEnd, 23, 1));
  EXPECT_EQ(corner.GetPixel(15, 15), entry(kBlack, kEnd, 23, 21));
  // From the lower right corner it is the upper left one: 16 * sqrt(2).
  const Surface other = gradientPicture(16, 16, values(kSpherical, 0, pointValue(15, 15)));
  EXPECT_EQ(other.GetPixel(0, 0), entry(kBlack, kEnd, 23, 21));
}

TEST(Gradient, WhatIsPaintedStaysAndNothingIsTransparentAfterwards) {
  const IconImage before = iconOf({"po..", "~^/-", "....", "...o"});
  for (int kind = 0; kind < kGradientKinds; ++kind) {
    const IconImage after = applied("gradient", before, {kind, rgb(255, 1, 2), rgb(255, 1, 2), 0, kMiddlePoint});
    // Red where the Mask was white; what was neither black nor white in the Mask keeps its image.
    Rows expected{"porr", "rrob", "rrrr", "rrro"};
    EXPECT_EQ(rowsOf(after), expected) << kind;
  }
}

TEST(Gradient, OnlyAnIconThatIsPaintedEverywhereIsRefused) {
  const EffectRow& effect = *findEffect("gradient");
  const auto refusal = [&effect](const Rows& rows) {
    const char* text = refusalOf(effect, iconOf(rows), values(kLinear)).text;
    return std::string(text ? text : "");
  };
  EXPECT_EQ(refusal({"oo", "op"}), "No unpainted area in current icon.");
  EXPECT_EQ(refusal({"..", ".."}), "");
  EXPECT_EQ(refusal({"^^", "^^"}), "");
  EXPECT_EQ(refusal({"oo", "o."}), "");
}

TEST(Gradient, TheAngleIsForStraightKindsAndTheCenterForTheSphericalOne) {
  const std::span<const Setting> settings = findEffect("gradient")->settings;
  for (int kind = 0; kind < kGradientKinds; ++kind) {
    EXPECT_EQ(settings[3].applies(values(kind)), kind == kLinear || kind == kSymmetric);
    EXPECT_EQ(settings[4].applies(values(kind)), kind == kSpherical);
  }
}

TEST(Gradient, ACenterOutsideTheIconIsRefused) {
  const EffectRow& effect = *findEffect("gradient");
  const auto refusal = [&effect](int x, int y) {
    const char* text = refusalOf(effect, transparentIcon(16), values(kSpherical, 0, pointValue(x, y))).text;
    return std::string(text ? text : "");
  };
  for (const auto& [x, y] : {std::pair{16, 0}, {0, 16}, {-1, 3}, {3, -1}, {32767, -32767}})
    EXPECT_EQ(refusal(x, y), "Center point is outside the icon.");
  EXPECT_EQ(refusal(15, 15), "");
  EXPECT_EQ(refusal(0, 0), "");
}

// Rows of the square before it is turned, by their index.
Color modelRow(int kind, int side, int row, Color from, Color to) {
  if (kind == kLinear) return entry(from, to, side, std::max(1, row));
  const int half = side / 2;
  int index = row;
  for (int j = 1; half + j < side; ++j)
    if (row == half + j) index = half - j + 1;
  return entry(from, to, static_cast<int>(std::floor(side / 2.0 * 1.3)), std::max(1, index));
}

Color modelPixel(int size, int kind, Color from, Color to, int x, int y, int centerX, int centerY) {
  if (kind == kSquare) {
    int ring = 0;
    while (x >= ring + 1 && y >= ring + 1 && x < size - ring - 1 && y < size - ring - 1) ++ring;
    return entry(from, to, size / 2, std::min(ring + 2, size / 2));
  }
  if (kind == kSpherical) {
    double far = std::hypot(centerX + 1, centerY + 1);
    for (const auto& [cornerX, cornerY] : {std::pair{size, 0}, {0, size}, {size, size}})
      far = std::max(far, std::hypot(centerX - cornerX, centerY - cornerY));
    const int radius = static_cast<int>(std::lround(far));
    const int ring = static_cast<int>(std::lround(std::hypot(x - centerX, y - centerY)));
    return entry(from, to, radius, std::clamp(ring, 1, radius - 1));
  }
  const int side = static_cast<int>(std::nearbyint(std::sqrt(2.0 * size * size) + 2));
  return modelRow(kind, side, y + (side - size) / 2, from, to);
}

// The parameters of the model change from icon to icon.
TEST(Gradient, ItEqualsASlowModelOnEveryIcon) {
  int compared = 0;
  const std::pair<Color, Color> colors[] = {
      {kBlack, kEnd}, {kEnd, kWhite}, {rgb(1, 254, 3), rgb(4, 5, 250)}, {kEnd, kEnd}};
  for (const int size : kIconSides)
    for (const IconImage& icon : iconsOfSize(size))
      for (int kind = 0; kind < kGradientKinds; ++kind) {
        const auto& [from, to] = colors[compared / kGradientKinds % 4];
        const std::pair<int, int> centers[] = {{size / 2, size / 2}, {0, 3}, {size - 1, size - 1}};
        const auto& [x, y] = centers[compared / kGradientKinds % 3];
        const IconImage made = applied("gradient", icon, {kind, from, to, 0, pointValue(x, y)});
        for (int iy = 0; iy < size; ++iy)
          for (int ix = 0; ix < size; ++ix) {
            const Color expected = icon.mask.GetPixel(ix, iy) == kWhite ? modelPixel(size, kind, from, to, ix, iy, x, y)
                                                                        : icon.image.GetPixel(ix, iy);
            ASSERT_EQ(made.image.GetPixel(ix, iy), expected) << kind << ": " << ix << " " << iy << " of " << size;
            ASSERT_EQ(made.mask.GetPixel(ix, iy), kBlack);
          }
        ++compared;
      }
  EXPECT_EQ(compared, 4 * 4 * kModelIconsPerSize);
}

// At any angle a pixel has the colour of the row that lies there; half way between two rows, of either.
TEST(Gradient, AtAnyAngleEachPixelHasTheColorOfTheRowThatLiesThere) {
  constexpr double kPi = 3.14159265358979, kHalf = 0.5 + 1e-6;
  int angle = 0;
  for (const int size : kIconSides) {
    const int side = static_cast<int>(std::nearbyint(std::sqrt(2.0 * size * size) + 2)), offset = (side - size) / 2;
    for (const IconImage& icon : iconsOfSize(size))
      for (const int kind : {kLinear, kSymmetric}) {
        angle = (angle + 7) % 361;
        const IconImage made = applied("gradient", icon, values(kind, angle));
        for (int y = 0; y < size; ++y)
          for (int x = 0; x < size; ++x) {
            if (icon.mask.GetPixel(x, y) != kWhite) {
              ASSERT_EQ(made.image.GetPixel(x, y), icon.image.GetPixel(x, y));
              continue;
            }
            const double dx = x + offset - side / 2, dy = y + offset - side / 2, turn = angle * kPi / 180;
            const double row = side / 2 + dx * std::sin(turn) + dy * std::cos(turn);
            const auto hasColorOf = [&](int i) {
              return made.image.GetPixel(x, y) == modelRow(kind, side, i, kBlack, kEnd);
            };
            const int below = static_cast<int>(std::floor(row));
            ASSERT_TRUE((row - below < kHalf && hasColorOf(below)) ||
                        (below + 1 - row < kHalf && hasColorOf(below + 1)))
                << angle << ": " << x << " " << y << " of " << size;
          }
      }
  }
}

}  // namespace
}  // namespace gp::test
