// The choice among the images of an icon, and their drawing at another size and on a ground.
#include "files/format/ImageChoice.h"
#include "files/format/ImageDrawing.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

using Order = std::vector<std::size_t>;

TEST(ImageChoice, NearestThenDeepestThenFirst) {
  const std::vector<ImageTrait> images{{48, 48, 32, 0}, {32, 32, 8, 1},  {16, 16, 32, 2}, {32, 32, 24, 3},
                                       {32, 32, 24, 4}, {24, 40, 24, 5}, {32, 31, 1, 6}};
  EXPECT_EQ(imagesToTry(images, 32), (Order{3, 4, 1, 6, 5, 0, 2}));
  EXPECT_EQ(imagesToTry(images, 16), (Order{2, 6, 3, 4, 5, 1, 0}));
  EXPECT_EQ(imagesToTry({}, 32), Order());
}

TEST(ImageChoice, SharedImagesCountOnceAndSixteenAtMost) {
  std::vector<ImageTrait> images(100, ImageTrait{32, 32, 8, 7});
  images.push_back({16, 16, 8, 9});
  EXPECT_EQ(imagesToTry(images, 32), (Order{0, 100}));
  for (std::size_t i = 0; i < images.size(); ++i) images[i].offset = i;
  const Order order = imagesToTry(images, 32);
  ASSERT_EQ(order.size(), 16u);
  for (std::size_t i = 0; i < order.size(); ++i) EXPECT_EQ(order[i], i);
}

TEST(ImageDrawing, EveryAlphaBlendsWithTheGroundRounded) {
  IconImage icon{Surface(256, 3), Surface(), AlphaMatrix(256, 3)};
  const int channels[] = {0, 77, 255};
  for (int x = 0; x < 256; ++x)
    for (int y = 0; y < 3; ++y) {
      icon.image.SetPixelV(x, y, rgb(channels[y], 255 - channels[y], 128));
      icon.alpha.at(x, y) = static_cast<std::uint8_t>(x);
    }
  const Color ground = rgb(13, 200, 255);
  const Surface drawn = drawnOn(icon, ground);
  for (int a = 0; a < 256; ++a)
    for (int y = 0; y < 3; ++y) {
      const auto blended = [&](int s, int d) { return (s * a + d * (255 - a) + 127) / 255; };
      ASSERT_EQ(drawn.GetPixel(a, y),
                rgb(blended(channels[y], 13), blended(255 - channels[y], 200), blended(128, 255)));
    }
}

TEST(ImageDrawing, WithoutAlphaTheMaskIsCombinedByAndAndTheColorsByXor) {
  IconImage icon{Surface(4, 1, kBlack), Surface(4, 1, kBlack), AlphaMatrix()};
  icon.mask.SetPixelV(1, 0, kWhite);
  icon.mask.SetPixelV(3, 0, kWhite);
  icon.image.SetPixelV(2, 0, rgb(1, 2, 3));
  icon.image.SetPixelV(3, 0, rgb(255, 0, 0x0F));
  const Surface drawn = drawnOn(icon, rgb(0x10, 0x20, 0xFF));
  EXPECT_EQ(drawn.GetPixel(0, 0), kBlack);
  EXPECT_EQ(drawn.GetPixel(1, 0), rgb(0x10, 0x20, 0xFF));
  EXPECT_EQ(drawn.GetPixel(2, 0), rgb(1, 2, 3));
  EXPECT_EQ(drawn.GetPixel(3, 0), rgb(0xEF, 0x20, 0xF0));
}

TEST(ImageDrawing, ReducingKeepsTheLastColumnAndTheFirstRow) {
  Surface picture(4, 4);
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 4; ++x) picture.SetPixelV(x, y, rgb(x, y, 0));
  const Surface half = scaledTo(picture, 2);
  EXPECT_EQ(half.GetPixel(0, 0), rgb(1, 0, 0));
  EXPECT_EQ(half.GetPixel(1, 1), rgb(3, 2, 0));
  const Surface twice = scaledTo(picture, 8);
  EXPECT_EQ(twice.GetPixel(7, 2), rgb(3, 1, 0));
  EXPECT_EQ(scaledTo(picture, 4).GetPixel(2, 3), rgb(2, 3, 0));
}

}  // namespace
}  // namespace gp::test
