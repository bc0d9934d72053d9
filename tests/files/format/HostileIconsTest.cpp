// One test for each known kind of defect in icon files. The parameters of the builders say what is wrong. Expected
// everywhere: a result without a crash, no memory allocated for missing data, and no effect on other images.
#include "files/Decoding.h"
#include "files/format/IconProbe.h"

#include <gtest/gtest.h>
#include <random>

namespace gp::test {
namespace {

constexpr const char* kNoIcon = "0/0/0/0/0/0/0/0/0";

std::string probe(const Bytes& file) { return probeIcon(iconFileOf(file), true).joined(); }
Entry icon(int size, int bits) { return entryOf(anyPicture(size, bits)); }
IcoFile fileOf(std::vector<Entry> entries) { return {std::move(entries), 0, 1, {}}; }

Decoded good(int size, int bits) { return decode(build(icon(size, bits))); }
bool sameIcon(const Decoded& a, const Decoded& b) {
  return a.defect == IconDefect::None && samePixels(a.image, b.image) && samePixels(a.mask, b.mask);
}

// A correct picture with wrong values in its bitmap header.
template <class F>
Decoded withHeader(int size, int bits, F lie) {
  Picture p = anyPicture(size, bits);
  lie(p);
  return decode(build(entryOf(p)));
}

// C1: the directory.

TEST(HostileDirectory, ReservedNotZeroIsIgnored) {
  IcoFile file = fileOf({icon(32, 4)});
  file.reserved = 0xFFFF;
  EXPECT_EQ(probe(build(file)), "1/1/0/32/32/16/4/16/4");
}

TEST(HostileDirectory, TypesOtherThanIconAreNoIconFile) {
  IcoFile file = fileOf({icon(32, 4)});
  for (const int type : {0, 2, 3, 0x0100, 0xFFFF}) {
    file.type = type;
    EXPECT_EQ(probe(build(file)), kNoIcon) << type;
  }
}

TEST(HostileDirectory, ACountOfZeroIsNoIconFile) {
  IcoFile file = fileOf({icon(32, 4)});
  file.count = 0;
  EXPECT_EQ(probe(build(file)), kNoIcon);
}

TEST(HostileDirectory, AHugeCountTakesNoMoreRoomThanTheFileHas) {
  IcoFile file = fileOf({icon(32, 4)});
  file.count = 65535;
  const Bytes bytes = build(file);
  EXPECT_LE(parseIconDirectory(bytes).entries.size(), bytes.size() / 16 + 1);
  EXPECT_TRUE(sameIcon(decode(bytes, 0), good(32, 4)));
}

TEST(HostileDirectory, AWidthOrHeightOfZeroInTheFirstEntryIsNoIconFile) {
  Entry entry = icon(32, 4);
  entry.width = 0;
  EXPECT_EQ(probe(build(entry)), kNoIcon);
  entry.width = 32;
  entry.height = 0;
  EXPECT_EQ(probe(build(entry)), kNoIcon);
}

TEST(HostileDirectory, ADirectorySizeOtherThanTheImagesIsBelieved) {
  Entry entry = icon(32, 4);
  entry.width = entry.height = 16;
  const Decoded d = decode(build(entry));
  EXPECT_EQ(d.defect, IconDefect::None);
  EXPECT_EQ(d.image.width(), 16);
}

TEST(HostileDirectory, AZeroBitCountIsMadeUpForByTheColorCount) {
  EXPECT_TRUE(sameIcon(decode(build(entryOf(anyPicture(32, 4), 16, 0))), good(32, 4)));
  EXPECT_TRUE(sameIcon(decode(build(entryOf(anyPicture(32, 1), 2, 0))), good(32, 1)));
  EXPECT_TRUE(sameIcon(decode(build(entryOf(anyPicture(32, 8), 0, 0))), good(32, 8)));
}

TEST(HostileDirectory, AColorCountOfZeroLeavesTheBitCountToDecide) {
  EXPECT_TRUE(sameIcon(decode(build(entryOf(anyPicture(32, 4), 0, 4))), good(32, 4)));
  EXPECT_TRUE(sameIcon(decode(build(entryOf(anyPicture(32, 8), 0, 8))), good(32, 8)));
}

TEST(HostileDirectory, ALyingColorCountWinsOverTheBitCount) {
  EXPECT_TRUE(sameIcon(decode(build(entryOf(anyPicture(32, 4), 200, 24))), good(32, 4)));
  EXPECT_TRUE(sameIcon(decode(build(entryOf(anyPicture(32, 1), 1, 32))), good(32, 1)));
}

TEST(HostileDirectory, ACursorsHotSpotIsNeverTakenForADepth) {
  IcoFile file = fileOf({entryOf(anyPicture(32, 1), 2, 31)});  // a cursor of one colour, hot spot at 1, 31
  file.type = 2;
  EXPECT_EQ(probe(build(file)), kNoIcon);
}

TEST(HostileDirectory, AnOffsetInsideTheDirectoryReadsThoseBytes) {
  Entry entry = icon(32, 24);
  entry.offset = 1;
  EXPECT_EQ(decode(build(entry)).defect, IconDefect::None);
}

TEST(HostileDirectory, OffsetAndSizeBehindTheEndReadAsZeros) {
  for (const std::uint32_t offset : {0x7FFFFFFFu, 0x80000000u, 0xFFFFFFF0u, 0xFFFFFFFFu}) {
    Entry entry = icon(32, 24);
    entry.offset = offset;
    entry.bytesInRes = 0xFFFFFFFF;
    const Decoded d = decode(build(entry));
    EXPECT_EQ(d.defect, IconDefect::None);
    EXPECT_TRUE(samePixels(d.image, Surface(32, 32, kBlack)));
    EXPECT_TRUE(samePixels(d.mask, Surface(32, 32, kBlack)));
  }
}

TEST(HostileDirectory, TwoEntriesMayShareTheirImage) {
  Entry first = icon(32, 4), second = icon(32, 4);
  first.offset = second.offset = 6 + 2 * 16;
  const Bytes bytes = build(fileOf({first, second}));
  EXPECT_TRUE(sameIcon(decode(bytes, 0), good(32, 4)));
  EXPECT_TRUE(sameIcon(decode(bytes, 1), good(32, 4)));
}

TEST(HostileDirectory, AWrongSizeOfTheResourcePlaysNoPart) {
  for (const std::uint32_t size : {1u, 100u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
    Entry entry = icon(32, 8);
    entry.bytesInRes = size;
    EXPECT_TRUE(sameIcon(decode(build(entry)), good(32, 8))) << size;
  }
}

TEST(HostileDirectory, AResourceSizeOfZeroInTheFirstEntryIsNoIconFile) {
  Entry entry = icon(32, 8);
  entry.bytesInRes = 0;
  EXPECT_EQ(probe(build(entry)), kNoIcon);
}

TEST(HostileDirectory, GarbageBetweenImagesAndEntriesOutOfOrderAreRead) {
  const std::uint32_t start = 6 + 2 * 16;
  Entry first = icon(16, 8), second = icon(32, 4);
  const Bytes garbage(37, 0xEE);
  second.offset = start;
  first.offset = start + static_cast<std::uint32_t>(second.image.size() + garbage.size());
  Bytes bytes = build(fileOf({first, second}));
  bytes.resize(start);
  append(bytes, second.image);
  append(bytes, garbage);
  append(bytes, first.image);
  EXPECT_TRUE(sameIcon(decode(bytes, 0), good(16, 8)));
  EXPECT_TRUE(sameIcon(decode(bytes, 1), good(32, 4)));
}

TEST(HostileDirectory, OneSizeInTwoDepthsPrefersEightBits) {
  EXPECT_EQ(probe(build(fileOf({icon(32, 24), icon(32, 8)}))), "2/2/1/32/32/256/8/256/8");
}

TEST(HostileDirectory, AFileCutAtAnyByteIsAnswered) {
  const Bytes whole = build(fileOf({icon(16, 32), icon(32, 8)}));
  constexpr std::size_t kSecondSizeKnown = 6 + 16 + 2;
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    const IconFacts facts = probeIcon(iconFileOf(cut), true);
    EXPECT_EQ(facts.canBeOpened(), length >= kSecondSizeKnown) << length;
    if (facts.canBeOpened()) {
      EXPECT_EQ(facts.chosen, 1) << length;
      EXPECT_EQ(facts.width, 32) << length;
    }
  }
}

TEST(HostileDirectory, AFileCutBehindItsDirectoryStillDecodes) {
  const Bytes whole = build(fileOf({icon(16, 32), icon(32, 8)}));
  for (std::size_t length = 6 + 2 * 16; length <= whole.size(); ++length) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    ASSERT_EQ(decode(cut, 0).defect, IconDefect::None) << length;
    ASSERT_EQ(decode(cut, 1).defect, IconDefect::None) << length;
  }
}

// C2: the bitmap inside.

TEST(HostileBitmap, TheHeightInTheHeaderPlaysNoPart) {
  for (const int height : {0, 32, 33, 63, -64, -32, 0x7FFFFFFF, std::numeric_limits<int>::min()})
    EXPECT_TRUE(sameIcon(withHeader(32, 8, [=](Picture& p) { p.headerHeight = height; }), good(32, 8))) << height;
}

TEST(HostileBitmap, TheWidthInTheHeaderPlaysNoPart) {
  for (const int width : {0, -1, 16, 0x7FFFFFFF})
    EXPECT_TRUE(sameIcon(withHeader(32, 4, [=](Picture& p) { p.headerWidth = width; }), good(32, 4))) << width;
}

TEST(HostileBitmap, ColorsUsedPlaysNoPart) {
  for (const std::uint32_t used : {1u, 3u, 257u, 0x40000000u, 0xFFFFFFFFu})
    EXPECT_TRUE(sameIcon(withHeader(32, 8, [=](Picture& p) { p.colorsUsed = used; }), good(32, 8))) << used;
}

TEST(HostileBitmap, AnIndexBehindAShortPaletteTakesWhatStandsThere) {
  // A palette of 3 colours in a file of 8 bits: the reader still reads 256 entries.
  Picture p = anyPicture(16, 8);
  p.colorsUsed = 3;
  const Decoded d = decode(build(entryOf(p)));
  EXPECT_EQ(d.defect, IconDefect::None);
}

TEST(HostileBitmap, AMissingMaskIsOpaque) {
  Entry entry = icon(32, 24);
  entry.image.resize(entry.image.size() - 128);
  const Decoded d = decode(build(entry));
  EXPECT_TRUE(samePixels(d.image, good(32, 24).image));
  EXPECT_TRUE(samePixels(d.mask, Surface(32, 32, kBlack)));
}

TEST(HostileBitmap, ACutMaskIsOpaqueFromThereUpwards) {
  Entry entry = icon(32, 24);
  entry.image.resize(entry.image.size() - 64);
  const Decoded d = decode(build(entry)), whole = good(32, 24);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) ASSERT_EQ(d.mask.GetPixel(x, y), y < 16 ? kBlack : whole.mask.GetPixel(x, y));
}

