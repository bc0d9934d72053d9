#include "files/Decoding.h"
#include "files/PngEntries.h"
#include "files/format/IconProbe.h"
#include "files/format/IconUpdates.h"
#include "files/format/PngEntry.h"
#include "files/opening/IconLoading.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

IcoFile fileOf(std::vector<Entry> entries) { return {std::move(entries), 0, 1, {}}; }

Color anyColor(int x, int y) {
  const std::vector<int> rgba = anyRgba(x, y);
  return rgb(rgba[0], rgba[1], rgba[2]);
}

TEST(PngEntry, PicturesOfAllIconSizesHaveTheirColorsAndAlpha) {
  for (const int size : {16, 24, 32, 48}) {
    const Decoded icon = decode(build(anyPngEntry(size)));
    ASSERT_EQ(icon.defect, IconDefect::None) << size;
    ASSERT_EQ(icon.width(), size);
    ASSERT_TRUE(icon.hasAlphaValues());
    for (int y = 0; y < size; ++y)
      for (int x = 0; x < size; ++x) {
        const bool isClear = anyAlpha(x, y) == 0;
        ASSERT_EQ(icon.image.GetPixel(x, y), isClear ? kBlack : anyColor(x, y));
        ASSERT_EQ(icon.mask.GetPixel(x, y), isClear ? kWhite : kBlack);
        ASSERT_EQ(icon.alpha.at(x, y), isClear ? 255 : anyAlpha(x, y));
      }
  }
}

TEST(PngEntry, APictureWithoutAlphaIsOpaqueAndCountsAs24Bits) {
  for (const int type : {png::kRgb, png::kGray}) {
    const IconFile file = iconFileOf(build(anyPngEntry(32, type)));
    const DecodedIcon decoded = loadIconImage(file, 0, true);
    ASSERT_TRUE(decoded.isRead());
    for (int y = 0; y < 32; ++y)
      for (int x = 0; x < 32; ++x) {
        ASSERT_EQ(decoded.icon.mask.GetPixel(x, y), kBlack);
        ASSERT_EQ(decoded.icon.alpha.at(x, y), 255);
      }
    const IconContainerRec record = recordOfLoadedIcon(factsOfEntry(file, 0), decoded.icon, "/a.ico");
    EXPECT_EQ(record.dirColors, -1);
    EXPECT_EQ(record.bitCount, 24);
    EXPECT_EQ(record.bihBitCount, 24);
    EXPECT_FALSE(record.hasAlpha);
  }
}

TEST(PngEntry, TheRecordHas32BitsAndAlphaWhateverTheDirectoryStates) {
  for (const auto& [colors, bits] : {std::pair{0, 32}, {0, 0}, {16, 4}, {2, 1}, {0, 8}, {0, 24}, {7, 31}}) {
    Entry entry = anyPngEntry(32);
    entry.colorCount = colors;
    entry.bitCount = bits;
    const IconFile file = iconFileOf(build(entry));
    const DecodedIcon decoded = loadIconImage(file, 0, true);
    const IconContainerRec record = recordOfLoadedIcon(factsOfEntry(file, 0), decoded.icon, "/a.ico");
    EXPECT_EQ(record.dirColors, -1) << bits;
    EXPECT_EQ(record.bitCount, 32) << bits;
    EXPECT_TRUE(record.hasAlpha) << bits;
    EXPECT_FALSE(record.isDiscrepant()) << bits;
    EXPECT_EQ(record.size, 32);
  }
}

TEST(PngEntry, TransparentColorsOfAPaletteCountAsAlpha) {
  PngFile file = anyPng(16, png::kPalette);
  file.samples = [](int x, int) { return std::vector{x % 3}; };
  file.beforeData = {{"PLTE", {9, 8, 7, 1, 2, 3, 4, 5, 6}, true, {}}, {"tRNS", {0, 100}, true, {}}};
  const Bytes bytes = build(pngEntryOf(file));
  EXPECT_EQ(probeIcon(iconFileOf(bytes), true).joined(), "1/1/0/16/16/-1/32/-1/32");
  const Decoded icon = decode(bytes);
  EXPECT_EQ(icon.mask.GetPixel(0, 0), kWhite);
  EXPECT_EQ(icon.image.GetPixel(0, 0), kBlack);
  EXPECT_EQ(icon.image.GetPixel(1, 0), rgb(1, 2, 3));
  EXPECT_EQ(icon.alpha.at(1, 0), 100);
  EXPECT_EQ(icon.alpha.at(2, 0), 255);
}

