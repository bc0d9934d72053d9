#include "document/ui/RegionMark.h"
#include "drawing/RegionBox.h"
#include "platform/gdi/Surface.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace gp {
namespace {

constexpr int kCells = 16;
constexpr QRgb kBlackLine = 0xFF000000;
constexpr QRgb kWhiteLine = 0xFFFFFFFF;

// A region of whole cells, from the first to behind the last.
RegionOutline outlineOfCells(int x1, int y1, int x2, int y2, int magnification, bool hasHandles = true) {
  return {x1 * magnification, y1 * magnification, x2 * magnification, y2 * magnification, true, hasHandles};
}

QImage painted(const RegionOutline& outline, const ScreenScale& scale, int line, QRgb ground) {
  QImage image(scale.deviceSize(), scale.deviceSize(), QImage::Format_RGB32);
  image.fill(ground);
  QPainter painter(&image);
  paintRegionMark(painter, outline, scale, line);
  return image;
}

int pixelsOf(const QImage& image, const QRect& part, QRgb color) {
  int count = 0;
  for (int y = part.top(); y <= part.bottom(); ++y)
    for (int x = part.left(); x <= part.right(); ++x) count += image.pixel(x, y) == color;
  return count;
}

struct Case {
  int magnification;
  double ratio;
};
constexpr Case kCases[] = {{4, 1}, {8, 1}, {12, 1}, {13, 1}, {40, 1}, {12, 1.25}, {8, 1.5}, {13, 2}, {4, 3}};

TEST(RegionMark, ABlackLineIsOnTheGridRoundTheRegionAndAWhiteOneRoundIt) {
  for (const Case& c : kCases) {
    const ScreenScale scale(kCells, c.magnification, c.ratio);
    const int cell = scale.cellSize();
    const int line = std::max(1, static_cast<int>(c.ratio));
    const RegionOutline outline = outlineOfCells(3, 5, 9, 12, c.magnification, false);
    const QRect black(3 * cell, 5 * cell, 6 * cell + line, 7 * cell + line);
    EXPECT_EQ(regionFrame(outline, scale, line), black) << c.magnification << ", " << c.ratio;
    const QRect white = black.adjusted(-line, -line, line, line);
    const QImage image = painted(outline, scale, line, 0xFF336699);
    int wrong = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        const bool inside = black.adjusted(line, line, -line, -line).contains(x, y);
        const QRgb wanted = inside || !white.contains(x, y) ? 0xFF336699
                            : black.contains(x, y)          ? kBlackLine
                                                            : kWhiteLine;
        wrong += image.pixel(x, y) != wanted;
      }
    EXPECT_EQ(wrong, 0) << c.magnification << ", " << c.ratio;
  }
}

TEST(RegionMark, AtTheEdgeOfTheIconBothLinesAreInside) {
  for (const Case& c : kCases) {
    const ScreenScale scale(kCells, c.magnification, c.ratio);
    const int line = std::max(1, static_cast<int>(c.ratio));
    const RegionOutline whole = outlineOfCells(0, 0, kCells, kCells, c.magnification, false);
    const int end = scale.deviceSize();
    EXPECT_EQ(regionFrame(whole, scale, line), QRect(line, line, end - 2 * line, end - 2 * line));
    const QImage image = painted(whole, scale, line, 0xFF336699);
    for (int i = 0; i < end; ++i) {
      EXPECT_EQ(image.pixel(i, 0), kWhiteLine);
      EXPECT_EQ(image.pixel(end - 1, i), kWhiteLine);
    }
  }
}

TEST(RegionMark, ASideBeyondTheIconIsNotSeen) {
  const ScreenScale scale(kCells, 12, 1);
  const QImage image = painted(outlineOfCells(-2, 3, 4, 6, 12, false), scale, 1, 0xFF336699);
  EXPECT_EQ(pixelsOf(image, QRect(0, 37, 47, 34), 0xFF336699), 47 * 34) << "the inside, up to the edge of the icon";
  EXPECT_EQ(image.pixel(0, 36), kBlackLine);
  EXPECT_EQ(image.pixel(0, 35), kWhiteLine);
}