TEST(HostileBitmap, TheMaskStandsBehindThePictureNotBeforeTheEnd) {
  Entry entry = icon(32, 24);
  append(entry.image, Bytes(500, 0xFF));
  EXPECT_TRUE(sameIcon(decode(build(entry)), good(32, 24)));
}

TEST(HostileBitmap, AnAlphaThatIsZeroThroughoutIsOpaque) {
  Picture p = anyPicture(32, 32);
  p.color = [](int x, int y) { return Rgb{x, y, 7, 0}; };
  const Decoded d = decode(build(entryOf(p)));
  EXPECT_EQ(d.alpha, AlphaMatrix(32, 32, 255));
}

TEST(HostileBitmap, AlphaAndAContradictingMaskAreBothKept) {
  Picture p = anyPicture(16, 32);
  p.color = [](int, int) { return Rgb{1, 2, 3, 200}; };
  p.transparent = [](int, int) { return true; };
  const Decoded d = decode(build(entryOf(p)));
  EXPECT_EQ(d.alpha, AlphaMatrix(16, 16, 200));
  EXPECT_TRUE(samePixels(d.mask, Surface(16, 16, kWhite)));
}

TEST(HostileBitmap, RandomMaskBitsAreTaken) {
  std::mt19937 random(27);
  std::vector<bool> bits(32 * 32);
  for (std::size_t i = 0; i < bits.size(); ++i) bits[i] = random() % 2;
  Picture p = anyPicture(32, 4);
  p.transparent = [&](int x, int y) { return bits[static_cast<std::size_t>(y * 32 + x)]; };
  const Decoded d = decode(build(entryOf(p)));
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) ASSERT_EQ(d.mask.GetPixel(x, y) == kWhite, bits[static_cast<std::size_t>(y * 32 + x)]);
}

