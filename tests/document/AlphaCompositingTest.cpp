#include "document/AlphaCompositing.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

int blended(int channel, int alpha) {
  const Surface image(1, 1, rgb(channel, 0, 255));
  const Surface mask(1, 1, kBlack);
  Surface target(1, 1, kGround);
  composeAlpha(mask, image, AlphaMatrix(1, 1, static_cast<std::uint8_t>(alpha)), target);
  return redOf(target.GetPixel(0, 0));
}

TEST(AlphaCompositing, PercentAndChannelAreBothTruncated) {
  EXPECT_EQ(blended(77, 255), 77);
  EXPECT_EQ(blended(77, 0), 192);
  EXPECT_EQ(blended(0, 128), 96);     // 50 percent
  EXPECT_EQ(blended(255, 128), 223);  // 223.5
  EXPECT_EQ(blended(10, 1), 192);     // 0 percent
  EXPECT_EQ(blended(10, 3), 190);     // 1 percent: 190.18
  EXPECT_EQ(blended(0, 254), 1);      // 99 percent: 1.92
}

TEST(AlphaCompositing, EachChannelIsBlendedOverThatOfTheGround) {
  const Surface image(1, 1, rgb(200, 100, 0)), mask(1, 1, kBlack);
  Surface target(1, 1, kGround);
  composeAlpha(mask, image, AlphaMatrix(1, 1, 128), target, rgb(0, 51, 255));
  EXPECT_EQ(target.GetPixel(0, 0), rgb(100, 75, 127));
}

TEST(AlphaCompositing, TransparentPixelsOfTheTargetStay) {
  Surface image(2, 1, rgb(1, 2, 3)), mask(2, 1, kBlack), target(2, 1, 0x445566);
  mask.SetPixelV(1, 0, kWhite);
  composeAlpha(mask, image, AlphaMatrix(2, 1, 255), target);
  EXPECT_EQ(target.GetPixel(0, 0), rgb(1, 2, 3));
  EXPECT_EQ(target.GetPixel(1, 0), 0x445566);
}

}  // namespace
}  // namespace gp::test
