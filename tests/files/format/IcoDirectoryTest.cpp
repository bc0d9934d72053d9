#include "files/IcoBuilder.h"
#include "files/format/IcoDirectory.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

IconEntry entryWith(int colorCount) {
  IconEntry entry;
  entry.colorCount = colorCount;
  return entry;
}

struct ColorsCase {
  int colorCount, bitCount, colors, rawColors;
};

TEST(IcoDirectory, ColorsFollowFromColorCountAndBitCount) {
  constexpr ColorsCase kCases[] = {
      {0, 0, 256, 256}, {0, 1, 2, 2},       {0, 2, 4, 4},    {0, 3, 8, 8},      {0, 4, 16, 16},
      {0, 5, 32, 32},   {0, 8, 256, 256},   {0, 9, -1, -1},  {0, 16, -1, -1},   {0, 24, -1, -1},
      {0, 32, -1, -1},  {0, 65535, -1, -1}, {1, 0, 2, 1},    {2, 24, 2, 2},     {3, 8, 16, 3},
      {8, 3, 16, 8},    {15, 4, 16, 15},    {16, 0, 16, 16}, {255, 8, 16, 255},
  };
  for (const ColorsCase& c : kCases) {
    EXPECT_EQ(ColorsForEntry(entryWith(c.colorCount), c.bitCount), c.colors) << c.colorCount << " " << c.bitCount;
    EXPECT_EQ(RawColorsForEntry(entryWith(c.colorCount), c.bitCount), c.rawColors) << c.colorCount << " " << c.bitCount;
  }
}

TEST(IcoDirectory, ColorsOfABitCountAloneAreTrueColorUnlessItIsOneFourOrEight) {
  EXPECT_EQ(ColorsForBitCount(1), 2);
  EXPECT_EQ(ColorsForBitCount(4), 16);
  EXPECT_EQ(ColorsForBitCount(8), 256);
  for (const int bits : {0, 2, 3, 5, 16, 24, 32}) EXPECT_EQ(ColorsForBitCount(bits), -1) << bits;
}

TEST(IcoDirectory, FieldsAreReadUnsignedAndLittleEndian) {
  Entry entry = entryOf(anyPicture(32, 8), 0, 0xFFFE);
  entry.width = 200;
  entry.height = 255;
  entry.colorCount = 129;
  entry.bytesInRes = 0xFFFFFFFF;
  entry.offset = 0x80000001;
  const IconEntry read = parseIconDirectory(build(entry)).entry(0);
  EXPECT_EQ(read.width, 200);
  EXPECT_EQ(read.height, 255);
  EXPECT_EQ(read.colorCount, 129);
  EXPECT_EQ(read.bitCount, 0xFFFE);
  EXPECT_EQ(read.bytesInRes, 0xFFFFFFFFu);
  EXPECT_EQ(read.imageOffset, 0x80000001u);
}

TEST(IcoDirectory, EntriesThatTheFileIsTooShortForAreZeroAndTakeNoRoom) {
  IcoFile file{{entryOf(anyPicture(16, 1))}, 0, 1, 65535};
  Bytes bytes = build(file);
  bytes.resize(6 + 16 + 3);
  const IconDirectory directory = parseIconDirectory(bytes);
  EXPECT_EQ(directory.count, 65535);
  EXPECT_EQ(directory.entries.size(), 2u);
  EXPECT_EQ(directory.entry(1).imageOffset, 0u);
  EXPECT_EQ(directory.entry(60000).width, 0);
  EXPECT_EQ(directory.entry(-1).width, 0);
}

TEST(IcoDirectory, OnlyTypeOneWithAnEntryIsAnIcon) {
  IcoFile file{{entryOf(anyPicture(16, 1))}, 0, 1, {}};
  EXPECT_TRUE(parseIconDirectory(build(file)).isIcon());
  file.reserved = 77;
  EXPECT_TRUE(parseIconDirectory(build(file)).isIcon());
  file.type = 2;
  EXPECT_FALSE(parseIconDirectory(build(file)).isIcon());
  file.type = 1;
  file.count = 0;
  EXPECT_FALSE(parseIconDirectory(build(file)).isIcon());
  EXPECT_FALSE(parseIconDirectory(Bytes{}).isIcon());
}

TEST(IcoDirectory, PngIsToldByItsSignatureAlone) {
  Entry entry = entryOf(anyPicture(32, 32));
  EXPECT_FALSE(isPngImage(build(entry), parseIconDirectory(build(entry)).entry(0)));
  entry.image = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  EXPECT_TRUE(isPngImage(build(entry), parseIconDirectory(build(entry)).entry(0)));
  entry.image.pop_back();
  EXPECT_FALSE(isPngImage(build(entry), parseIconDirectory(build(entry)).entry(0)));
}

}  // namespace
}  // namespace gp::test