TEST(HostileBitmap, AnInvertingPixelKeepsItsColorUnderTheMask) {
  Picture p = anyPicture(32, 24);
  p.color = [](int, int) { return Rgb{255, 255, 255}; };
  p.transparent = [](int, int) { return true; };
  const Decoded d = decode(build(entryOf(p)));
  EXPECT_EQ(d.image.GetPixel(9, 9), kWhite);
  EXPECT_EQ(d.mask.GetPixel(9, 9), kWhite);
}

TEST(HostileBitmap, TwoBitImagesAreRefused) {
  EXPECT_EQ(decode(build(entryOf(anyPicture(32, 2), 0, 2))).defect, IconDefect::StrangeDepth);
}

TEST(HostileBitmap, SixteenBitsAndOddHeadersAreReadByTheDirectoryAlone) {
  EXPECT_EQ(defectOfEntry(iconFileOf(build(entryOf(anyPicture(32, 32), 0, 16))), IconEntry{32, 32, 0, 16, 1, 22}),
            IconDefect::StrangeTrueColor);
  for (const std::uint32_t size : {12u, 52u, 108u, 124u, 0u, 0xFFFFFFFFu})
    EXPECT_TRUE(sameIcon(withHeader(32, 24, [=](Picture& p) { p.headerSize = size; }), good(32, 24))) << size;
}

