#include "platform/gdi/GoldenFile.h"
#include "platform/gdi/Stretch.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace gp {
namespace {

using test::GoldenCase;
using test::hexPicture;
using test::samePixels;

Surface noise(int width, int height, unsigned seed) {
  std::mt19937 random(seed);
  Surface s(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) s.SetPixelV(x, y, static_cast<Color>(random() & kColorBits));
  return s;
}

// Whole pictures of `files` in the modes 1 and 3; the source precedes its results.
int expectWholePictures(const std::string& file) {
  int checked = 0;
  Surface source;
  for (const GoldenCase& c : test::readGoldenFile(file)) {
    if (c.text("role") == "source") source = hexPicture(c);
    if (c.text("role") == "source" || c.number("mode") == 4) continue;
    Surface target(c.width(), c.height());
    SetStretchBltMode(target, static_cast<StretchMode>(c.number("mode")));
    EXPECT_TRUE(StretchBlt(target, 0, 0, c.width(), c.height(), source, 0, 0, source.width(), source.height(),
                           RasterOp::SRCCOPY));
    EXPECT_TRUE(samePixels(target, hexPicture(c))) << file << ' ' << c.name;
    ++checked;
  }
  std::printf("%s: %d reference cases checked\n", file.c_str(), checked);
  return checked;
}

int valueOr(const GoldenCase& c, const std::string& key, int otherwise) {
  return c.has(key) ? c.number(key) : otherwise;
}

TEST(Stretch, WholePicturesEqualThePlatformsPixels) {
  EXPECT_EQ(expectWholePictures("stretch_color.txt"), 32);
  EXPECT_EQ(expectWholePictures("stretch_mask32.txt"), 32);
  EXPECT_EQ(expectWholePictures("stretch_magnify.txt"), 8);
}

TEST(Stretch, MirroredPicturesEqualThePlatformsPixels) {
  constexpr Color kGreen = 0x00FF00;
  int checked = 0;
  Surface source;
  for (const GoldenCase& c : test::readGoldenFile("stretch_mirror.txt")) {
    if (c.text("role") == "source") source = hexPicture(c);
    if (c.text("role") == "source" || c.number("mode") == 4) continue;
    Surface target(c.width(), c.height(), kGreen);
    SetStretchBltMode(target, static_cast<StretchMode>(c.number("mode")));
    StretchBlt(target, valueOr(c, "dx", 0), valueOr(c, "dy", 0), valueOr(c, "dw", c.width()),
               valueOr(c, "dh", c.height()), source, valueOr(c, "sx", 0), valueOr(c, "sy", 0),
               valueOr(c, "sw", source.width()), valueOr(c, "sh", source.height()), RasterOp::SRCCOPY);
    EXPECT_TRUE(samePixels(target, hexPicture(c))) << c.name;
    ++checked;
  }
  std::printf("stretch_mirror.txt: %d reference cases checked\n", checked);
  EXPECT_EQ(checked, 80);
}

// The simple rule for one pixel: the last source column, or the first source row, whose centre falls into it; if there
// is none, the one under its centre.
int slowSource(int i, int target, int source, bool first) {
  int found = -1;
  for (int s = 0; s < source; ++s) {
    const int t = static_cast<int>(std::ceil((2.0 * s + 1) * target / (2.0 * source))) - 1;
    if (t == i && (found < 0 || !first)) found = s;
  }
  return target < source ? found : static_cast<int>(std::ceil((2.0 * i + 1) * source / (2.0 * target))) - 1;
}

TEST(Stretch, KeepOrDropEqualsThePixelLoopForManySizesAndDirections) {
  for (int source = 1; source <= 12; ++source)
    for (int target = 1; target <= 12; ++target)
      for (int flips = 0; flips < 4; ++flips) {
        const Surface from = noise(source, 13 - source, 7);
        Surface to(target, 13 - target);
        const bool flipX = flips & 1;
        const bool flipY = flips & 2;
        StretchBlt(to, flipX ? target - 1 : 0, flipY ? to.height() - 1 : 0, flipX ? -target : target,
                   flipY ? -to.height() : to.height(), from, 0, 0, source, from.height(), RasterOp::SRCCOPY);
        for (int y = 0; y < to.height(); ++y)
          for (int x = 0; x < target; ++x) {
            const int sx = slowSource(flipX ? target - 1 - x : x, target, source, false);
            const int sy = slowSource(flipY ? to.height() - 1 - y : y, to.height(), from.height(), true);
            ASSERT_EQ(to.GetPixel(x, y), from.GetPixel(sx, sy)) << source << "->" << target << " at " << x << ',' << y;
          }
      }
}

// The expected value of one halftone channel, in real numbers: the weight of source pixel s in target pixel i of one
// axis.
double slowWeight(int i, int s, int target, int source) {
  if (target < source) {
    const double begin = std::max<double>(s, 1.0 * i * source / target);
    const double end = std::min<double>(s + 1, 1.0 * (i + 1) * source / target);
    return std::max(0.0, end - begin) * target / source;
  }
  const double centre = std::clamp((i + 0.5) * source / target - 0.5, 0.0, source - 1.0);
  return std::max(0.0, 1 - std::abs(centre - s));
}

double slowHalftone(const Surface& from, int x, int y, int width, int height, int (*channel)(Color)) {
  double sum = 0;
  for (int j = 0; j < from.height(); ++j)
    for (int i = 0; i < from.width(); ++i)
      sum += slowWeight(x, i, width, from.width()) * slowWeight(y, j, height, from.height()) *
             channel(from.GetPixel(i, j));
  return sum;
}

TEST(Stretch, HalftoneAveragesWhenReducingAndInterpolatesWhenEnlarging) {
  const int sizes[][4] = {{16, 16, 48, 48}, {48, 48, 16, 16}, {7, 9, 3, 20},
                          {5, 4, 5, 4},     {3, 2, 1, 1},     {32, 32, 24, 24}};
  for (const auto& [sw, sh, tw, th] : sizes) {
    const Surface from = noise(sw, sh, 99);
    Surface to(tw, th);
    to.stretchMode = StretchMode::Halftone;
    ASSERT_TRUE(StretchBlt(to, 0, 0, tw, th, from, 0, 0, sw, sh, RasterOp::SRCCOPY));
    for (int y = 0; y < th; ++y)
      for (int x = 0; x < tw; ++x)
        for (const auto channel : {redOf, greenOf, blueOf})
          // Rounding to the nearest, and a small tolerance for the sums of real numbers.
          ASSERT_NEAR(channel(to.GetPixel(x, y)), slowHalftone(from, x, y, tw, th, channel), 0.5 + 1e-6);
  }
}

TEST(Stretch, HalftoneHalvesByTheMeanOfFourPixels) {
  Surface from(2, 2, kBlack);
  from.SetPixelV(0, 0, kWhite);
  from.SetPixelV(1, 1, rgb(255, 0, 0));
  Surface to(1, 1);
  to.stretchMode = StretchMode::Halftone;
  StretchBlt(to, 0, 0, 1, 1, from, 0, 0, 2, 2, RasterOp::SRCCOPY);
  EXPECT_EQ(to.GetPixel(0, 0), rgb(128, 64, 64));
}

TEST(Stretch, APictureIsMirroredOntoItself) {
  Surface s = noise(9, 5, 3);
  const Surface before = s;
  StretchBlt(s, 8, 0, -9, 5, s, 0, 0, 9, 5, RasterOp::SRCCOPY);
  for (int x = 0; x < 9; ++x) EXPECT_EQ(s.GetPixel(x, 2), before.GetPixel(8 - x, 2));
}

TEST(Stretch, PixelsOutsideTheSourceLeaveTheTargetAlone) {
  const Surface from(2, 2, kBlack);
  Surface to(8, 8);
  StretchBlt(to, 0, 0, 8, 8, from, -1, 0, 4, 4, RasterOp::SRCCOPY);
  EXPECT_EQ(to.GetPixel(1, 0), kWhite);
  EXPECT_EQ(to.GetPixel(2, 0), kBlack);
  EXPECT_EQ(to.GetPixel(5, 3), kBlack);
  EXPECT_EQ(to.GetPixel(6, 0), kWhite);
  EXPECT_EQ(to.GetPixel(5, 4), kWhite);
}

TEST(Stretch, RasterOperationsCombineWithTheTarget) {
  const Surface from(1, 1, 0x00FF00);
  Surface to(3, 3, 0x0F0F0F);
  StretchBlt(to, 0, 0, 2, 3, from, 0, 0, 1, 1, RasterOp::SRCINVERT);
  EXPECT_EQ(to.GetPixel(1, 2), 0x0FF00F);
  EXPECT_EQ(to.GetPixel(2, 2), 0x0F0F0F);
}

TEST(Stretch, TheDefaultModeIsKeepOrDropAndSettingItTellsTheFormerOne) {
  Surface s(1, 1);
  EXPECT_EQ(SetStretchBltMode(s, StretchMode::Halftone), StretchMode::KeepOrDrop);
  EXPECT_EQ(SetStretchBltMode(s, StretchMode::BlackOnWhite), StretchMode::Halftone);
}

TEST(Stretch, ImpossibleLengthsAndCodesAreRefused) {
  const Surface from(2, 2, kBlack);
  Surface to(2, 2);
  EXPECT_FALSE(StretchBlt(to, 0, 0, 1 << 30, 2, from, 0, 0, 2, 2, RasterOp::SRCCOPY));
  EXPECT_FALSE(StretchBlt(to, 0, 0, 2, 2, from, 0, 0, 2, 2, static_cast<RasterOp>(7)));
  EXPECT_TRUE(StretchBlt(to, 0, 0, 0, 2, from, 0, 0, 2, 2, RasterOp::SRCCOPY));
  EXPECT_TRUE(StretchBlt(to, std::numeric_limits<int>::max(), 0, 2, 2, from, 0, 0, 2, 2, RasterOp::SRCCOPY));
  EXPECT_EQ(to.GetPixel(0, 0), kWhite);
}

}  // namespace
}  // namespace gp
