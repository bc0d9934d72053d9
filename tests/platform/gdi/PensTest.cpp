#include "platform/gdi/GoldenFile.h"
#include "platform/gdi/Pens.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>

namespace gp {
namespace {

using test::cellsOf;
using test::GoldenCase;
using test::joined;
using test::kBrushCell;
using test::kPenCell;
using test::samePixels;

int countOf(const Surface& s, Color color) {
  int count = 0;
  for (int y = 0; y < s.height(); ++y)
    for (int x = 0; x < s.width(); ++x) count += s.GetPixel(x, y) == color;
  return count;
}

TEST(FillBox, EqualCornersFillOnePixel) {
  Surface s(5, 5);
  FillBox(s, 2, 3, 2, 3, kBlack);
  EXPECT_EQ(s.GetPixel(2, 3), kBlack);
  EXPECT_EQ(countOf(s, kBlack), 1);
}

TEST(FillBox, BothCornersAreIncludedInAnyOrder) {
  const int corners[][4] = {{1, 2, 4, 3}, {4, 3, 1, 2}, {1, 3, 4, 2}, {4, 2, 1, 3}};
  for (const auto& [x1, y1, x2, y2] : corners) {
    Surface s(6, 6);
    FillBox(s, x1, y1, x2, y2, kBlack);
    EXPECT_EQ(countOf(s, kBlack), 8);
    EXPECT_EQ(s.GetPixel(1, 2), kBlack);
    EXPECT_EQ(s.GetPixel(4, 3), kBlack);
  }
}

TEST(FillBox, RunsPastTheEdgesWithoutHarm) {
  Surface s(4, 4);
  FillBox(s, 3, 3, 8, 8, kBlack);
  EXPECT_EQ(countOf(s, kBlack), 1);
  FillBox(s, std::numeric_limits<int>::min(), 0, std::numeric_limits<int>::max(), 0, kBlack);
  EXPECT_EQ(countOf(s, kBlack), 5);
  FillBox(s, 5, 5, 9, 9, kGround);
  EXPECT_EQ(countOf(s, kGround), 0);
}

TEST(DrawLine, AThinLineOmitsItsEndPixel) {
  Surface s(8, 8);
  DrawLine(s, 1, 1, 5, 1, kBlack);
  EXPECT_EQ(s.GetPixel(4, 1), kBlack);
  EXPECT_EQ(s.GetPixel(5, 1), kWhite);
  EXPECT_EQ(countOf(s, kBlack), 4);
}

TEST(DrawLine, AThinLineWithoutLengthDrawsNothing) {
  Surface s(4, 4);
  DrawLine(s, 1, 1, 1, 1, kBlack);
  EXPECT_EQ(countOf(s, kBlack), 0);
}

TEST(DrawLine, AWidePenCoversItsEnd) {
  Surface s(12, 12);
  s.penWidth = 3;
  DrawLine(s, 3, 5, 8, 5, kBlack);
  EXPECT_EQ(s.GetPixel(8, 5), kBlack);
  EXPECT_EQ(s.GetPixel(8, 4), kBlack);
  EXPECT_EQ(s.GetPixel(9, 5), kBlack);
}

TEST(DrawBox, EqualCornersDrawOnePixel) {
  Surface s(5, 5);
  DrawBox(s, 2, 2, 2, 2, kBlack);
  EXPECT_EQ(s.GetPixel(2, 2), kBlack);
  EXPECT_EQ(countOf(s, kBlack), 1);
}

TEST(DrawBox, GoesThroughBothCornersInAnyOrder) {
  Surface s(12, 12);
  DrawBox(s, 2, 3, 7, 9, kBlack);
  EXPECT_EQ(countOf(s, kBlack), 2 * (6 + 7) - 4);
  EXPECT_EQ(s.GetPixel(7, 9), kBlack);
  Surface turned(12, 12);
  DrawBox(turned, 7, 9, 2, 3, kBlack);
  EXPECT_TRUE(samePixels(s, turned));
}

TEST(DrawBox, SolidFillModeFillsTheInsideWithTheFillColour) {
  Surface s(8, 8);
  s.fillMode = FillMode::Solid;
  s.fillColor = kGround;
  DrawBox(s, 1, 1, 4, 4, kBlack);
  EXPECT_EQ(countOf(s, kGround), 4);
  EXPECT_EQ(countOf(s, kBlack), 12);
}

// The pictures state the centre, radius and aspect from which their boxes were rounded.
TEST(DrawEllipse, EqualsThePlatformsPixelsFromMiddleRadiusAndAspect) {
  int checked = 0;
  for (const GoldenCase& c : test::readGoldenFile("ellipses_hollow.txt")) {
    Surface s(c.width(), c.height());
    s.penWidth = c.number("pen");
    DrawEllipse(s, c.number("cx"), c.number("cy"), c.real("radius"), c.real("aspect"), kPenCell);
    EXPECT_EQ(joined(cellsOf(s)), joined(c.rows)) << c.name;
    ++checked;
  }
  std::printf("ellipses_hollow.txt: %d reference cases checked\n", checked);
  EXPECT_EQ(checked, 624);
}

TEST(DrawEllipse, SolidFillModeFillsTheInsideWithTheFillColour) {
  Surface s(11, 11);
  s.fillMode = FillMode::Solid;
  s.fillColor = kBrushCell;
  DrawEllipse(s, 5, 5, 3, 1, kPenCell);
  EXPECT_EQ(joined(cellsOf(s)),
            "...........\n...........\n....###....\n...#ooo#...\n..#ooooo#..\n..#ooooo#..\n..#ooooo#..\n...#ooo#...\n"
            "....###....\n...........\n...........\n");
}

std::vector<std::string> splitAtSix(const GoldenCase& c) {
  std::vector<std::string> cells[2];
  const double angles[][2] = {{0, 6}, {6, 2 * std::acos(-1.0)}};
  for (int i = 0; i < 2; ++i) {
    Surface s(c.width(), c.height());
    s.penWidth = c.number("pen");
    DrawEllipseArc(s, c.number("cx"), c.number("cy"), c.real("radius"), c.real("aspect"), kPenCell, angles[i][0],
                   angles[i][1]);
    cells[i] = cellsOf(s);
  }
  for (std::size_t y = 0; y < cells[0].size(); ++y)
    for (std::size_t x = 0; x < cells[0][y].size(); ++x)
      cells[0][y][x] = ".123"[(cells[0][y][x] == '#') + 2 * (cells[1][y][x] == '#')];
  return cells[0];
}

TEST(DrawEllipseArc, TheTwoPartsOfAnEllipseSplitAtSixEqualThePlatformsPixels) {
  int checked = 0;
  for (const GoldenCase& c : test::readGoldenFile("arcs.txt")) {
    if (!c.startsWith("arc_")) continue;
    EXPECT_EQ(joined(splitAtSix(c)), joined(c.rows)) << c.name;
    ++checked;
  }
  std::printf("arcs.txt: %d reference cases checked\n", checked);
  EXPECT_EQ(checked, 594);
}

TEST(DrawEllipseArc, ClosingAtZeroEqualsClosingAfterAWholeTurn) {
  for (double radius = 0.5; radius < 24; radius += 0.5) {
    Surface a(60, 60);
    Surface b(60, 60);
    DrawEllipseArc(a, 30.5, 30, radius, 0.7, kBlack, 6, 0);
    DrawEllipseArc(b, 30.5, 30, radius, 0.7, kBlack, 6, 2 * std::acos(-1.0));
    EXPECT_TRUE(samePixels(a, b)) << radius;
  }
}

TEST(DrawEllipse, ImpossibleMeasuresDrawNothing) {
  Surface s(9, 9);
  const double impossible[] = {-1, std::nan(""), std::numeric_limits<double>::infinity(), 1e300};
  for (const double v : impossible) {
    DrawEllipse(s, 4, 4, v, 1, kBlack);
    DrawEllipse(s, v * 1e9, 4, 3, 1, kBlack);
    DrawEllipseArc(s, 4, 4, v, 1, kBlack, 0, 6);
  }
  DrawEllipse(s, 4, 4, 3, -1, kBlack);
  DrawEllipse(s, 4, 4, 3, std::nan(""), kBlack);
  DrawLine(s, 0, 0, std::numeric_limits<int>::max(), 5, kBlack);
  DrawBox(s, std::numeric_limits<int>::min(), 0, std::numeric_limits<int>::max(), 5, kBlack);
  EXPECT_EQ(countOf(s, kWhite), 81);
}

TEST(Pens, TheDottedPenDrawsThreePixelsAndLeavesOutThree) {
  Surface s(16, 1);
  s.penStyle = PenStyle::Dot;
  DrawLine(s, 0, 0, 16, 0, kPenCell);
  EXPECT_EQ(joined(cellsOf(s)), "###...###...###.\n");
}

TEST(Pens, InvertModeInvertsEveryPixelOfAShapeOnce) {
  for (const int width : {1, 2, 5}) {
    Surface s(40, 40, 0x123456);
    s.drawMode = DrawMode::Invert;
    s.penWidth = width;
    DrawBox(s, 5, 5, 30, 5, kBlack);
    DrawEllipse(s, 20, 25, 9, 0.1, kBlack);
    Surface copied(40, 40, 0x123456);
    copied.penWidth = width;
    DrawBox(copied, 5, 5, 30, 5, 0xEDCBA9);
    DrawEllipse(copied, 20, 25, 9, 0.1, 0xEDCBA9);
    EXPECT_TRUE(samePixels(s, copied)) << width;
  }
}

TEST(Bands, AreRemovedByClearingTheDrawing) {
  Surface s(40, 40, kGround);
  s.SetPixelV(3, 3, kBlack);
  s.makePersistent();
  const Surface before = s;
  BandLine(s, 1, 1, 38, 20);
  BandBox(s, 3, 3, 30, 30);
  BandEllipse(s, 16.5, 16.5, 13, 0.8);
  EXPECT_FALSE(samePixels(s, before));
  s.clearDrawing();
  EXPECT_TRUE(samePixels(s, before));
}

TEST(Bands, AreDottedAndInvertWhatIsThere) {
  Surface s(10, 2, 0x112233);
  BandLine(s, 0, 0, 9, 0);
  for (int x = 0; x < 10; ++x) EXPECT_EQ(s.GetPixel(x, 0), x / 3 % 2 == 0 && x < 9 ? 0xEEDDCC : 0x112233) << x;
}

TEST(Bands, LeaveModeAndPenAtCopyAndSolid) {
  Surface s(10, 10);
  s.penWidth = 4;
  s.penStyle = PenStyle::Dot;
  s.drawMode = DrawMode::Invert;
  s.fillMode = FillMode::Solid;
  BandBox(s, 1, 1, 8, 8);
  EXPECT_EQ(s.penStyle, PenStyle::Solid);
  EXPECT_EQ(s.drawMode, DrawMode::Copy);
  EXPECT_EQ(s.penWidth, 4);
  EXPECT_EQ(s.fillMode, FillMode::Solid);
  EXPECT_EQ(s.GetPixel(4, 4), kWhite);
}

}  // namespace
}  // namespace gp