TEST(HostileBitmap, CompressionPlaysNoPart) {
  for (const std::uint32_t compression : {1u, 2u, 3u, 4u, 5u, 0xFFFFFFFFu})
    EXPECT_TRUE(sameIcon(withHeader(32, 8, [=](Picture& p) { p.compression = compression; }), good(32, 8)))
        << compression;
}

TEST(HostileBitmap, RowsAreNotAMultipleOfFourBytesLong) {
  for (const int bits : {1, 4}) {
    const Picture p = anyPicture(24, bits);
    const Decoded d = decode(build(entryOf(p)));
    EXPECT_EQ(d.image.GetPixel(23, 0), rgb(p.index(23, 0), 2 * p.index(23, 0), 255 - p.index(23, 0)));
    EXPECT_EQ(d.mask.GetPixel(23, 0), p.transparent(23, 0) ? kWhite : kBlack);
  }
}

TEST(HostileBitmap, NonSquareEntriesAreNotUsable) {
  Entry entry = icon(32, 8);
  entry.height = 16;
  const IconFile file = iconFileOf(build(entry));
  EXPECT_FALSE(isUsableEntry(file, file.entry(0)));
}

TEST(HostileBitmap, OtherPictureFilesUnderTheNameOfAnIconAreNoIconFile) {
  const Bytes others[] = {{'B', 'M', 0x36, 0x0C, 0, 0, 0, 0, 0, 0, 0x36, 0, 0, 0},
                          {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'},
                          {'G', 'I', 'F', '8', '9', 'a', 32, 0, 32, 0},
                          {1, 0, 0, 0, 32, 0, 32, 0, 4, 0, 0, 0},  // an icon from the first version of Windows
                          {'M', 'Z', 0x90, 0}};
  for (const Bytes& other : others) EXPECT_EQ(probe(other), kNoIcon);
}

}  // namespace
}  // namespace gp::test
