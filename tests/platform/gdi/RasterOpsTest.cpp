#include "platform/gdi/GoldenFile.h"
#include "platform/gdi/RasterOps.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace gp {
namespace {

using test::GoldenCase;
using test::hexPicture;
using test::parseHex;
using test::samePixels;

constexpr RasterOp kAllOps[] = {RasterOp::SRCCOPY, RasterOp::SRCAND, RasterOp::SRCINVERT, RasterOp::SRCPAINT};

std::uint32_t combined(std::uint32_t target, std::uint32_t source, RasterOp op) {
  if (op == RasterOp::SRCAND) return target & source;
  if (op == RasterOp::SRCINVERT) return target ^ source;
  if (op == RasterOp::SRCPAINT) return target | source;
  return source;
}

// Pixel by pixel, from a copy of the source.
void slowBitBlt(Surface& target, int x, int y, int width, int height, const Surface& source, int sourceX, int sourceY,
                RasterOp op) {
  const Surface from = source;
  const int step = width < 0 ? -1 : 1;
  const int rowStep = height < 0 ? -1 : 1;
  for (int j = 0; j != height; j += rowStep)
    for (int i = 0; i != width; i += step) {
      if (!target.contains(x + i, y + j) || !from.contains(sourceX + i, sourceY + j)) continue;
      std::uint32_t& to = target.rowForWriting(y + j, x + i, x + i + 1)[x + i];
      to = combined(to, from.row(sourceY + j)[sourceX + i], op);
    }
}

Surface randomSurface(int width, int height, std::mt19937& random) {
  Surface s(width, height);
  for (int y = 0; y < height; ++y) {
    std::uint32_t* row = s.rowForWriting(y, 0, width);
    for (int x = 0; x < width; ++x) row[x] = static_cast<std::uint32_t>(random());
  }
  return s;
}

RasterOp opOf(const GoldenCase& c) { return static_cast<RasterOp>(parseHex(c.text("rop"))); }

TEST(RasterOps, EveryPairOfValuesCombinesAsOnThePlatformInAllFourBytes) {
  int checked = 0;
  for (const GoldenCase& c : test::readGoldenFile("rasterops.txt")) {
    if (!c.startsWith("pairs_")) continue;
    for (const std::string& row : c.rows) {
      Surface source(1, 1);
      Surface target(1, 1);
      source.rowForWriting(0, 0, 1)[0] = parseHex(row.substr(0, 8));
      target.rowForWriting(0, 0, 1)[0] = parseHex(row.substr(9, 8));
      EXPECT_TRUE(BitBlt(target, 0, 0, 1, 1, source, 0, 0, opOf(c)));
      EXPECT_EQ(target.pixels()[0], parseHex(row.substr(18, 8))) << c.name << ' ' << row;
      ++checked;
    }
  }
  std::printf("rasterops.txt: %d pairs checked\n", checked);
  EXPECT_EQ(checked, 4 * 14 * 14);
}

TEST(RasterOps, ClippingTakesSourceAndTargetTogetherAsOnThePlatform) {
  const auto cases = test::readGoldenFile("rasterops.txt");
  const Surface source = hexPicture(test::findCase(cases, "clip_source"));
  const Surface ground = hexPicture(test::findCase(cases, "clip_destination"));
  int checked = 0;
  for (const GoldenCase& c : cases) {
    const bool overlapping = c.startsWith("overlap_");
    if (!overlapping && !c.has("ret")) continue;
    Surface target = ground;
    EXPECT_TRUE(BitBlt(target, c.number("dx"), c.number("dy"), c.number("cw"), c.number("ch"),
                       overlapping ? target : source, c.number("sx"), c.number("sy"), opOf(c)));
    EXPECT_TRUE(samePixels(target, hexPicture(c))) << c.name;
    ++checked;
  }
  std::printf("rasterops.txt: %d clipped and overlapping cases checked\n", checked);
  EXPECT_EQ(checked, 4 * 13 + 4);
}

TEST(RasterOps, RowLoopsEqualPixelLoopsForAnyRectangle) {
  std::mt19937 random(20);
  std::uniform_int_distribution<int> position(-9, 20);
  for (int i = 0; i < 2000; ++i) {
    const Surface source = randomSurface(1 + i % 13, 1 + i % 7, random);
    Surface target = randomSurface(1 + i % 11, 1 + i % 9, random);
    Surface slow = target;
    const RasterOp op = kAllOps[i % 4];
    const int p[] = {position(random), position(random), position(random),
                     position(random), position(random), position(random)};
    const bool within = i % 3 == 0;
    BitBlt(target, p[0], p[1], p[2], p[3], within ? target : source, p[4], p[5], op);
    slowBitBlt(slow, p[0], p[1], p[2], p[3], within ? slow : source, p[4], p[5], op);
    ASSERT_TRUE(samePixels(target, slow)) << "round " << i;
  }
}

TEST(RasterOps, PositionsAtTheEndsOfTheNumbersDoNothing) {
  constexpr int kLeast = std::numeric_limits<int>::min();
  constexpr int kMost = std::numeric_limits<int>::max();
  const Surface source(4, 4, kBlack);
  for (const int p : {kLeast, kMost}) {
    Surface target(4, 4);
    EXPECT_TRUE(BitBlt(target, p, p, kMost, kMost, source, 0, 0, RasterOp::SRCCOPY));
    EXPECT_TRUE(BitBlt(target, 0, 0, kLeast, kLeast, source, p, p, RasterOp::SRCCOPY));
    EXPECT_EQ(target.GetPixel(1, 1), kWhite);
  }
}

TEST(RasterOps, AnUnknownCodeIsRefused) {
  Surface target(2, 2);
  const Surface source(2, 2, kBlack);
  EXPECT_FALSE(BitBlt(target, 0, 0, 2, 2, source, 0, 0, static_cast<RasterOp>(1)));
  EXPECT_EQ(target.GetPixel(0, 0), kWhite);
}

}  // namespace
}  // namespace gp
