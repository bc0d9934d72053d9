#include "effects/ColorRamp.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

std::vector<Color> colorsOf(const ColorRamp& ramp) {
  std::vector<Color> colors;
  for (int i = 1; i <= ramp.size(); ++i) colors.push_back(ramp.at(i));
  return colors;
}

TEST(ColorRamp, EachEntryIsOneStepFurtherAndTheLastIsTheSecondColor) {
  EXPECT_EQ(colorsOf(makeColorRamp(kBlack, rgb(100, 200, 40), 4)),
            (std::vector<Color>{rgb(25, 50, 10), rgb(50, 100, 20), rgb(75, 150, 30), rgb(100, 200, 40)}));
  EXPECT_EQ(colorsOf(makeColorRamp(rgb(100, 200, 40), kBlack, 2)), (std::vector<Color>{rgb(50, 100, 20), kBlack}));
  EXPECT_EQ(colorsOf(makeColorRamp(rgb(0, 255, 3), rgb(255, 0, 3), 3)),
            (std::vector<Color>{rgb(85, 170, 3), rgb(170, 85, 3), rgb(255, 0, 3)}));
}

TEST(ColorRamp, TheChannelsAreRoundedToTheNearestTiesToEven) {
  EXPECT_EQ(colorsOf(makeColorRamp(kBlack, rgb(1, 3, 5), 2)), (std::vector<Color>{rgb(0, 2, 2), rgb(1, 3, 5)}));
  EXPECT_EQ(colorsOf(makeColorRamp(kBlack, rgb(1, 2, 10), 3)),
            (std::vector<Color>{rgb(0, 1, 3), rgb(1, 1, 7), rgb(1, 2, 10)}));
}

TEST(ColorRamp, ARampOfOneColorHasThatColorOnly) {
  EXPECT_EQ(colorsOf(makeColorRamp(rgb(9, 8, 7), rgb(9, 8, 7), 3)), (std::vector<Color>(3, rgb(9, 8, 7))));
}

TEST(ColorRamp, NegativeStepsLeadAwayFromTheSecondColorAndStayInRange) {
  EXPECT_EQ(colorsOf(makeColorRamp(rgb(100, 100, 5), rgb(110, 80, 10), -2)),
            (std::vector<Color>{rgb(95, 110, 2), rgb(90, 120, 0)}));
}

TEST(ColorRamp, AnIndexOutsideTakesTheNearestEntry) {
  const ColorRamp ramp = makeColorRamp(kBlack, rgb(100, 0, 0), 2);
  EXPECT_EQ(ramp.at(-5), rgb(50, 0, 0));
  EXPECT_EQ(ramp.at(0), rgb(50, 0, 0));
  EXPECT_EQ(ramp.at(3), rgb(100, 0, 0));
  const ColorRamp empty = makeColorRamp(rgb(1, 2, 3), kWhite, 0);
  EXPECT_EQ(empty.size(), 0);
  EXPECT_EQ(empty.at(1), rgb(1, 2, 3));
}

TEST(PointDistance, ItIsRoundedHalvesUp) {
  EXPECT_EQ(pointDistance(3, 4, 3, 4), 0);
  EXPECT_EQ(pointDistance(0, 0, 3, 4), 5);
  EXPECT_EQ(pointDistance(-1, -1, 0, 0), 1);  // 1.41
  EXPECT_EQ(pointDistance(0, 0, 2, -2), 3);   // 2.83
  EXPECT_EQ(pointDistance(0, 0, 0, 2.5), 3);  // a half
  EXPECT_EQ(pointDistance(0.5, 0, 2, 2), 3);  // a half
  EXPECT_EQ(pointDistance(0, 0, 1.25, 0), 1);
}

TEST(DrawRings, EachPixelTakesTheEntryOfItsDistance) {
  const ColorRamp ramp = makeColorRamp(kBlack, rgb(100, 0, 0), 10);
  Surface target(7, 3);
  drawRings(target, 2, 1, ramp, 3);
  const int expected[3][7] = {{2, 1, 1, 1, 2, 3, 3}, {2, 1, 1, 1, 2, 3, 3}, {2, 1, 1, 1, 2, 3, 3}};
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 7; ++x) EXPECT_EQ(target.GetPixel(x, y), rgb(10 * expected[y][x], 0, 0)) << x << " " << y;
}

}  // namespace
}  // namespace gp::test
