// The brush of the alpha screen, and its straight lines.
#include "alpha/AlphaBrush.h"
#include "platform/gdi/Pens.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <utility>

namespace gp::test {
namespace {

constexpr int kSize = 16;
using Pixels = std::set<std::pair<int, int>>;

IconImage paintedIcon() {
  IconImage icon = transparentIcon(kSize);
  icon.mask.fill(kBlack);
  return icon;
}

struct Scene {
  AlphaCanvas canvas{paintedIcon(), Grid()};
  AlphaBrush brush{canvas};

  Pixels pixelsOf(int alpha) const {
    Pixels pixels;
    for (int y = 0; y < kSize; ++y)
      for (int x = 0; x < kSize; ++x)
        if (canvas.icon().alpha.at(x, y) == alpha) pixels.insert({x, y});
    return pixels;
  }
};

Pixels square(int left, int top, int right, int bottom) {
  Pixels pixels;
  for (int y = top; y <= bottom; ++y)
    for (int x = left; x <= right; ++x) pixels.insert({x, y});
  return pixels;
}

// What Line draws with the thinnest pen.
Pixels line(int x1, int y1, int x2, int y2) {
  Surface drawn(kSize, kSize, kWhite);
  DrawLine(drawn, x1, y1, x2, y2, kBlack);
  Pixels pixels{{x2, y2}};
  for (int y = 0; y < kSize; ++y)
    for (int x = 0; x < kSize; ++x)
      if (drawn.GetPixel(x, y) == kBlack) pixels.insert({x, y});
  return pixels;
}

TEST(AlphaBrush, PaintsOnePixelAtFirst) {
  Scene scene;
  EXPECT_EQ(scene.brush.index(), 0);
  EXPECT_TRUE(scene.brush.paint({4, 5}, 9, false));
  EXPECT_EQ(scene.pixelsOf(9), (Pixels{{4, 5}}));
}

TEST(AlphaBrush, EachSizeHasThePointerAtItsTopLeft) {
  for (int index = 0; index < AlphaBrush::kSizes; ++index) {
    Scene scene;
    scene.brush.setIndex(index);
    scene.brush.paint({4, 5}, 9, false);
    EXPECT_EQ(scene.pixelsOf(9), square(4, 5, 4 + index, 5 + index)) << index;
  }
}

TEST(AlphaBrush, IsCutAtTheRightAndBottomEdges) {
  Scene scene;
  scene.brush.setIndex(5);
  scene.brush.paint({14, 13}, 9, false);
  EXPECT_EQ(scene.pixelsOf(9), square(14, 13, 15, 15));
}

TEST(AlphaBrush, OtherSizesAreLimited) {
  Scene scene;
  scene.brush.setIndex(99);
  EXPECT_EQ(scene.brush.index(), 5);
  scene.brush.setIndex(-1);
  EXPECT_EQ(scene.brush.index(), 0);
}

TEST(AlphaBrush, PaintsOnlyWhatIsPainted) {
  IconImage icon = transparentIcon(kSize);
  icon.mask.SetPixelV(5, 5, kBlack);
  AlphaCanvas canvas(icon, Grid());
  AlphaBrush brush(canvas);
  EXPECT_FALSE(brush.paint({4, 4}, 9, false));
  brush.setIndex(1);
  EXPECT_TRUE(brush.paint({4, 4}, 9, false));
  EXPECT_EQ(canvas.icon().alpha.at(5, 5), 9);
  EXPECT_EQ(canvas.icon().alpha.at(4, 4), 255);
}

TEST(AlphaBrush, AFastDragLeavesGaps) {
  Scene scene;
  scene.brush.paint({0, 0}, 9, false);
  scene.brush.paint({8, 3}, 9, false);
  EXPECT_EQ(scene.pixelsOf(9), (Pixels{{0, 0}, {8, 3}}));
}

TEST(AlphaBrush, AStraightLineStartsAtTheLastPosition) {
  Scene scene;
  scene.brush.paint({1, 2}, 9, false);
  scene.brush.release();
  scene.brush.paint({13, 7}, 9, true);
  EXPECT_EQ(scene.pixelsOf(9), line(1, 2, 13, 7));
  scene.brush.release();
  scene.brush.paint({2, 14}, 20, true);
  EXPECT_EQ(scene.pixelsOf(20), line(13, 7, 2, 14)) << "the next one starts where it ended";
}

TEST(AlphaBrush, LinesHaveTheGeometryOfTheLineTool) {
  std::mt19937 numbers(3);
  const auto any = [&numbers] { return static_cast<int>(numbers() % kSize); };
  for (int i = 0; i < 200; ++i) {
    Scene scene;
    const IconPixel from{any(), any()}, to{any(), any()};
    scene.brush.paint(from, 9, false);
    scene.brush.paint(to, 9, true);
    EXPECT_EQ(scene.pixelsOf(9), line(from.x, from.y, to.x, to.y));
  }
}

TEST(AlphaBrush, TheFirstLineStartsWhereItIsPressed) {
  Scene scene;
  scene.brush.paint({3, 3}, 9, true);
  EXPECT_EQ(scene.pixelsOf(9), (Pixels{{3, 3}}));
  scene.brush.paint({3, 9}, 9, true);
  EXPECT_EQ(scene.pixelsOf(9), line(3, 3, 3, 9));
}

TEST(AlphaBrush, ALineFollowsThePointerUntilTheRelease) {
  Scene scene;
  scene.brush.paint({8, 8}, 9, false);
  scene.brush.paint({0, 0}, 9, true);
  scene.brush.paint({15, 8}, 9, true);
  EXPECT_EQ(scene.pixelsOf(9), line(8, 8, 15, 8));
  scene.brush.release();
  scene.brush.paint({15, 15}, 9, true);
  Pixels both = line(8, 8, 15, 8);
  both.merge(line(15, 8, 15, 15));
  EXPECT_EQ(scene.pixelsOf(9), both);
}

TEST(AlphaBrush, APositionWithoutShiftKeepsTheLine) {
  Scene scene;
  scene.brush.paint({2, 2}, 9, false);
  scene.brush.paint({6, 2}, 9, true);
  scene.brush.paint({6, 4}, 9, false);
  scene.brush.paint({6, 6}, 9, true);
  Pixels all = line(2, 2, 6, 2);
  all.merge(line(6, 4, 6, 6));
  EXPECT_EQ(scene.pixelsOf(9), all);
}

TEST(AlphaBrush, AThickLineStampsTheBrush) {
  Scene scene;
  scene.brush.setIndex(2);
  scene.brush.paint({1, 1}, 9, false);
  scene.brush.paint({6, 1}, 9, true);
  EXPECT_EQ(scene.pixelsOf(9), square(1, 1, 8, 3));
}

TEST(AlphaBrush, ForgettingStartsALineAtItsPress) {
  Scene scene;
  scene.brush.paint({1, 1}, 9, false);
  scene.brush.release();
  scene.canvas.replaceAlpha(AlphaMatrix(kSize, kSize, 255));
  scene.brush.forget();
  scene.brush.paint({9, 9}, 9, true);
  EXPECT_EQ(scene.pixelsOf(9), (Pixels{{9, 9}}));
}

TEST(AlphaBrush, ALineThatLeavesPixelsGivesThemTheirValuesBack) {
  Scene scene;
  scene.brush.paint({0, 5}, 40, false);
  scene.brush.release();
  scene.brush.forget();
  scene.brush.paint({0, 0}, 9, true);
  scene.brush.paint({0, 8}, 9, true);
  EXPECT_EQ(scene.pixelsOf(40), Pixels());
  scene.brush.paint({8, 0}, 9, true);
  EXPECT_EQ(scene.pixelsOf(40), (Pixels{{0, 5}}));
  EXPECT_EQ(scene.pixelsOf(9), line(0, 0, 8, 0));
}

}  // namespace
}  // namespace gp::test
