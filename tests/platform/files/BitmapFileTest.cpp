#include "platform/files/BitmapFile.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

using Bytes = std::vector<std::uint8_t>;

// A bitmap of 3 x 2 pixels, computed by hand.
const Bytes kSmall = {'B', 'M', 78, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,                                  //
                      40,  0,   0,  0, 3, 0, 0, 0, 2, 0, 0,  0, 1, 0, 24, 0, 0, 0, 0, 0, 24, 0, 0, 0,  //
                      0,   0,   0,  0, 0, 0, 0, 0, 0, 0, 0,  0, 0, 0, 0,  0,                           //
                      0,   0,   0,  0, 0, 0, 6, 5, 4, 0, 0,  0, 3, 2, 1,  0, 0, 0, 0, 0, 0,  0, 0, 0};
constexpr std::size_t kHeightAt = 22;
constexpr std::size_t kCompressionAt = 30;

Bytes changed(std::size_t at, Bytes values) {
  Bytes bytes = kSmall;
  std::copy(values.begin(), values.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
  return bytes;
}

TEST(BitmapFile, APictureOf3By2IsByteForByteAPlainBitmap) {
  Surface surface(3, 2, kBlack);
  surface.SetPixelV(0, 0, rgb(1, 2, 3));
  surface.SetPixelV(2, 1, rgb(4, 5, 6));
  EXPECT_EQ(composeBitmap(surface), kSmall);
}

TEST(BitmapFile, AFolderThatIsNotThereFails) {
  EXPECT_FALSE(writeBitmap(Surface(3, 2, kBlack), "/no/such/folder/a.bmp"));
}

TEST(BitmapFile, ABitmapIsWholeUpToItsLastByteAndNotOneBefore) {
  EXPECT_TRUE(isWholeBitmap(kSmall));
  for (std::size_t length = 0; length < kSmall.size(); ++length)
    EXPECT_FALSE(isWholeBitmap(std::span(kSmall).first(length))) << length;
}

TEST(BitmapFile, ABitmapWithItsTopRowFirstIsAsLong) {
  const Bytes upright = changed(kHeightAt, {0xFE, 0xFF, 0xFF, 0xFF});
  EXPECT_TRUE(isWholeBitmap(upright));
  EXPECT_FALSE(isWholeBitmap(std::span(upright).first(upright.size() - 1)));
}

TEST(BitmapFile, RowsFromTheTopAreThoseOfANegativeHeight) {
  EXPECT_EQ(rowsFromTheTop(kSmall), 0);
  EXPECT_EQ(rowsFromTheTop(changed(kHeightAt, {0xFE, 0xFF, 0xFF, 0xFF})), 2);
  EXPECT_EQ(rowsFromTheTop(changed(kHeightAt, {1, 0, 0, 0x80})), 0x7FFFFFFF);
  EXPECT_EQ(rowsFromTheTop(changed(kHeightAt, {0, 0, 0, 0x80})), 0) << "a height that cannot be negated";
  EXPECT_EQ(rowsFromTheTop(changed(kHeightAt, {0, 0, 0, 0})), 0);
}

TEST(BitmapFile, OnlyUncompressedBitmapsMayHaveTheirTopRowFirst) {
  Bytes upright = changed(kHeightAt, {0xFE, 0xFF, 0xFF, 0xFF});
  for (const int compression : {0, 1, 2, 3, 4}) {
    upright[kCompressionAt] = static_cast<std::uint8_t>(compression);
    EXPECT_EQ(rowsFromTheTop(upright), compression == 0 || compression == 3 ? 2 : 0) << compression;
  }
}

TEST(BitmapFile, FilesCutInTheirHeadersAndOtherFilesHaveNoRowsFromTheTop) {
  Bytes upright = changed(kHeightAt, {0xFE, 0xFF, 0xFF, 0xFF});
  for (std::size_t length = 0; length < 54; ++length)
    EXPECT_EQ(rowsFromTheTop(std::span(upright).first(length)), 0) << length;
  upright[14] = 12;  // a header without a signed height
  EXPECT_EQ(rowsFromTheTop(upright), 0);
  upright[14] = 40;
  upright[0] = 'P';
  EXPECT_EQ(rowsFromTheTop(upright), 0);
}

TEST(BitmapFile, ACompressedBitmapIsAsLongAsItSays) {
  Bytes packed = changed(kCompressionAt, {1, 0, 0, 0, 5, 0, 0, 0});
  packed.resize(54 + 5);
  EXPECT_TRUE(isWholeBitmap(packed));
  packed.pop_back();
  EXPECT_FALSE(isWholeBitmap(packed));
}

TEST(BitmapFile, SizesBeyondAllMeasureAreNotWhole) {
  EXPECT_FALSE(isWholeBitmap(changed(kHeightAt, {0, 0, 0, 0x80})));
  EXPECT_FALSE(isWholeBitmap(changed(kHeightAt - 4, {0xFF, 0xFF, 0xFF, 0xFF, 8, 0, 0, 0})));
  EXPECT_FALSE(isWholeBitmap(changed(kHeightAt - 4, {0xFF, 0xFF, 0xFF, 0x7F, 0, 0, 0, 0x80, 1, 0, 0xFF, 0xFF})));
  EXPECT_FALSE(isWholeBitmap(changed(10, {0xFF, 0xFF, 0xFF, 0xFF})));
}

TEST(BitmapFile, OtherBytesAreNoBitmap) { EXPECT_FALSE(isWholeBitmap(changed(0, {'P', 'K'}))); }

}  // namespace
}  // namespace gp