TEST(PngEntry, ForAUseWithoutAlphaPixelsBelow128AreTransparent) {
  const Decoded icon = decode(build(anyPngEntry(48)));
  const IconImage plain = withoutAlpha(icon);
  EXPECT_FALSE(plain.hasAlphaValues());
  for (int y = 0; y < 48; ++y)
    for (int x = 0; x < 48; ++x) {
      const bool isClear = anyAlpha(x, y) < 128;
      ASSERT_EQ(plain.image.GetPixel(x, y), isClear ? kBlack : anyColor(x, y)) << anyAlpha(x, y);
      ASSERT_EQ(plain.mask.GetPixel(x, y), isClear ? kWhite : kBlack) << anyAlpha(x, y);
    }
}

// Sizes.

Entry statedAs(Entry entry, int width, int height) {
  entry.width = width;
  entry.height = height;
  return entry;
}

TEST(PngEntry, TheSizeIsThatOfThePictureWhenTheDirectoryStatesAnother) {
  for (const auto& [width, height] : {std::pair{16, 16}, {32, 48}, {0, 0}, {255, 1}}) {
    const IconFile file = iconFileOf(build(statedAs(anyPngEntry(48), width, height)));
    EXPECT_EQ(probeIcon(file, true).joined(), "1/1/0/48/48/-1/32/-1/32");
    EXPECT_TRUE(isUsableEntry(file, file.entry(0)));
    const DecodedIcon decoded = loadIconImage(file, 0, true);
    ASSERT_TRUE(decoded.isRead());
    EXPECT_EQ(decoded.icon.width(), 48);
    EXPECT_EQ(recordOfLoadedIcon(factsOfEntry(file, 0), decoded.icon, "").isDiscrepant(), false);
  }
}

TEST(PngEntry, APictureOfAnotherSizeIsNotOfferedAlthoughTheDirectoryStatesAnIconSize) {
  PngFile oblong = anyPng(32);
  oblong.height = 16;
  for (const PngFile& picture : {anyPng(64), anyPng(31), anyPng(256), anyPng(257), oblong}) {
    const IconFile file = iconFileOf(build(statedAs(pngEntryOf(picture), 32, 32)));
    EXPECT_FALSE(isUsableEntry(file, file.entry(0))) << picture.width;
    EXPECT_EQ(loadIconImage(file, 0, true).defect, IconDefect::SizeNotOffered) << picture.width;
    EXPECT_EQ(countIconSizes(file), 0);
  }
}

TEST(PngEntry, ASizeThatTheCallerStatesMustBeThatOfThePicture) {
  const IconFile file = iconFileOf(build(anyPngEntry(32)));
  EXPECT_EQ(loadIconImage(file, 0, true, ReadSize{16, 16}).defect, IconDefect::SizeNotOffered);
  EXPECT_TRUE(loadIconImage(file, 0, true, ReadSize{32, 32}).isRead());
}

TEST(PngEntry, PicturesUpTo256PixelsAreDecodedByTheirSize) {
  const IconFile file = iconFileOf(build(anyPngEntry(256)));
  const DecodedIcon decoded = decodePngEntry(file, file.entry(0), 256, 256);
  ASSERT_TRUE(decoded.isRead());
  EXPECT_EQ(decoded.icon.image.GetPixel(200, 100), anyColor(200, 100));
  const IconEntry shown = shownEntry(file, file.entry(0));
  EXPECT_EQ(shown.width, 0) << "0 means 256 in a directory";
  EXPECT_EQ(shown.height, 0);
}

TEST(PngEntry, SidesBeyondAllNumbersStayPositive) {
  PngFile huge = anyPng(16);
  huge.statedWidth = 0x80000000;
  huge.statedHeight = 0xFFFFFFFF;
  const IconFile file = iconFileOf(build(pngEntryOf(huge)));
  const IconEntry shown = shownEntry(file, file.entry(0));
  EXPECT_EQ(shown.width, 0x7FFFFFFF);
  EXPECT_EQ(shown.height, 0x7FFFFFFF);
  EXPECT_EQ(probeIcon(file, true).joined(), "1/0/0/0/0/0/0/0/0");
}

