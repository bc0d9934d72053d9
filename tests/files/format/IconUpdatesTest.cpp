#include "files/IcoBuilder.h"
#include "files/IconFileOf.h"
#include "files/format/IconUpdates.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

const Entry& iconOf(int size, int bits) {
  static std::deque<Entry> made;
  return made.emplace_back(entryOf(anyPicture(size, bits)));
}

IcoFile fileOf(std::vector<Entry> entries) { return {std::move(entries), 0, 1, {}}; }

NewImage newImage(const Entry& entry) {
  NewImage image;
  image.entry.width = entry.width;
  image.entry.height = entry.height;
  image.entry.colorCount = entry.colorCount;
  image.entry.bitCount = entry.bitCount;
  image.bytes = entry.image;
  return image;
}

class IconUpdatesTest : public testing::Test {
 protected:
  IconFolder folder;
  IconArrays arrays;
  IconImage icon = transparentIcon(32);
  IconContainerRec record;

  void read(const Bytes& bytes) {
    ASSERT_EQ(takeIconArrays(iconFileOf(bytes), ReservedField::MustBeZero, arrays), ArraysDefect::None);
  }
  Bytes written() {
    EXPECT_EQ(writeWholeFile(arrays, folder.path("out.ico")), WriteDefect::None);
    return bytesOf(folder.path("out.ico"));
  }
  std::vector<std::uint32_t> offsets() {
    layOutImages(arrays);
    std::vector<std::uint32_t> all;
    for (const IconEntry& entry : arrays.entries) all.push_back(entry.imageOffset);
    return all;
  }
};

TEST_F(IconUpdatesTest, ReplacingByAnImageOfTheSameSizeMovesNothing) {
  Picture other = anyPicture(16, 24);
  other.color = [](int, int) { return Rgb{1, 2, 3}; };
  read(build(fileOf({iconOf(32, 4), iconOf(16, 24), iconOf(48, 8)})));
  const auto before = offsets();
  replaceImage(arrays, 1, newImage(entryOf(other)));
  EXPECT_EQ(offsets(), before);
  EXPECT_EQ(written(), build(fileOf({iconOf(32, 4), entryOf(other), iconOf(48, 8)})));
}

TEST_F(IconUpdatesTest, ReplacingByALargerImageMovesLaterOnesByTheDifference) {
  read(build(fileOf({iconOf(32, 4), iconOf(16, 4), iconOf(48, 8), iconOf(24, 8)})));
  const auto before = offsets();
  replaceImage(arrays, 1, newImage(iconOf(16, 24)));
  const auto after = offsets();
  const auto delta = static_cast<std::uint32_t>(iconOf(16, 24).image.size() - iconOf(16, 4).image.size());
  EXPECT_EQ(after[1], before[1]);
  EXPECT_EQ(after[2], before[2] + delta);
  EXPECT_EQ(after[3], before[3] + delta);
  EXPECT_EQ(written(), build(fileOf({iconOf(32, 4), iconOf(16, 24), iconOf(48, 8), iconOf(24, 8)})));
}

TEST_F(IconUpdatesTest, ReplacingTellsTheSizeOfTheNewImageAndKeepsReservedFieldAndPlanes) {
  Bytes bytes = build(fileOf({iconOf(32, 4), iconOf(16, 4)}));
  bytes[6 + 3] = 7;
  bytes[6 + 4] = 5;
  read(bytes);
  replaceImage(arrays, 0, newImage(iconOf(48, 32)));
  Bytes expected = build(fileOf({iconOf(48, 32), iconOf(16, 4)}));
  expected[6 + 3] = 7;
  expected[6 + 4] = 5;
  EXPECT_EQ(written(), expected);
}

TEST_F(IconUpdatesTest, InsertingAtTheFirstPlaceMovesAllOthersOneUp) {
  read(build(fileOf({iconOf(32, 4), iconOf(16, 4)})));
  insertImage(arrays, 0, newImage(iconOf(48, 8)));
  EXPECT_EQ(offsets().front(), 3u * 16 + 6);
  EXPECT_EQ(written(), build(fileOf({iconOf(48, 8), iconOf(32, 4), iconOf(16, 4)})));
}

TEST_F(IconUpdatesTest, InsertingInTheMiddleAndBehindTheLastOne) {
  read(build(fileOf({iconOf(32, 4), iconOf(16, 4)})));
  insertImage(arrays, 1, newImage(iconOf(48, 8)));
  insertImage(arrays, 3, newImage(iconOf(24, 24)));
  EXPECT_EQ(written(), build(fileOf({iconOf(32, 4), iconOf(48, 8), iconOf(16, 4), iconOf(24, 24)})));
}

TEST_F(IconUpdatesTest, RemovingTheFirstOfThreeLowersTheOthersByItsSizeAndItsEntry) {
  read(build(fileOf({iconOf(32, 4), iconOf(16, 4), iconOf(48, 8)})));
  const auto before = offsets();
  removeImage(arrays, 0);
  const auto fall = static_cast<std::uint32_t>(iconOf(32, 4).image.size() + 16);
  EXPECT_EQ(offsets(), (std::vector{before[1] - fall, before[2] - fall}));
  EXPECT_EQ(written(), build(fileOf({iconOf(16, 4), iconOf(48, 8)})));
}