TEST(RegionMark, HandlesAreAtCornersAndSidesWhereAPressTakesHoldOfTheSide) {
  for (const int magnification : {8, 12, 13, 15, 40}) {
    const ScreenScale scale(kCells, magnification, 1);
    const RegionOutline outline = outlineOfCells(3, 4, 11, 13, magnification);
    const DrawRect box{static_cast<double>(outline.left), static_cast<double>(outline.top),
                       static_cast<double>(outline.right), static_cast<double>(outline.bottom)};
    const std::vector<QRect> handles = regionHandles(outline, scale);
    ASSERT_EQ(handles.size(), 8U) << magnification;
    constexpr RegionEdge L = RegionEdge::Left, R = RegionEdge::Right, T = RegionEdge::Top, B = RegionEdge::Bottom;
    const RegionEdge edges[] = {L, T, R, L, R, L, B, R};  // corners move their vertical side
    for (std::size_t i = 0; i < handles.size(); ++i) {
      EXPECT_EQ(handles[i].size(), QSize(7, 7));
      for (int y = handles[i].top(); y <= handles[i].bottom(); ++y)
        for (int x = handles[i].left(); x <= handles[i].right(); ++x) {
          const RegionPointer pointer = pointerOverRegion(box, false, x, y);
          EXPECT_EQ(pointer,
                    edges[i] == L || edges[i] == R ? RegionPointer::HorizontalResize : RegionPointer::VerticalResize);
          EXPECT_EQ(edgeUnderPress(box, x, y), edges[i]) << i << ": " << x << ", " << y;
        }
    }
  }
}

TEST(RegionMark, SmallRegionsHaveHandlesAtCornersOnlyAndTinyOnesNone) {
  const auto count = [](int width, int height, int magnification) {
    const ScreenScale scale(kCells, magnification, 1);
    return regionHandles(outlineOfCells(5, 5, 5 + width, 5 + height, magnification), scale).size();
  };
  EXPECT_EQ(count(1, 1, 12), 0U);
  EXPECT_EQ(count(1, 8, 12), 0U);
  EXPECT_EQ(count(2, 2, 12), 4U);
  EXPECT_EQ(count(4, 2, 12), 6U);
  EXPECT_EQ(count(4, 4, 12), 8U);
  EXPECT_EQ(count(5, 5, 4), 0U);
  EXPECT_EQ(count(6, 6, 4), 4U);
  EXPECT_EQ(count(1, 1, 40), 4U);
  EXPECT_EQ(count(2, 2, 40), 8U);
}

TEST(RegionMark, HandlesLeaveMostOfARegionVisible) {
  for (const int magnification : {4, 8, 12, 13, 40})
    for (int width = 1; width <= 8; ++width)
      for (int height = 1; height <= 8; ++height) {
        const ScreenScale scale(kCells, magnification, 1);
        const RegionOutline outline = outlineOfCells(4, 4, 4 + width, 4 + height, magnification);
        const QRect inside = regionFrame(outline, scale, 1).adjusted(1, 1, -1, -1);
        const QImage image = painted(outline, scale, 1, 0xFF336699);
        EXPECT_GE(pixelsOf(image, inside, 0xFF336699) * 10, inside.width() * inside.height() * 9)
            << width << " x " << height << " at " << magnification;
      }
}

TEST(RegionMark, AtTheEdgeHandlesAreWhollyOnTheIcon) {
  for (const Case& c : kCases) {
    const ScreenScale scale(kCells, c.magnification, c.ratio);
    for (const QRect& handle : regionHandles(outlineOfCells(0, 0, kCells, kCells, c.magnification), scale))
      EXPECT_TRUE(QRect(0, 0, scale.deviceSize(), scale.deviceSize()).contains(handle));
  }
}

TEST(RegionMark, TheMarkStaysWithinItsReach) {
  for (const int magnification : {4, 12, 40}) {
    const ScreenScale scale(kCells, magnification, 1);
    const RegionOutline outline = outlineOfCells(4, 4, 11, 11, magnification);
    const QImage image = painted(outline, scale, 1, 0xFF336699);
    constexpr int kReach = RegionOutline::kReach;
    const QRect reach(QPoint(outline.left - kReach, outline.top - kReach),
                      QPoint(outline.right + kReach - 1, outline.bottom + kReach - 1));
    const int outside = image.width() * image.height() - reach.width() * reach.height();
    EXPECT_EQ(pixelsOf(image, image.rect(), 0xFF336699) - pixelsOf(image, reach, 0xFF336699), outside);
  }
}

TEST(RegionMark, NoHandlesWhereSidesDoNotMove) {
  const ScreenScale scale(kCells, 12, 1);
  EXPECT_TRUE(regionHandles(outlineOfCells(2, 2, 12, 12, 12, false), scale).empty());
}

}  // namespace
}  // namespace gp