TEST(PngEntry, ABitmapIsShownAsItsDirectoryStates) {
  Entry entry = anyEntry(32, 8);
  entry.width = 16;
  entry.bitCount = 4;
  const IconFile file = iconFileOf(build(entry));
  EXPECT_EQ(shownEntry(file, file.entry(0)), file.entry(0));
}

// Choosing.

TEST(PngEntry, OfSeveralEntriesAPngOf32PixelsIsChosenAsABitmapIs) {
  const auto facts = [](std::vector<Entry> entries) {
    return probeIcon(iconFileOf(build(fileOf(std::move(entries)))), true);
  };
  EXPECT_EQ(facts({anyPngEntry(16), anyPngEntry(32), anyPngEntry(48)}).joined(), "2/3/1/32/32/-1/32/-1/32");
  EXPECT_EQ(facts({anyPngEntry(32), anyEntry(32, 8)}).chosen, 1) << "8 bits take the place of any other";
  EXPECT_EQ(facts({statedAs(anyPngEntry(16), 32, 32), anyPngEntry(32)}).chosen, 1);
}

// As with bitmaps, whose directory states 256 pixels and more as 0. One picture with a wrong header is no reason to
// refuse the others.
TEST(PngEntry, AFirstPictureIsRefusedWhenNeitherTheDirectoryNorThePictureStatesASide) {
  const auto kind = [](int size, int stated) {
    const Entry first = statedAs(anyPngEntry(size), stated, stated);
    return probeIcon(iconFileOf(build(fileOf({first, anyPngEntry(32)}))), true).kind;
  };
  for (const int size : {256, 300, 512}) {
    EXPECT_EQ(kind(size, 0), 0) << size;
    EXPECT_EQ(kind(size, 32), 2) << size;
  }
  EXPECT_EQ(kind(16, 0), 2);
}

TEST(PngEntry, ADamagedPictureIsNotChosenWhereAnotherCanBeShown) {
  PngFile damaged = anyPng(32);
  damaged.hasRightDataCrc = false;
  const IconFile file = iconFileOf(build(fileOf({pngEntryOf(damaged), anyEntry(32, 4)})));
  EXPECT_EQ(probeIcon(file, true).joined(), "2/1/1/32/32/16/4/16/4");
  EXPECT_FALSE(isUsableEntry(file, file.entry(0)));
  EXPECT_EQ(countIconSizes(file), 2);
}

TEST(PngEntry, APictureIsTheSameIconAsABitmapOfItsSizeAndDepth) {
  IconArrays arrays;
  const Bytes bytes = build(fileOf({statedAs(anyPngEntry(32), 16, 16), anyPngEntry(48, png::kRgb)}));
  ASSERT_EQ(takeIconArrays(iconFileOf(bytes), ReservedField::MustBeZero, arrays), ArraysDefect::None);
  EXPECT_EQ(findSameIcon(arrays, {32, 32, {kTrueColor, 32}}, -1), 0);
  EXPECT_EQ(findSameIcon(arrays, {16, 16, {kTrueColor, 32}}, -1), -1);
  EXPECT_EQ(findSameIcon(arrays, {48, 48, {kTrueColor, 24}}, -1), 1);
}

// Large files.

// Pads a picture with a chunk of text.
PngFile padded(std::size_t bytes) {
  PngFile file = anyPng(32);
  file.beforeData = {{"tEXt", Bytes(bytes), true, {}}};
  return file;
}

TEST(PngEntry, ALongPictureInALargeFileIsReadAsFarAsItsEntryStates) {
  constexpr std::size_t kLong = 400 * 1024;
  const IconFolder folder;
  Entry first = anyEntry(32, 4);  // keeps the picture away from the directory, which is read with much behind it
  first.image.resize(2'000'000);
  Bytes bytes = build(fileOf({first, pngEntryOf(padded(kLong))}));
  bytes.resize(bytes.size() + 2'000'000);
  const auto file = readIconFile(folder.write("large.ico", bytes));
  ASSERT_TRUE(file);
  EXPECT_TRUE(isUsableEntry(*file, file->entry(0)));
  EXPECT_TRUE(isUsableEntry(*file, file->entry(1)));
}

