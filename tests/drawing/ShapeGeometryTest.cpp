#include "drawing/ShapeGeometry.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

void expectRect(const DrawRect& rect, double x1, double y1, double x2, double y2) {
  EXPECT_EQ(rect.x1, x1);
  EXPECT_EQ(rect.y1, y1);
  EXPECT_EQ(rect.x2, x2);
  EXPECT_EQ(rect.y2, y2);
}

DrawRect constrained(DrawRect rect, double limit) {
  constrainToSquare(rect, limit);
  return rect;
}

TEST(ConstrainToSquare, ADragOfFiveRightAndTwoDownBecomesFiveByFive) {
  expectRect(constrained({3, 4, 8, 6}, 31), 3, 4, 8, 9);
}

TEST(ConstrainToSquare, AnIconThatEndsThreePixelsRightOfTheStartLeavesTwoByTwo) {
  // Pixels 29, 30 and 31 are the start and the last two: the edge is 3 pixels right of the start.
  expectRect(constrained({29, 4, 34, 6}, 31), 29, 4, 31, 6);
  expectRect(constrained({29, 4, 31, 9}, 31), 29, 4, 31, 6);
}

TEST(ConstrainToSquare, TheBottomLimitShortensBothSides) { expectRect(constrained({4, 28, 14, 30}, 31), 4, 28, 7, 31); }

TEST(ConstrainToSquare, ADragUpOrLeftMayPassZero) {
  expectRect(constrained({2, 20, 1, 10}, 31), 2, 20, -8, 10);
  expectRect(constrained({20, 2, 10, 1}, 31), 20, 2, 10, -8);
}

TEST(ConstrainToSquare, ADragUpAndRightKeepsItsDirectionsAtTheLimit) {
  expectRect(constrained({29, 20, 30, 10}, 31), 29, 20, 31, 18);
}

TEST(ConstrainToSquare, ADragAlongARowOrColumnStaysOnIt) {
  expectRect(constrained({3, 4, 9, 4}, 31), 3, 4, 9, 4);
  expectRect(constrained({3, 4, 3, 0}, 31), 3, 4, 3, 0);
  expectRect(constrained({3, 4, 3, 4}, 31), 3, 4, 3, 4);
}

TEST(ConstrainToSquare, ADragOnTheLastColumnThatPassesTheBottomLosesItsLength) {
  // Computed again after the cut, the smaller side would be zero.
  expectRect(constrained({31, 20, 31, 40}, 31), 31, 20, 31, 20);
}

TEST(ConstrainToSquare, AllThreeRectanglesHaveLimitsInTheirOwnMeasure) {
  DrawState state;
  state.draw = {29, 4, 31, 9};
  state.band = {29 * 12 + 6, 4 * 12 + 6, 31 * 12 + 6, 9 * 12 + 6};
  state.region = {348, 48, 384, 108};
  constrainToSquare(state, 32, 12);
  expectRect(state.draw, 29, 4, 31, 6);
  // 354 + 60 exceeds 383: 29 pixels remain to the right.
  expectRect(state.band, 354, 54, 383, 83);
  expectRect(state.region, 348, 48, 383, 83);
}

TEST(OvalGeometry, FillsTheRectangleFromCornerToCorner) {
  OvalGeometry oval;
  EXPECT_EQ(ovalGeometry({2, 3, 10, 7}, oval), 8);
  EXPECT_EQ(oval.mOvalCenterX, 6);
  EXPECT_EQ(oval.mOvalCenterY, 5);
  EXPECT_EQ(oval.mOvalRadius, 4);
  EXPECT_EQ(oval.mOvalAspect, 0.5);
}

TEST(OvalGeometry, IsTheSameForADragInTheOtherDirection) {
  OvalGeometry oval;
  EXPECT_EQ(ovalGeometry({10, 12, 5, 2}, oval), 5);
  EXPECT_EQ(oval.mOvalCenterX, 7.5);
  EXPECT_EQ(oval.mOvalCenterY, 7);
  EXPECT_EQ(oval.mOvalRadius, 5);
  EXPECT_EQ(oval.mOvalAspect, 2);
}

TEST(OvalGeometry, AWidthOfZeroLeavesTheFieldsAndAHeightOfZeroIsFlat) {
  OvalGeometry oval{1, 2, 3, 4};
  EXPECT_EQ(ovalGeometry({5, 0, 5, 9}, oval), 0);
  EXPECT_EQ(oval.mOvalCenterX, 1);
  EXPECT_EQ(oval.mOvalCenterY, 2);
  EXPECT_EQ(oval.mOvalRadius, 3);
  EXPECT_EQ(oval.mOvalAspect, 4);
  EXPECT_EQ(ovalGeometry({0, 5, 6, 5}, oval), 6);
  EXPECT_EQ(oval.mOvalAspect, 0);
  EXPECT_EQ(oval.mOvalRadius, 3);
  EXPECT_EQ(oval.mOvalCenterY, 5);
}

}  // namespace
}  // namespace gp
