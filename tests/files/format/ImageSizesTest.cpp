// The bytes that belong to an image whose directory entry states too few.
#include "files/IcoBuilder.h"
#include "files/IconFileOf.h"
#include "files/format/ImageSizes.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

std::uint32_t sizeOf(const Bytes& file, int index = 0) {
  const IconFile icons = iconFileOf(file);
  return ImageSizes(icons).sizeOf(icons.entry(index));
}

std::uint32_t sizeIn(const Bytes& image) { return static_cast<std::uint32_t>(image.size()); }

Entry statedAs(Entry entry, std::uint32_t bytes) {
  entry.bytesInRes = bytes;
  return entry;
}

Bytes fileOf(std::vector<Entry> entries) { return build(IcoFile{std::move(entries), 0, 1, {}}); }

// Signature, chunks of data and, unless it is cut, the last chunk.
Bytes pngImage(bool isWhole) {
  Bytes image{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 2, 'I', 'D', 'A', 'T', 7, 7, 'c', 'r', 'c', '1'};
  if (isWhole) append(image, {0, 0, 0, 0, 'I', 'E', 'N', 'D', 'c', 'r', 'c', '2'});
  return image;
}

Entry entryWith(const Bytes& image) {
  Entry entry;
  entry.bitCount = 32;
  entry.image = image;
  return entry;
}

TEST(ImageSizes, ATooSmallCountBecomesWhatTheHeaderDescribesForEveryDepth) {
  for (const int bits : {1, 4, 8, 24, 32}) {
    for (const int size : {16, 24, 32, 48}) {
      const Entry icon = anyEntry(size, bits);
      const std::uint32_t whole = sizeIn(icon.image);
      for (const std::uint32_t stated : {0U, 1U, 39U, 40U, 50U, whole - 1, whole})
        EXPECT_EQ(sizeOf(fileOf({statedAs(icon, stated), anyEntry(32, 8)})), whole)
            << bits << " " << size << " " << stated;
    }
  }
}

TEST(ImageSizes, ALargerCountStays) {
  const Entry icon = anyEntry(16, 4);
  EXPECT_EQ(sizeOf(fileOf({statedAs(icon, sizeIn(icon.image) + 20), anyEntry(32, 8)})), sizeIn(icon.image) + 20);
}

TEST(ImageSizes, AnImageReachesToTheEndOfTheFileAtMost) {
  const Entry icon = anyEntry(16, 4);
  Bytes file = fileOf({statedAs(icon, 60)});
  file.resize(file.size() - 30);
  EXPECT_EQ(sizeOf(file), sizeIn(icon.image) - 30);
  file.resize(6 + 16 + 40);
  EXPECT_EQ(sizeOf(file), 60U) << "what is stated is never made smaller";
}

TEST(ImageSizes, WithoutAWholeHeaderTheStatedCountStays) {
  Bytes file = fileOf({statedAs(anyEntry(16, 4), 10)});
  file.resize(6 + 16 + 39);
  EXPECT_EQ(sizeOf(file), 10U);
  Entry beyond = statedAs(anyEntry(16, 4), 10);
  beyond.offset = 0xFFFFFFFF;
  EXPECT_EQ(sizeOf(fileOf({beyond})), 10U);
}

// The entry of a correct image with a palette of 10 colours.
Entry shortPalette() {
  Picture picture = anyPicture(16, 8);
  picture.colorsUsed = 10;
  Entry icon = entryOf(picture);
  icon.image.erase(icon.image.begin() + 40 + 10 * 4, icon.image.begin() + 40 + 256 * 4);
  return icon;
}

TEST(ImageSizes, ACorrectImageWithAShortPaletteStays) {
  const Entry icon = shortPalette();
  EXPECT_EQ(sizeOf(fileOf({icon, anyEntry(32, 8)})), sizeIn(icon.image));
}

TEST(ImageSizes, AWrongCountBesideAShortPaletteKeepsRoomForTheFullOneThatReadersUse) {
  const Entry icon = shortPalette();
  EXPECT_EQ(sizeOf(fileOf({statedAs(icon, sizeIn(icon.image) - 1), anyEntry(32, 8)})), sizeIn(anyEntry(16, 8).image));
}

TEST(ImageSizes, AHeaderOfAnImageThatNoIconCanHaveIsNotBelieved) {
  Picture huge = anyPicture(16, 8);
  huge.headerWidth = 0x7FFFFFFF;
  huge.headerHeight = 0x7FFFFFFF;
  EXPECT_EQ(sizeOf(fileOf({statedAs(entryOf(huge), 77), anyEntry(48, 32)})), 77U);
}

TEST(ImageSizes, AnUnknownFormatNeedsItsHeader) {
  Picture packed = anyPicture(16, 8);
  packed.compression = 1;
  EXPECT_EQ(sizeOf(fileOf({statedAs(entryOf(packed), 7)})), 40U);
  EXPECT_EQ(sizeOf(fileOf({statedAs(entryOf(packed), 100)})), 100U);
}

TEST(ImageSizes, APngPictureReachesToItsLastChunk) {
  const Bytes whole = pngImage(true), cut = pngImage(false);
  for (const std::uint32_t stated : {0U, 8U, sizeIn(whole) - 1, sizeIn(whole)})
    EXPECT_EQ(sizeOf(fileOf({statedAs(entryWith(whole), stated), anyEntry(16, 4)})), sizeIn(whole));
  EXPECT_EQ(sizeOf(fileOf({statedAs(entryWith(cut), 9)})), 9U);
}

TEST(ImageSizes, EntriesThatShareAPngPictureAreSearchedNoFurtherThanTheFileIsLong) {
  const Bytes whole = pngImage(true);
  std::vector<Entry> entries(300, statedAs(entryWith({}), 8));
  entries.front().image = whole;
  for (Entry& entry : entries) entry.offset = 6 + 300 * 16;
  const IconFile icons = iconFileOf(fileOf(entries));
  ImageSizes sizes(icons);
  std::size_t found = 0;
  for (int i = 0; i < 300; ++i) found += sizes.sizeOf(icons.entry(i)) == whole.size();
  EXPECT_EQ(found, icons.span().size() / whole.size());
}

}  // namespace
}  // namespace gp::test
