#include "drawing/RotateSurface.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace gp {
namespace {

using Rows = std::vector<std::string>;
constexpr Color kEmpty = 0x010101;

// Each letter is a different colour; '.' is the background.
Surface surfaceOf(const Rows& rows) {
  Surface surface(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()), kBlack);
  for (std::size_t y = 0; y < rows.size(); ++y)
    for (std::size_t x = 0; x < rows[y].size(); ++x)
      if (rows[y][x] != '.') surface.SetPixelV(static_cast<int>(x), static_cast<int>(y), rows[y][x]);
  return surface;
}

Rows rowsOf(const Surface& surface) {
  Rows rows(static_cast<std::size_t>(surface.height()));
  for (int y = 0; y < surface.height(); ++y)
    for (int x = 0; x < surface.width(); ++x) {
      const Color color = surface.GetPixel(x, y);
      rows[static_cast<std::size_t>(y)] += color == kBlack ? '.' : color == kEmpty ? '-' : static_cast<char>(color);
    }
  return rows;
}

Rows rotated(const Rows& rows, const RotateSettings& settings) {
  Surface target(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()), kEmpty);
  rotateSurface(surfaceOf(rows), target, settings);
  return rowsOf(target);
}

const Rows kLetters = {"abcde", "f.hij", "klmno", "pqrst", "uvwxy"};

TEST(RotateSurface, NoTurnAndAWholeTurnCopyThePicture) {
  EXPECT_EQ(rotated(kLetters, {}), kLetters);
  EXPECT_EQ(rotated(kLetters, {.angleDegrees = 360}), kLetters);
  EXPECT_EQ(rotated(kLetters, {.angleDegrees = -360}), kLetters);
}

TEST(RotateSurface, AQuarterTurnGoesAgainstTheClock) {
  EXPECT_EQ(rotated(kLetters, {.angleDegrees = 90}), (Rows{"ejoty", "dinsx", "chmrw", "b.lqv", "afkpu"}));
  EXPECT_EQ(rotated(kLetters, {.angleDegrees = -90}), (Rows{"upkfa", "vql.b", "wrmhc", "xsnid", "ytoje"}));
  EXPECT_EQ(rotated(kLetters, {.angleDegrees = 180}), (Rows{"yxwvu", "tsrqp", "onmlk", "jih.f", "edcba"}));
}

TEST(RotateSurface, BackgroundIsWrittenOnlyWhenItIsNotSkipped) {
  EXPECT_EQ(rotated({"a.b", "...", "c.d"}, {.skipBackground = true}), (Rows{"a-b", "---", "c-d"}));
  EXPECT_EQ(rotated({"a.b", "...", "c.d"}, {.skipBackground = false}), (Rows{"a.b", "...", "c.d"}));
  EXPECT_EQ(rotated({"aab"}, {.skipBackground = true, .backgroundColor = 'a'}), Rows{"--b"});
}

TEST(RotateSurface, EveryPixelComesFromTheNearestOneThatTheAngleLeadsTo) {
  for (const double degrees : {1.0, 7.0, 33.0, 77.0, 123.0, -250.0}) {
    Surface source(17, 17, kBlack);
    for (int y = 0; y < 17; ++y)
      for (int x = 0; x < 17; ++x) source.SetPixelV(x, y, 1000 * (y + 1) + x);
    Surface target(25, 25, kEmpty);
    rotateSurface(source, target, {.angleDegrees = degrees});
    const double t = degrees * std::acos(-1.0) / 180;
    for (int y = -12; y <= 12; ++y)
      for (int x = -12; x <= 12; ++x) {
        const int fromX = 8 + static_cast<int>(std::lround(x * std::cos(t) - y * std::sin(t)));
        const int fromY = 8 + static_cast<int>(std::lround(x * std::sin(t) + y * std::cos(t)));
        const Color expected = source.contains(fromX, fromY) ? source.GetPixel(fromX, fromY) : kEmpty;
        EXPECT_EQ(target.GetPixel(12 + x, 12 + y), expected) << degrees << ": " << x << ", " << y;
      }
  }
}

TEST(RotateSurface, TheMiddleMayGoElsewhere) {
  Surface target(5, 5, kEmpty);
  rotateSurface(surfaceOf({"abc"}), target, {.centerX = 3, .centerY = 4});
  EXPECT_EQ(rowsOf(target), (Rows{"-----", "-----", "-----", "-----", "--abc"}));
}

TEST(RotateSurface, PicturesWithoutPixelsAreNoError) {
  Surface target(3, 3, kEmpty);
  rotateSurface(Surface(0, 0), target, {.angleDegrees = 10});
  EXPECT_EQ(rowsOf(target), Rows(3, "---"));
  Surface nothing(0, 0);
  rotateSurface(target, nothing, {.angleDegrees = 10});
}

TEST(RotateSurface, TheDiagonalIsRoundedToTheNearestPixel) {
  EXPECT_EQ(diagonalOf(16, 16), 23);
  EXPECT_EQ(diagonalOf(24, 24), 34);
  EXPECT_EQ(diagonalOf(32, 32), 45);
  EXPECT_EQ(diagonalOf(48, 48), 68);
}

TEST(Sampling, AWholePositionIsOnePixel) {
  const Surface surface = surfaceOf({"ab", "cd"});
  EXPECT_EQ(sampleBilinear(surface, 1, 0), 'b');
  EXPECT_EQ(sampleBilinear(surface, 1.0005, 0.0005), 'b');
  EXPECT_EQ(sampleColumn(surface, 0, 1), 'c');
}

TEST(Sampling, ABetweenPositionMixesFourPixelsByDistance) {
  Surface surface(2, 2);
  surface.SetPixelV(0, 0, rgb(0, 0, 100));
  surface.SetPixelV(1, 0, rgb(200, 0, 100));
  surface.SetPixelV(0, 1, rgb(0, 40, 100));
  surface.SetPixelV(1, 1, rgb(200, 40, 100));
  EXPECT_EQ(sampleBilinear(surface, 0.25, 0.5), rgb(50, 20, 100));
  EXPECT_EQ(sampleColumn(surface, 0, 0.75), rgb(0, 30, 100));
}

TEST(Sampling, PixelsOutsideDoNotCount) {
  const Surface surface = surfaceOf({"ab", "cd"});
  EXPECT_EQ(sampleBilinear(surface, 1.5, 0), 'b');
  EXPECT_EQ(sampleBilinear(surface, -0.5, 1), 'c');
  EXPECT_EQ(sampleBilinear(surface, 0, 1.5), 'c');
  EXPECT_EQ(sampleBilinear(surface, 5, 5), kNoColor);
}

TEST(Sampling, ChannelsAreMixedAloneAndRoundedTiesToEven) {
  EXPECT_EQ(mixColors(rgb(1, 3, 255), 0.5, rgb(2, 4, 255), 0.5), rgb(2, 4, 255));
  EXPECT_EQ(mixColors(rgb(10, 20, 30), 0.75, rgb(50, 0, 30), 0.25), rgb(20, 15, 30));
  EXPECT_EQ(mixColors(kBlack, 1, kWhite, 0), kBlack);
}

}  // namespace
}  // namespace gp
