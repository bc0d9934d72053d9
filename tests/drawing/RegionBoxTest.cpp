#include "drawing/RegionBox.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

// A 32-pixel icon at 12 pixels each.
constexpr RegionScale kScale = {12, 384, 384, 32, 32};

void expectRect(const DrawRect& rect, double x1, double y1, double x2, double y2) {
  EXPECT_EQ(rect.x1, x1);
  EXPECT_EQ(rect.y1, y1);
  EXPECT_EQ(rect.x2, x2);
  EXPECT_EQ(rect.y2, y2);
}

TEST(RegionBox, SidesStandOnTheGridLinesAroundThePixels) {
  expectRect(pixelsOfRegion({24, 36, 60, 96}, kScale), 2, 3, 4, 7);
  expectRect(boxOfPixels({2, 3, 4, 7}, 12), 24, 36, 60, 96);
}

TEST(RegionBox, ABoxAtTheRightEdgeEndsOnTheLastColumn) {
  expectRect(pixelsOfRegion({348, 0, 384, 12}, kScale), 29, 0, 31, 0);
  expectRect(pixelsOfRegion({348, 348, 383, 383}, kScale), 29, 29, 31, 31);
}

TEST(RegionBox, ASideShorterThanACellIsTheCellOfItsFirstCorner) {
  expectRect(pixelsOfRegion({24, 36, 24, 47}, kScale), 2, 3, 2, 3);
}

TEST(RegionBox, ABoxThatALimitTookOffTheGridKeepsItsPixelsWhereverItIsMoved) {
  expectRect(pixelsOfRegion({336, 0, 359, 23}, kScale), 28, 0, 29, 1);
}

TEST(RegionBox, SidesOutOfOrderAreExchanged) {
  DrawRect box = {60, 96, 24, 36};
  EXPECT_TRUE(normalizeBox(box));
  expectRect(box, 24, 36, 60, 96);
  EXPECT_FALSE(normalizeBox(box));
}

TEST(RegionBox, SeventyPercentOfTheBoxMayLeaveOnAnySide) {
  const RegionLimits limits = limitsOfRegion({0, 0, 120, 60}, kScale);
  EXPECT_EQ(limits.mRegionMinX, -84);
  EXPECT_EQ(limits.mRegionMinY, -42);
  EXPECT_EQ(limits.mRegionMaxX, 264 + 84);
  EXPECT_EQ(limits.mRegionMaxY, 324 + 42);
  EXPECT_TRUE(limits.allow(-84, 366));
  EXPECT_FALSE(limits.allow(-85, 0));
  EXPECT_FALSE(limits.allow(0, 367));
}

TEST(RegionBox, TheBandsOfThePointerAreTestedAcrossOnlyAndHorizontalFirst) {
  const DrawRect box = {48, 48, 120, 120};
  using enum RegionPointer;
  struct Case {
    double x, y;
    RegionPointer pointer;
  };
  for (const Case& c :
       {Case{39, 80, Default}, Case{40, 80, HorizontalResize}, Case{50, 80, HorizontalResize}, Case{51, 80, Move},
        Case{117, 80, Move}, Case{118, 80, HorizontalResize}, Case{128, 80, HorizontalResize}, Case{129, 80, Default},
        Case{80, 39, Default}, Case{80, 40, VerticalResize}, Case{80, 50, VerticalResize}, Case{80, 51, Move},
        Case{80, 118, VerticalResize}, Case{80, 128, VerticalResize}, Case{80, 129, Default},
        Case{48, 48, HorizontalResize}, Case{48, 300, HorizontalResize}, Case{300, 48, VerticalResize}})
    EXPECT_EQ(pointerOverRegion(box, false, c.x, c.y), c.pointer) << c.x << ", " << c.y;
}

TEST(RegionBox, AFloatingRegionHasItsPictureInsideEdgesIncludedAndNoSidesToPull) {
  const DrawRect box = {48, 48, 120, 120};
  EXPECT_EQ(pointerOverRegion(box, true, 48, 120), RegionPointer::Custom);
  EXPECT_EQ(pointerOverRegion(box, true, 80, 80), RegionPointer::Custom);
  EXPECT_EQ(pointerOverRegion(box, true, 47, 80), RegionPointer::Default);
  EXPECT_EQ(pointerOverRegion(box, true, 80, 121), RegionPointer::Default);
}

TEST(RegionBox, APressTakesHoldOfASideInBandsOfItsOwn) {
  const DrawRect box = {48, 48, 120, 120};
  using enum RegionEdge;
  EXPECT_EQ(edgeUnderPress(box, 43, 80), None) << "the pointer shows a resize here";
  EXPECT_EQ(edgeUnderPress(box, 44, 80), Left);
  EXPECT_EQ(edgeUnderPress(box, 56, 80), Left);
  EXPECT_EQ(edgeUnderPress(box, 57, 80), None);
  EXPECT_EQ(edgeUnderPress(box, 116, 80), Right);
  EXPECT_EQ(edgeUnderPress(box, 128, 80), Right);
  EXPECT_EQ(edgeUnderPress(box, 80, 44), Top);
  EXPECT_EQ(edgeUnderPress(box, 80, 128), Bottom);
  EXPECT_EQ(edgeUnderPress(box, 41, 50), Top) << "beside the left band the upper one is tried";
}

TEST(RegionBox, TheLabelTellsStartAndSizeFromOne) {
  const DrawRect box = {24, 36, 60, 96};
  EXPECT_EQ(regionLabel(box, pixelsOfRegion(box, kScale)), "Region: Start [3, 4]   W=3 H=5");
}

TEST(RegionBox, TheLabelIsEmptyForABoxWithoutSidesAndCountsOneLessForAReversedSide) {
  EXPECT_EQ(regionLabel({24, 24, 24, 24}, {2, 2, 2, 2}), "");
  EXPECT_EQ(regionLabel({24, 24, 48, 24}, {2, 2, 3, 2}), "Region: Start [3, 3]   W=2 H=1");
  EXPECT_EQ(regionLabel({60, 36, 24, 96}, {5, 3, 1, 7}), "Region: Start [6, 4]   W=4 H=5");
}

}  // namespace
}  // namespace gp
