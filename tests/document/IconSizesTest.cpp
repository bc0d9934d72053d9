#include "document/IconSizes.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

TEST(IconSizes, AreFourSides) {
  for (int side = -1; side <= 300; ++side)
    EXPECT_EQ(isIconSize(side), side == 16 || side == 24 || side == 32 || side == 48) << side;
}

TEST(IconSizes, AnIconIsSquare) {
  for (const int side : kIconSides) {
    EXPECT_TRUE(isIconSize(side, side)) << side;
    EXPECT_FALSE(isIconSize(side, side - 1)) << side;
    EXPECT_FALSE(isIconSize(side - 1, side)) << side;
    EXPECT_FALSE(isIconSize(side - 1, side - 1)) << side;
  }
  EXPECT_FALSE(isIconSize(16, 32)) << "each is a side, but not of one icon";
  EXPECT_FALSE(isIconSize(0, 0));
  EXPECT_FALSE(isIconSize(-16, -16));
}

TEST(IconSizes, AnEmptyContainerCountsAs32AndTheLargestIs48) {
  EXPECT_EQ(kDefaultIconSize, 32);
  EXPECT_EQ(kLargestIconSize, 48);
}

struct FitCase {
  int width, height, size;
};

TEST(IconSizes, APictureGoesIntoTheSmallestIconThatHoldsItsLongerSide) {
  for (const FitCase& c : {FitCase{1, 1, 16},
                           {16, 16, 16},
                           {17, 1, 24},
                           {1, 24, 24},
                           {24, 25, 32},
                           {32, 32, 32},
                           {33, 16, 48},
                           {48, 48, 48}})
    EXPECT_EQ(iconSizeFor(c.width, c.height), c.size) << c.width << " x " << c.height;
}

TEST(IconSizes, APictureLargerThanEveryIconGoesIntoTheLargest) {
  EXPECT_EQ(iconSizeFor(49, 1), 48);
  EXPECT_EQ(iconSizeFor(1, 49), 48);
  EXPECT_EQ(iconSizeFor(20000, 20000), 48);
}

}  // namespace
}  // namespace gp
