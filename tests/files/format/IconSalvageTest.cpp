#include "files/IcoBuilder.h"
#include "files/IconFileOf.h"
#include "files/format/IconSalvage.h"

#include <gtest/gtest.h>
#include <limits>

namespace gp::test {
namespace {

const Bytes kPng{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R', 0, 0, 0, 16};

Bytes header(int width, int height, int bits) {
  Picture picture;
  picture.headerWidth = width;
  picture.headerHeight = height;
  picture.headerBits = bits;
  return bitmapHeader(picture);
}

// Arrays that own their bytes, as if read from a file.
IconArrays arraysOf(const std::vector<Entry>& entries) {
  IconArrays arrays;
  EXPECT_EQ(takeIconArrays(iconFileOf(build(IcoFile{entries, 0, 1, {}})), ReservedField::Any, arrays),
            ArraysDefect::None);
  return arrays;
}

Entry entryOfImage(const Bytes& image, int width, int height, int bits) {
  Entry entry;
  entry.width = width;
  entry.height = height;
  entry.bitCount = bits;
  entry.image = image;
  return entry;
}

struct HeaderCase {
  int width, height, bits;
  HeaderFacts facts;
};

class HeaderFactsOfBytes : public testing::TestWithParam<HeaderCase> {};

TEST_P(HeaderFactsOfBytes, AreLowBytesAndHalfTheHeight) {
  const HeaderCase& c = GetParam();
  const HeaderFacts facts = headerFactsOf(header(c.width, c.height, c.bits));
  EXPECT_EQ(facts.width, c.facts.width);
  EXPECT_EQ(facts.height, c.facts.height);
  EXPECT_EQ(facts.bits, c.facts.bits);
}

INSTANTIATE_TEST_SUITE_P(Usual, HeaderFactsOfBytes,
                         testing::Values(HeaderCase{16, 32, 4, {16, 16, 4}}, HeaderCase{32, 64, 8, {32, 32, 8}},
                                         HeaderCase{128, 256, 32, {128, 128, 32}},
                                         HeaderCase{255, 510, 24, {255, 255, 24}}));
INSTANTIATE_TEST_SUITE_P(Of256PixelsAndMore, HeaderFactsOfBytes,
                         testing::Values(HeaderCase{256, 512, 32, {0, 0, 32}}, HeaderCase{300, 600, 8, {44, 44, 8}},
                                         HeaderCase{32, 511, 8, {32, 128, 8}}));
INSTANTIATE_TEST_SUITE_P(NotDoubledOddOrNone, HeaderFactsOfBytes,
                         testing::Values(HeaderCase{32, 32, 4, {32, 16, 4}}, HeaderCase{32, 0, 4, {32, 0, 4}},
                                         HeaderCase{32, 1, 4, {32, 0, 4}}, HeaderCase{32, 3, 4, {32, 2, 4}},
                                         HeaderCase{32, 5, 4, {32, 2, 4}}, HeaderCase{32, 63, 4, {32, 32, 4}},
                                         HeaderCase{32, 257, 4, {32, 128, 4}}));
INSTANTIATE_TEST_SUITE_P(OfTheTopRowFirst, HeaderFactsOfBytes,
                         testing::Values(HeaderCase{32, -64, 4, {32, 32, 4}}, HeaderCase{128, -256, 8, {128, 128, 8}},
                                         HeaderCase{255, -510, 8, {255, 255, 8}}, HeaderCase{32, -1, 4, {32, 0, 4}},
                                         HeaderCase{32, -3, 4, {32, 2, 4}}, HeaderCase{0, -512, 8, {0, 0, 8}},
                                         HeaderCase{32, std::numeric_limits<int>::min(), 4, {32, 0, 4}}));
INSTANTIATE_TEST_SUITE_P(NegativeWidthHugeAndStrange, HeaderFactsOfBytes,
                         testing::Values(HeaderCase{-1, 2, 4, {255, 1, 4}},
                                         HeaderCase{0x7FFFFFFF, 0x7FFFFFFF, 4, {255, 128, 4}},
                                         HeaderCase{32, 64, 16, {32, 32, 16}}, HeaderCase{32, 64, 65535, {32, 32, 255}},
                                         HeaderCase{32, 64, 0, {32, 32, 0}}, HeaderCase{32, 64, 256, {32, 32, 0}}));

TEST(IconSalvage, AnImageCutBeforeItsBitsHasNoHeader) {
  const Bytes whole = header(32, 64, 8);
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const ImageBytes cut = ImageBytes(whole).first(size);
    EXPECT_EQ(hasBitmapHeader(cut), size >= 15) << size;
    EXPECT_EQ(headerFactsOf(cut), size >= 15 ? (HeaderFacts{32, 32, 8}) : HeaderFacts{}) << size;
  }
}

TEST(IconSalvage, APngPictureHasNoBitmapHeader) {
  EXPECT_FALSE(hasBitmapHeader(kPng));
  EXPECT_EQ(headerFactsOf(kPng), HeaderFacts{});
}

TEST(IconSalvage, EntriesTakeSizeAndBitsOfTheirHeadersAndNothingElse) {
  Entry lying = entryOfImage(header(24, 40, 8), 32, 48, 4);
  lying.colorCount = 16;
  IconArrays arrays = arraysOf({lying});
  arrays.entries[0].reserved = 7;
  arrays.entries[0].planes = 9;
  const std::uint32_t offset = arrays.entries[0].imageOffset;
  salvageEntries(arrays);
  const IconEntry& entry = arrays.entries[0];
  EXPECT_EQ(entry.width, 24);
  EXPECT_EQ(entry.height, 20);
  EXPECT_EQ(entry.bitCount, 8);
  EXPECT_EQ(entry.colorCount, 16);
  EXPECT_EQ(entry.reserved, 7);
  EXPECT_EQ(entry.planes, 9);
  EXPECT_EQ(entry.bytesInRes, 40U);
  EXPECT_EQ(entry.imageOffset, offset);
}

TEST(IconSalvage, EntriesWithoutABitmapHeaderStayAsTheyAre) {
  IconArrays arrays = arraysOf({entryOfImage(kPng, 48, 48, 32), entryOfImage({1, 2, 3}, 16, 24, 4),
                                entryOfImage({}, 24, 16, 8), entryOfImage(header(32, 64, 8), 16, 16, 4)});
  salvageEntries(arrays);
  const auto statedSize = [&](std::size_t i) {
    return std::vector<int>{arrays.entries[i].width, arrays.entries[i].height, arrays.entries[i].bitCount};
  };
  EXPECT_EQ(statedSize(0), (std::vector<int>{48, 48, 32}));
  EXPECT_EQ(statedSize(1), (std::vector<int>{16, 24, 4}));
  EXPECT_EQ(statedSize(2), (std::vector<int>{24, 16, 8}));
  EXPECT_EQ(statedSize(3), (std::vector<int>{32, 32, 8}));
}

TEST(IconSalvage, AnEntryAbove128RefusesTheWholeFileWhateverItsHeaderSays) {
  const Bytes image = header(32, 64, 8);
  EXPECT_TRUE(canBeSalvaged(arraysOf({entryOfImage(image, 128, 128, 8)})));
  EXPECT_FALSE(canBeSalvaged(arraysOf({entryOfImage(image, 129, 32, 8)})));
  EXPECT_FALSE(canBeSalvaged(arraysOf({entryOfImage(image, 32, 32, 8), entryOfImage(image, 32, 129, 8)})));
}

TEST(IconSalvage, A256WideImagePassesByItsEntryByteOfZero) {
  EXPECT_TRUE(canBeSalvaged(arraysOf({entryOfImage(header(256, 512, 32), 0, 0, 32)})));
}

}  // namespace
}  // namespace gp::test
