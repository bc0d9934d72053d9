#include "animation/FilmBuilder.h"
#include "animation/format/AniFile.h"
#include "animation/format/FilmWriting.h"
#include "files/SlowIconReader.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kBitsAt = 22 + 14;  // of the bitmap header

Bytes imageOf(const Bytes& file, std::size_t frame) {
  const AniReading reading = readAniFile(file);
  const AniImage image = reading.file.images.at(frame);
  const auto begin = file.begin() + static_cast<std::ptrdiff_t>(image.offset);
  return {begin, begin + static_cast<std::ptrdiff_t>(image.size)};
}
int bitsOf(const Bytes& image) { return image.at(kBitsAt) | image.at(kBitsAt + 1) << 8; }

// Writes a film of one frame and reads its only image byte by byte.
IconImage written(const FramePicture& picture) {
  FilmFrame frame;
  frame.picture = picture;
  const Bytes image = imageOf(composeFilm({&frame, 1}, 0, 0), 0);
  IconEntry entry;
  entry.width = entry.height = 32;
  entry.bitCount = bitsOf(image);
  entry.imageOffset = 22;
  return SlowIconReader(image, entry, 32, 32).read();
}
int bitsWritten(const FramePicture& picture) {
  FilmFrame frame;
  frame.picture = picture;
  return bitsOf(imageOf(composeFilm({&frame, 1}, 0, 0), 0));
}

TEST(FilmWritingTest, WhiteBelongsToThePictureWhereTheMaskIsBlack) {
  FramePicture picture;
  picture.image.SetPixelV(1, 0, rgb(10, 20, 30));  // the mask is white
  picture.image.SetPixelV(2, 0, rgb(10, 20, 30));
  picture.mask.SetPixelV(2, 0, kBlack);
  picture.mask.SetPixelV(3, 0, kBlack);  // the image is white
  picture.image.SetPixelV(4, 0, kBlack);
  const IconImage icon = written(picture);
  const Color image[] = {kBlack, rgb(10, 20, 30), rgb(10, 20, 30), kWhite, kBlack, kBlack};
  const Color mask[] = {kWhite, kBlack, kBlack, kBlack, kBlack, kWhite};
  for (int x = 0; x < 6; ++x) {
    EXPECT_EQ(icon.image.GetPixel(x, 0), image[x]) << x;
    EXPECT_EQ(icon.mask.GetPixel(x, 0), mask[x]) << x;
  }
}

TEST(FilmWritingTest, TheDepthFollowsFromTheColorsOfTheFrame) {
  EXPECT_EQ(bitsWritten(FramePicture()), 1);
  EXPECT_EQ(bitsWritten(plainPicture(kBlack)), 1);
  EXPECT_EQ(bitsWritten(plainPicture(rgb(255, 0, 0))), 4);
  EXPECT_EQ(bitsWritten(plainPicture(rgb(1, 2, 3))), 8);
  FramePicture many;
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) many.image.SetPixelV(x, y, rgb(x, y, 100));
  EXPECT_EQ(bitsWritten(many), 24);
}

TEST(FilmWritingTest, EachFrameHasTheDepthThatItNeeds) {
  const FilmFrame frames[] = {plainFrame(rgb(1, 2, 3)), plainFrame(kBlack), plainFrame(rgb(255, 0, 0))};
  const Bytes file = composeFilm(frames, 0, 0);
  EXPECT_EQ(bitsOf(imageOf(file, 0)), 8);
  EXPECT_EQ(bitsOf(imageOf(file, 1)), 1);
  EXPECT_EQ(bitsOf(imageOf(file, 2)), 4);
}

TEST(FilmWritingTest, AllPixelsAreWritten) {
  FramePicture picture;
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) picture.image.SetPixelV(x, y, rgb(8 * x, 8 * y, x ^ y));
  const IconImage icon = written(picture);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) {
      EXPECT_EQ(icon.image.GetPixel(x, y), rgb(8 * x, 8 * y, x ^ y));
      EXPECT_EQ(icon.mask.GetPixel(x, y), kBlack);
    }
}

TEST(FilmWritingTest, EachFrameKeepsItsTimeAndGetsTheHotSpot) {
  std::vector<FilmFrame> frames = numberedFrames(3);
  frames[1].hotspotX = 20;
  const Bytes file = composeFilm(frames, 5, 17);
  const AniReading reading = readAniFile(file);
  ASSERT_TRUE(reading.isRead());
  EXPECT_EQ(reading.file.rates, (std::vector<std::uint32_t>{1, 2, 3}));
  EXPECT_FALSE(reading.file.sequence);
  EXPECT_EQ(reading.file.header.rate, 10U);
  for (std::size_t i = 0; i < 3; ++i) {
    const Bytes image = imageOf(file, i);
    EXPECT_EQ(image[2], 2);
    EXPECT_EQ(image[10], 5);
    EXPECT_EQ(image[12], 17);
  }
}

TEST(FilmWritingTest, APictureIsBlankWhenEveryPixelIsWhite) {
  FramePicture picture;
  EXPECT_TRUE(isBlank(picture));
  picture.mask.fill(kBlack);
  EXPECT_TRUE(isBlank(picture)) << "whatever the mask is";
  picture.image.SetPixelV(31, 31, rgb(255, 255, 254));
  EXPECT_FALSE(isBlank(picture));
}

}  // namespace
}  // namespace gp::test
