#include "effects/Cast.h"
#include "effects/Pictures.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

IconImage painted(std::initializer_list<std::initializer_list<Color>> rows) {
  const int height = static_cast<int>(rows.size()), width = static_cast<int>(rows.begin()->size());
  IconImage icon{Surface(width, height), Surface(width, height, kBlack), {}};
  int y = 0;
  for (const auto& row : rows) {
    int x = 0;
    for (const Color color : row) icon.image.SetPixelV(x++, y, color);
    ++y;
  }
  return icon;
}

TEST(Cast, AFlatAreaTakesTheLevels) {
  const IconImage icon{Surface(5, 5, rgb(9, 99, 199)), Surface(5, 5, kBlack), {}};
  const IconImage result = applied("cast", icon, {rgb(10, 127, 255)});
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 4; ++x) EXPECT_EQ(result.image.GetPixel(x, y), rgb(10, 127, 255));
}

TEST(Cast, AnEdgeDiffersByTheDifferenceOfItsPixels) {
  const IconImage icon = painted({{rgb(100, 50, 0), kBlack}, {kBlack, rgb(60, 80, 250)}});
  // 127 - 40, 127 + 30, 127 + 250 limited to 255.
  EXPECT_EQ(applied("cast", icon, {kMiddleLevels}).image.GetPixel(0, 0), rgb(87, 157, 255));
  // |10 - 40|, 10 + 30, 10 + 250.
  EXPECT_EQ(applied("cast", icon, {rgb(10, 10, 10)}).image.GetPixel(0, 0), rgb(30, 40, 255));
}

TEST(Cast, OutsideTheIconRedIsMinusOneAndTheOthersAreZero) {
  const IconImage icon = painted({{rgb(100, 50, 20)}});
  EXPECT_EQ(applied("cast", icon, {kMiddleLevels}).image.GetPixel(0, 0), rgb(26, 77, 107));
  EXPECT_EQ(applied("cast", icon, {kBlack}).image.GetPixel(0, 0), rgb(101, 50, 20));
}

TEST(Cast, ANeighbourBehindTheMaskCountsWithItsImage) {
  const IconImage icon = iconOf({"b.", ".^"});
  EXPECT_EQ(applied("cast", icon, {rgb(0, 0, 0)}).image.GetPixel(0, 0), kWhite);
}

TEST(Cast, TheSliderIsTheRoundedMeanOfTheLevels) {
  EXPECT_EQ(sliderOf(kMiddleLevels), 127);
  EXPECT_EQ(sliderOf(rgb(0, 0, 1)), 0);
  EXPECT_EQ(sliderOf(rgb(0, 1, 1)), 1);
  EXPECT_EQ(sliderOf(rgb(255, 255, 255)), 255);
  EXPECT_EQ(sliderOf(rgb(10, 20, 60)), 30);
}

TEST(Cast, TheSliderMovesAllLevelsAndEachStopsAtItsEnd) {
  EXPECT_EQ(levelsAfterSlide(rgb(10, 20, 60), 35), rgb(15, 25, 65));
  EXPECT_EQ(levelsAfterSlide(rgb(10, 20, 60), 0), rgb(0, 0, 30));
  EXPECT_EQ(levelsAfterSlide(rgb(10, 20, 60), 255), rgb(235, 245, 255));
  EXPECT_EQ(levelsAfterSlide(rgb(10, 20, 60), 30), rgb(10, 20, 60));
  // The position follows the limited levels.
  EXPECT_EQ(sliderOf(levelsAfterSlide(rgb(0, 128, 255), 255)), 212);
}

}  // namespace
}  // namespace gp::test
