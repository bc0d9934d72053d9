#include "document/ScreenScale.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

TEST(ScreenScale, OnAnOrdinaryScreenEveryPixelIsItself) {
  const ScreenScale scale(32, 12, 1.0);
  EXPECT_EQ(scale.deviceSize(), 384);
  for (int i = -30; i < 420; ++i) {
    EXPECT_EQ(scale.sourceOf(i), i);
    EXPECT_EQ(scale.deviceOf(i), i);
  }
}

TEST(ScreenScale, OnADoubleScreenTheGridLineStaysOneDevicePixel) {
  const ScreenScale scale(32, 12, 2.0);
  EXPECT_EQ(scale.cellSize(), 24);
  for (int cell = 0; cell < 32; ++cell) {
    EXPECT_EQ(scale.sourceOf(cell * 24), cell * 12);
    for (int within = 1; within < 24; ++within) {
      const int source = scale.sourceOf(cell * 24 + within);
      EXPECT_GT(source, cell * 12);
      EXPECT_LT(source, (cell + 1) * 12);
    }
  }
}

TEST(ScreenScale, AFractionalRatioKeepsWholeDevicePixelsPerIconPixel) {
  EXPECT_EQ(ScreenScale(32, 12, 1.25).cellSize(), 15);
  EXPECT_EQ(ScreenScale(48, 10, 1.25).cellSize(), 12);
  EXPECT_EQ(ScreenScale(48, 8, 1.5).cellSize(), 12);
}

TEST(ScreenScale, TheFirstDevicePositionOfASourcePositionShowsItOrOneBehind) {
  for (double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
    for (int magnification : {8, 10, 12, 15}) {
      const ScreenScale scale(32, magnification, ratio);
      for (int source = 0; source < 32 * magnification; ++source) {
        const int device = scale.deviceOf(source);
        EXPECT_GE(scale.sourceOf(device), source) << ratio << " " << magnification;
        if (device > 0) {
          EXPECT_LT(scale.sourceOf(device - 1), source) << ratio << " " << magnification;
        }
      }
    }
}

}  // namespace
}  // namespace gp
