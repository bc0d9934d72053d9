// Compares our shapes with pictures of the platform's own drawing.
#include "platform/gdi/GoldenFile.h"
#include "platform/gdi/Shapes.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <map>

namespace gp {
namespace {

using test::cellsOf;
using test::GoldenCase;
using test::joined;
using test::kBrushCell;
using test::kPenCell;
using test::readGoldenFile;

ShapeBox boxOf(const GoldenCase& c) {
  return {c.number("left"), c.number("top"), c.number("right"), c.number("bottom")};
}

Surface canvasFor(const GoldenCase& c) {
  Surface s(c.width(), c.height());
  s.penWidth = c.number("pen");
  s.fillColor = kBrushCell;
  s.fillMode = c.has("filled") && c.number("filled") == 1 ? FillMode::Solid : FillMode::Transparent;
  return s;
}

// Each of these has brush colour outside its tips; see the README of the pictures.
bool spillsBrush(const GoldenCase& c) {
  for (const char* number : {"filled_080", "filled_081", "filled_082", "filled_083"})
    if (c.startsWith(number)) return true;
  return false;
}

using Drawing = std::function<void(Surface&, const GoldenCase&)>;
using Choice = std::function<bool(const GoldenCase&)>;

void expectEqualPictures(const std::string& file, const Choice& isChosen, const Drawing& draw, int expectedCases) {
  int checked = 0;
  for (const GoldenCase& c : readGoldenFile(file)) {
    if (!isChosen(c)) continue;
    Surface s = canvasFor(c);
    draw(s, c);
    EXPECT_EQ(joined(cellsOf(s)), joined(c.rows)) << file << ' ' << c.name;
    ++checked;
  }
  std::printf("%s: %d reference cases checked\n", file.c_str(), checked);
  EXPECT_EQ(checked, expectedCases);
}

bool isThin(const GoldenCase& c) { return c.number("pen") == 1; }
bool always(const GoldenCase&) { return true; }

void drawLine(Surface& s, const GoldenCase& c) {
  LineTo(s, {c.number("x1"), c.number("y1")}, {c.number("x2"), c.number("y2")}, kPenCell);
}

void drawRectangle(Surface& s, const GoldenCase& c) {
  Rectangle(s, {c.number("x1"), c.number("y1"), c.number("x2") + 1, c.number("y2") + 1}, kPenCell);
}

void drawEllipse(Surface& s, const GoldenCase& c) { Ellipse(s, boxOf(c), kPenCell); }

void drawArc(Surface& s, const GoldenCase& c, const std::string& start, const std::string& end,
             ArcDirection direction) {
  const auto [x1, y1] = c.position(start);
  const auto [x2, y2] = c.position(end);
  Arc(s, boxOf(c), {x1, y1}, {x2, y2}, kPenCell, direction);
}

void drawQuarter(Surface& s, const GoldenCase& c) {
  drawArc(s, c, "start", "end", c.text("dir") == "cw" ? ArcDirection::Clockwise : ArcDirection::CounterClockwise);
}

std::vector<std::string> twoArcs(const GoldenCase& c) {
  Surface first = canvasFor(c);
  Surface second = canvasFor(c);
  drawArc(first, c, "a1start", "a1end", ArcDirection::CounterClockwise);
  drawArc(second, c, "a2start", "a2end", ArcDirection::CounterClockwise);
  std::vector<std::string> rows = cellsOf(first);
  const std::vector<std::string> others = cellsOf(second);
  for (std::size_t y = 0; y < rows.size(); ++y)
    for (std::size_t x = 0; x < rows[y].size(); ++x)
      rows[y][x] = ".123"[(rows[y][x] == '#') + 2 * (others[y][x] == '#')];
  return rows;
}

TEST(Shapes, ThinLinesEqualThePlatformsPixels) { expectEqualPictures("lines.txt", isThin, drawLine, 76); }

TEST(Shapes, RectanglesOfEveryPenWidthEqualThePlatformsPixels) {
  expectEqualPictures("boxes.txt", always, drawRectangle, 432);
}

TEST(Shapes, HollowEllipsesOfEveryPenWidthEqualThePlatformsPixels) {
  expectEqualPictures("ellipses_hollow.txt", always, drawEllipse, 624);
}

TEST(Shapes, FilledEllipsesEqualThePlatformsPixels) {
  expectEqualPictures(
      "ellipses_filled.txt", [](const GoldenCase& c) { return !spillsBrush(c); }, drawEllipse, 190);
}

TEST(Shapes, EllipsesOfEverySizeEqualThePlatformsPixels) {
  expectEqualPictures("ellipses_boxes.txt", always, drawEllipse, 564);
}

TEST(Shapes, QuarterArcsInBothDirectionsEqualThePlatformsPixels) {
  expectEqualPictures("arcs_quarter.txt", always, drawQuarter, 288);
}

TEST(Shapes, ArcsThatSplitAnEllipseEqualThePlatformsPixels) {
  int checked = 0;
  for (const GoldenCase& c : readGoldenFile("arcs.txt")) {
    EXPECT_EQ(joined(twoArcs(c)), joined(c.rows)) << c.name;
    ++checked;
  }
  std::printf("arcs.txt: %d reference cases checked\n", checked);
  EXPECT_EQ(checked, 792);
}

TEST(Shapes, SlenderEllipsesEqualThePlatformsOutlineWhereItSpillsBrushColour) {
  int checked = 0;
  for (const GoldenCase& c : readGoldenFile("ellipses_filled.txt")) {
    if (!spillsBrush(c)) continue;
    Surface s = canvasFor(c);
    drawEllipse(s, c);
    const std::vector<std::string> drawn = cellsOf(s);
    for (std::size_t y = 0; y < drawn.size(); ++y)
      for (std::size_t x = 0; x < drawn[y].size(); ++x)
        EXPECT_EQ(drawn[y][x] == '#', c.rows[y][x] == '#') << c.name << ' ' << x << ',' << y;
    ++checked;
  }
  EXPECT_EQ(checked, 8);
}

// Pixels that a slanted line has too many or too few.
struct Difference {
  int pixels = 0, missing = 0, extra = 0, far = 0;
};

bool touches(const std::vector<std::string>& rows, int x, int y) {
  for (int j = std::max(y - 1, 0); j <= std::min<int>(y + 1, static_cast<int>(rows.size()) - 1); ++j)
    for (int i = std::max(x - 1, 0); i <= std::min<int>(x + 1, static_cast<int>(rows[j].size()) - 1); ++i)
      if (rows[j][i] == '#') return true;
  return false;
}

Difference differenceOf(const std::vector<std::string>& drawn, const std::vector<std::string>& reference) {
  Difference d;
  for (int y = 0; y < static_cast<int>(drawn.size()); ++y)
    for (int x = 0; x < static_cast<int>(drawn[y].size()); ++x) {
      const bool ours = drawn[y][x] == '#';
      const bool theirs = reference[y][x] == '#';
      d.pixels += theirs;
      d.missing += theirs && !ours;
      d.extra += ours && !theirs;
      if (ours != theirs && !touches(ours ? reference : drawn, x, y)) ++d.far;
    }
  return d;
}

// The platform converts a wide line to a polygon with corners on whole pixels, which shifts its edges by up to a pixel
// and makes the same line look different in different directions. Ours is a round nib moved along the thin line: each
// pixel that only one of them has must touch the other, and over all lines of a width the areas must agree.
TEST(Shapes, WideLinesCoverThePlatformsAreaButForSinglePixelsAtTheEdge) {
  std::map<int, Difference> byWidth;
  for (const GoldenCase& c : readGoldenFile("lines.txt")) {
    if (isThin(c)) continue;
    Surface s = canvasFor(c);
    drawLine(s, c);
    const Difference d = differenceOf(cellsOf(s), c.rows);
    EXPECT_EQ(d.far, 0) << c.name;
    Difference& sum = byWidth[c.number("pen")];
    sum.pixels += d.pixels;
    sum.missing += d.missing;
    sum.extra += d.extra;
  }
  constexpr double kAreaTolerance = 0.06;
  for (const auto& [width, d] : byWidth) {
    EXPECT_LE(std::abs(d.extra - d.missing), kAreaTolerance * d.pixels) << "width " << width;
    std::printf("lines.txt: width %d, %d pixels, %d missing, %d extra\n", width, d.pixels, d.missing, d.extra);
  }
  EXPECT_EQ(byWidth.size(), 5u);
}

}  // namespace
}  // namespace gp