TEST(PngEntry, APictureOfMoreThan512KilobytesIsDamaged) {
  constexpr std::size_t kMost = 512 * 1024;
  const std::size_t rest = build(padded(0)).size();
  EXPECT_EQ(decode(build(pngEntryOf(padded(kMost - rest)))).defect, IconDefect::None);
  EXPECT_EQ(decode(build(pngEntryOf(padded(kMost - rest + 1)))).defect, IconDefect::DamagedPng);
}

// Bad input. Nothing of a damaged picture is shown.

TEST(PngEntry, DamagedPicturesAreRefused) {
  PngFile header = anyPng(32), data = header, none = header, longer = header, depth = header;
  header.hasRightHeaderCrc = false;
  data.hasRightDataCrc = false;
  none.dataChunks = 0;
  longer.statedHeight = 33;
  depth.bitDepth = 8;
  depth.data = Bytes(100, 0x55);
  for (const PngFile& file : {header, data, none, depth})
    EXPECT_EQ(decode(build(pngEntryOf(file))).defect, IconDefect::DamagedPng);
  EXPECT_EQ(decode(build(pngEntryOf(longer))).defect, IconDefect::DamagedPng) << "the wrong header has a check sum";
}

TEST(PngEntry, APictureThatEndsInsideIsRefusedAtEveryByte) {
  const Bytes whole = build(anyPngEntry(16));
  constexpr std::size_t kPicture = 22, kSignature = 8;
  for (std::size_t size = kPicture + kSignature; size < whole.size(); ++size)
    ASSERT_EQ(decode({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)}).defect,
              IconDefect::DamagedPng);
  EXPECT_EQ(decode(whole).defect, IconDefect::None);
}

TEST(PngEntry, ABombOfZerosIsAnIconOfItsHeadersSize) {
  PngFile bomb = anyPng(32);
  bomb.data = zlibOfZeros(100000);
  const Decoded icon = decode(build(pngEntryOf(bomb)));
  EXPECT_EQ(icon.defect, IconDefect::None);
  EXPECT_TRUE(samePixels(icon.mask, Surface(32, 32, kWhite)));
}

TEST(PngEntry, ABitmapWhereAPngIsExpectedAndTheOtherWayRoundAreToldByTheSignature) {
  Entry bitmap = anyEntry(32, 32);
  bitmap.width = bitmap.height = 0;
  EXPECT_EQ(decode(build(statedAs(bitmap, 32, 32))).defect, IconDefect::None);
  Entry picture = anyEntry(32, 8);
  picture.image = build(anyPng(32));
  const IconFile file = iconFileOf(build(picture));
  EXPECT_EQ(probeIcon(file, true).joined(), "1/1/0/32/32/-1/32/-1/32");
  EXPECT_TRUE(loadIconImage(file, 0, true).isRead());
}

TEST(PngEntry, ACutSignatureIsABitmapOfZeros) {
  Entry cut = anyPngEntry(32);
  cut.image.resize(7);
  EXPECT_EQ(decode(build(cut)).defect, IconDefect::None);
}

TEST(PngEntry, ADamagedPictureDoesNotAffectTheOtherImages) {
  PngFile damaged = anyPng(32);
  damaged.hasRightDataCrc = false;
  const Bytes bytes = build(fileOf({anyEntry(16, 8), pngEntryOf(damaged), anyPngEntry(48)}));
  EXPECT_TRUE(samePixels(decode(bytes, 0).image, decode(build(anyEntry(16, 8))).image));
  EXPECT_EQ(decode(bytes, 1).defect, IconDefect::DamagedPng);
  EXPECT_TRUE(samePixels(decode(bytes, 2).image, decode(build(anyPngEntry(48))).image));
}

TEST(PngEntry, TheDefectIsNamed) { EXPECT_STREQ(describe(IconDefect::DamagedPng), "a damaged PNG image"); }

}  // namespace
}  // namespace gp::test