TEST_F(IconUpdatesTest, RemovingTheLastOneKeepsTheOthersBytes) {
  read(build(fileOf({iconOf(32, 4), iconOf(16, 4), iconOf(48, 8)})));
  removeImage(arrays, 2);
  EXPECT_EQ(written(), build(fileOf({iconOf(32, 4), iconOf(16, 4)})));
}

TEST_F(IconUpdatesTest, ReorderingTakesEntriesAndImagesAlong) {
  read(build(fileOf({iconOf(32, 4), iconOf(16, 4), iconOf(48, 8)})));
  const std::vector order{2, 0, 1};
  reorderImages(arrays, order);
  EXPECT_EQ(written(), build(fileOf({iconOf(48, 8), iconOf(32, 4), iconOf(16, 4)})));
}

TEST_F(IconUpdatesTest, TheFormerFileMayBeOverwrittenWithItsOwnImages) {
  const std::string path = folder.write("a.ico", build(fileOf({iconOf(32, 4), iconOf(16, 4), iconOf(48, 8)})));
  ASSERT_EQ(readIconArrays(path, ReservedField::MustBeZero, arrays), ArraysDefect::None);
  reorderImages(arrays, std::vector{1, 2, 0});
  EXPECT_EQ(writeBack(arrays, path), WriteDefect::None);
  EXPECT_EQ(bytesOf(path), build(fileOf({iconOf(16, 4), iconOf(48, 8), iconOf(32, 4)})));
}

TEST_F(IconUpdatesTest, TwoIconsAreTheSameWhenSizeColorsAndBitsAllAgree) {
  read(
      build(fileOf({iconOf(32, 4), iconOf(16, 8), iconOf(32, 24), iconOf(32, 32), entryOf(anyPicture(48, 4), 16, 0)})));
  EXPECT_EQ(findSameIcon(arrays, {32, 32, {16, 4}}, -1), 0);
  EXPECT_EQ(findSameIcon(arrays, {16, 16, 256, 8}, -1), 1);
  EXPECT_EQ(findSameIcon(arrays, {32, 32, {-1, 24}}, -1), 2);
  EXPECT_EQ(findSameIcon(arrays, {32, 32, {-1, 32}}, -1), 3);
  EXPECT_EQ(findSameIcon(arrays, {32, 32, {-1, 32}}, 3), -1) << "its own entry does not count";
  EXPECT_EQ(findSameIcon(arrays, {24, 24, {16, 4}}, -1), -1);
  EXPECT_EQ(findSameIcon(arrays, {32, 32, {256, 8}}, -1), -1);
  EXPECT_EQ(findSameIcon(arrays, {48, 48, {16, 4}}, -1), -1) << "an entry without bit count is never the same";
}

TEST_F(IconUpdatesTest, APaintedDownIconCountsAsWhatItHasBecome) {
  record.dirColors = 256;
  record.bitCount = 8;
  icon.image.fill(kWhite);
  EXPECT_EQ(traitsToWrite(icon, record), (IconTraits{32, 32, {2, 1}}));
  icon.image.SetPixelV(3, 3, 0x0000FF);
  EXPECT_EQ(traitsToWrite(icon, record), (IconTraits{32, 32, {16, 4}}));
  icon.image.SetPixelV(3, 3, 0x123456);
  EXPECT_EQ(traitsToWrite(icon, record), (IconTraits{32, 32, {256, 8}}));
}

TEST_F(IconUpdatesTest, ATrueColorIconStaysOneAndItsAlphaMakesTheDifference) {
  record.dirColors = kTrueColor;
  record.bitCount = 24;
  icon.image.fill(kWhite);
  EXPECT_EQ(traitsToWrite(icon, record), (IconTraits{32, 32, {-1, 24}}));
  record.bitCount = 32;
  record.hasAlpha = true;
  EXPECT_EQ(traitsToWrite(icon, record), (IconTraits{32, 32, {-1, 32}}));
}

TEST_F(IconUpdatesTest, MoreColorsThanAPaletteHoldsCountAsTrueColor) {
  record.dirColors = 256;
  record.bitCount = 8;
  for (int i = 0; i < 32 * 32; ++i) icon.image.SetPixelV(i % 32, i / 32, i);
  EXPECT_EQ(traitsToWrite(icon, record), (IconTraits{32, 32, {-1, 24}}));
}

TEST_F(IconUpdatesTest, TheSizeIsThatOfTheSurface) {
  icon.image.resize(48, 48);
  record.size = 32;
  EXPECT_EQ(traitsToWrite(icon, record).width, 48);
  EXPECT_EQ(traitsToWrite(icon, record).height, 48);
}

TEST_F(IconUpdatesTest, ASingleIconFileGivesItsImage) {
  const auto image = imageOfSingleIcon(FileBytes(build(iconOf(16, 8))));
  ASSERT_TRUE(image);
  EXPECT_EQ(image->bytes, iconOf(16, 8).image);
  EXPECT_EQ(image->entry.width, 16);
  EXPECT_EQ(image->entry.bitCount, 8);
}

TEST_F(IconUpdatesTest, OtherFilesGiveNoImage) {
  EXPECT_FALSE(imageOfSingleIcon(FileBytes(Bytes{1, 2, 3})));
  EXPECT_FALSE(imageOfSingleIcon(FileBytes(build(fileOf({iconOf(16, 8), iconOf(32, 8)})))));
}

}  // namespace
}  // namespace gp::test
