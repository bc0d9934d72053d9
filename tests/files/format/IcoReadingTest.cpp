#include "files/Decoding.h"
#include "files/SlowIconReader.h"

#include <gtest/gtest.h>
#include <random>

namespace gp::test {
namespace {

constexpr int kSizes[] = {16, 24, 32, 48};
constexpr int kDepths[] = {1, 4, 8, 24, 32};

Color expectedColor(const Picture& p, int x, int y) {
  if (p.bits > 8) return colorOf(p.color(x, y));
  const int i = p.index(x, y);
  return rgb(i, 2 * i % 256, 255 - i);  // the builder's palette
}

void expectPicture(const Decoded& d, const Picture& p) {
  ASSERT_EQ(d.defect, IconDefect::None);
  for (int y = 0; y < p.height; ++y) {
    for (int x = 0; x < p.width; ++x) {
      ASSERT_EQ(d.image.GetPixel(x, y), expectedColor(p, x, y)) << x << "," << y;
      ASSERT_EQ(d.mask.GetPixel(x, y), p.transparent(x, y) ? kWhite : kBlack) << x << "," << y;
    }
  }
}

TEST(IcoReading, EveryDepthAndSizeIsReadPixelByPixel) {
  for (const int size : kSizes)
    for (const int bits : kDepths)
      expectPicture(decode(build(entryOf(anyPicture(size, bits)))), anyPicture(size, bits));
}

TEST(IcoReading, TheColorUnderATransparentPixelStaysAsItIs) {
  Picture p = anyPicture(16, 24);
  p.color = [](int, int) { return Rgb{1, 2, 3}; };
  p.transparent = [](int, int) { return true; };
  const Decoded d = decode(build(entryOf(p)));
  EXPECT_EQ(d.image.GetPixel(7, 7), rgb(1, 2, 3));
  EXPECT_EQ(d.mask.GetPixel(7, 7), kWhite);
}

TEST(IcoReading, AlphaIsKeptAndAnAlphaOfZeroReadsAs255) {
  Picture p = anyPicture(16, 32);
  p.color = [](int x, int) { return Rgb{9, 9, 9, x == 0 ? 0 : 10 * x}; };
  p.transparent = [](int x, int y) { return x == 0 && y == 0; };
  const Decoded d = decode(build(entryOf(p)));
  EXPECT_EQ(d.alpha.at(0, 0), 255);
  EXPECT_EQ(d.alpha.at(0, 1), 255);
  EXPECT_EQ(d.alpha.at(1, 0), 10);
  EXPECT_EQ(d.alpha.at(15, 15), 150);
  EXPECT_EQ(d.mask.GetPixel(0, 0), kWhite);
  EXPECT_EQ(d.mask.GetPixel(0, 1), kBlack) << "only the Mask tells transparent pixels";
}

TEST(IcoReading, TrueColorWithoutAlphaIsOpaqueThroughout) {
  const Decoded d = decode(build(entryOf(anyPicture(24, 24))));
  EXPECT_EQ(d.alpha, AlphaMatrix(24, 24, 255));
}

TEST(IcoReading, PalettePicturesLeaveTheAlphaValuesAlone) {
  EXPECT_EQ(decode(build(entryOf(anyPicture(24, 8)))).alpha, AlphaMatrix());
}

TEST(IcoReading, TheDirectoryDecidesHowManyBytesAPixelHas) {
  // The file holds 24 bits, the directory states 32: the second pixel begins with the blue of the next one.
  Picture p = anyPicture(16, 24);
  p.color = [](int x, int) { return Rgb{3 * x + 2, 3 * x + 1, 3 * x}; };
  const Decoded d = decode(build(entryOf(p, 0, 32)));
  EXPECT_EQ(d.image.GetPixel(0, 15), rgb(2, 1, 0));
  EXPECT_EQ(d.image.GetPixel(1, 15), rgb(6, 5, 4));
  EXPECT_EQ(d.alpha.at(0, 15), 3);
}

TEST(IcoReading, AZeroDirectoryOverATrueColorImageGivesAWrongPictureOf256Colors) {
  const Picture p = anyPicture(32, 24);
  const Bytes file = build(entryOf(p, 0, 0));
  const Decoded d = decode(file);
  EXPECT_EQ(d.defect, IconDefect::None);
  // The bottom left pixel is the byte 1024 after the start of the palette, used as an index into the picture's own
  // bytes.
  const std::size_t palette = 22 + 40;
  const std::size_t entry = palette + 4u * file[palette + 1024];
  EXPECT_EQ(d.image.GetPixel(0, 31), rgb(file[entry + 2], file[entry + 1], file[entry]));
}

TEST(IcoReading, AColorCountOf255Over8BitsReads16ColorsAnd4BitRows) {
  Picture p = anyPicture(32, 4);
  const Decoded d = decode(build(entryOf(p, 255, 8)));
  expectPicture(d, p);
}

TEST(IcoReading, SixteenBitIsReadAsFourBytesAPixel) {
  const Picture p = anyPicture(32, 32);
  const Bytes bytes = build(entryOf(p, 0, 16));
  expectPicture(decode(bytes), p);
  const IconFile file = iconFileOf(bytes);
  EXPECT_EQ(defectOfEntry(file, file.entry(0)), IconDefect::StrangeTrueColor);
}

TEST(IcoReading, MissingBytesReadAsZero) {
  const Picture p = anyPicture(16, 24);
  Bytes file = build(entryOf(p));
  file.resize(22 + 40 + 16 * 3 + 3);  // the bottom row and one pixel
  const Decoded d = decode(file);
  EXPECT_EQ(d.image.GetPixel(15, 15), colorOf(p.color(15, 15)));
  EXPECT_EQ(d.image.GetPixel(0, 14), colorOf(p.color(0, 14)));
  EXPECT_EQ(d.image.GetPixel(1, 14), kBlack);
  EXPECT_EQ(d.image.GetPixel(0, 0), kBlack);
  EXPECT_EQ(d.mask.GetPixel(0, 0), kBlack);
}

TEST(IcoReading, ColorCountsWithoutARowFormatAreRefused) {
  for (const int bits : {2, 3, 5, 6, 7})
    EXPECT_EQ(decode(build(entryOf(anyPicture(32, 8), 0, bits))).defect, IconDefect::StrangeDepth) << bits;
}

TEST(IcoReading, ARefusedImageGivesNoPixels) {
  const Decoded refused = decode(build(entryOf(anyPicture(32, 8), 0, 3)));
  EXPECT_EQ(refused.defect, IconDefect::StrangeDepth);
  EXPECT_TRUE(refused.isEmpty());
  EXPECT_EQ(refused.mask.width(), 0);
  EXPECT_EQ(refused.alpha, AlphaMatrix());
}

TEST(IcoReading, AnEntryWithoutWidthOrHeightIsRefused) {
  Entry entry = entryOf(anyPicture(16, 32));
  entry.width = 0;
  EXPECT_EQ(decode(build(entry)).defect, IconDefect::SizeNotOffered);
  entry.width = 16;
  entry.height = 0;
  EXPECT_EQ(decode(build(entry)).defect, IconDefect::SizeNotOffered);
}

// The bytes hold rows of 32 pixels; with another width they are divided into other rows.
TEST(IcoReading, TheIconHasTheSizeThatItIsReadAtAndNotThatOfItsEntry) {
  const IconFile file = iconFileOf(build(entryOf(anyPicture(32, 32))));
  const DecodedIcon decoded = decodeEntry(file, file.entry(0), 20, 10);
  ASSERT_TRUE(decoded.isRead());
  for (const Surface* surface : {&decoded.icon.image, &decoded.icon.mask}) {
    EXPECT_EQ(surface->width(), 20);
    EXPECT_EQ(surface->height(), 10);
  }
  EXPECT_TRUE(decoded.icon.hasAlphaValues());
}

void expectLikeSlowReader(std::span<const std::uint8_t> file, const IconEntry& entry, int width, int height) {
  const DecodedIcon read = decodeEntry(iconFileOf(file), entry, width, height);
  ASSERT_TRUE(read.isRead());
  const IconImage expected = SlowIconReader(file, entry, width, height).read();
  ASSERT_TRUE(samePixels(read.icon.image, expected.image)) << width << "x" << height << " " << entry.bitCount;
  ASSERT_TRUE(samePixels(read.icon.mask, expected.mask)) << width << "x" << height << " " << entry.bitCount;
  ASSERT_EQ(read.icon.alpha, expected.alpha) << width << "x" << height << " " << entry.bitCount;
}

TEST(IcoReading, TheRowReadersEqualTheByteByByteReaderOnRandomBytesOfAnySizeAndLength) {
  std::mt19937 random(20260);
  for (int round = 0; round < 400; ++round) {
    Bytes file(random() % 12000 + 50);
    for (std::uint8_t& byte : file) byte = static_cast<std::uint8_t>(random());
    IconEntry entry;
    entry.bitCount = std::array{0, 1, 4, 8, 16, 24, 32}[random() % 7];
    entry.imageOffset = random() % 3 ? 22 : static_cast<std::uint32_t>(random() % 20000);
    const int width = static_cast<int>(random() % 60 + 1), height = static_cast<int>(random() % 60 + 1);
    ASSERT_NO_FATAL_FAILURE(expectLikeSlowReader(file, entry, width, height)) << round;
  }
}

TEST(IcoReading, AFileCutAtAnyByteReadsLikeOneThatGoesOnWithZeros) {
  for (const int bits : kDepths) {
    const Bytes whole = build(entryOf(anyPicture(16, bits)));
    const IconEntry entry = parseIconDirectory(whole).entry(0);
    for (std::size_t length = 0; length <= whole.size(); ++length)
      ASSERT_NO_FATAL_FAILURE(expectLikeSlowReader(std::span(whole).first(length), entry, 16, 16)) << length;
  }
}

}  // namespace
}  // namespace gp::test
