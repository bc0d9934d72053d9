#include "files/IcoBuilder.h"
#include "files/IconFileOf.h"
#include "files/browser/MultiIconListing.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

std::vector<ListedEntry> listOf(std::vector<Entry> entries) {
  IconArrays arrays;
  EXPECT_EQ(takeIconArrays(iconFileOf(build(IcoFile{std::move(entries), 0, 1, {}})), ReservedField::Any, arrays),
            ArraysDefect::None);
  return listEntries(arrays);
}
Entry anyEntry(int size, int bits) { return entryOf(anyPicture(size, bits)); }
ListedEntry listed(const Entry& entry) { return listOf({entry}).front(); }
ListedEntry withTold(int colorCount, int bitCount) { return listed(entryOf(anyPicture(16, 8), colorCount, bitCount)); }

TEST(MultiIconListing, ColorsAreThoseThatTheEntryTells) {
  EXPECT_EQ(withTold(2, 1).directory.colors, 2);
  EXPECT_EQ(withTold(16, 4).directory.colors, 16);
  EXPECT_EQ(withTold(0, 8).directory.colors, 256);
  EXPECT_EQ(withTold(0, 24).directory.colors, -1);
  EXPECT_EQ(withTold(0, 9).directory.colors, -1);
  EXPECT_EQ(withTold(0, 0).directory.colors, 256);
}

TEST(MultiIconListing, StrangeColorCountsCountAsTwoOrSixteen) {
  EXPECT_EQ(withTold(1, 8).directory.colors, 2);
  for (const int count : {3, 8, 200, 255}) EXPECT_EQ(withTold(count, 8).directory.colors, 16) << count;
}

TEST(MultiIconListing, TheHeadersBitsAreTheLowByteAtFourteen) {
  Entry entry = anyEntry(16, 4);
  entry.image[14] = 8;
  entry.image[15] = 1;
  EXPECT_EQ(listed(entry).header.bits, 8);
  EXPECT_EQ(listed(entry).header.colors, 16);  // the entry's colour count comes first
  entry.colorCount = 0;
  EXPECT_EQ(listed(entry).header.colors, 256);
}

TEST(MultiIconListing, AnImageTooShortForItsHeaderHasNoBits) {
  Entry entry = anyEntry(16, 4);
  entry.bytesInRes = 14;
  EXPECT_EQ(listed(entry).header.bits, 0);
  entry.bytesInRes = 15;
  EXPECT_EQ(listed(entry).header.bits, 4);
}

TEST(MultiIconListing, StandardAreSquaresOfTheFourIconSizes) {
  for (const int size : {16, 24, 32, 48}) EXPECT_TRUE((ListedEntry{.width = size, .height = size}).isStandard());
  for (const int size : {0, 15, 17, 64, 128, 255})
    EXPECT_FALSE((ListedEntry{.width = size, .height = size}).isStandard()) << size;
  EXPECT_FALSE((ListedEntry{.width = 16, .height = 32}).isStandard());
  EXPECT_FALSE((ListedEntry{.width = 48, .height = 0}).isStandard());
}

TEST(MultiIconListing, ItemTextsHaveThreePartsBehindTheRef) {
  EXPECT_EQ(itemText(3, listed(anyEntry(32, 32)), true), "Ref 3  \t32 BPP\tTrue-Color\t   32 x  32");
  EXPECT_EQ(itemText(12, listed(anyEntry(16, 4)), true), "Ref 12  \t4 BPP\t16-Color\t   16 x  16");
}

TEST(MultiIconListing, OtherSizesAreNotPadded) {
  ListedEntry entry{.width = 64, .height = 8, .directory = {256, 8}};
  EXPECT_EQ(itemText(1, entry, false), "Ref 1  \t8 BPP\t256-Color\t  64 x 8");
  EXPECT_EQ(itemText(1, entry, true), "Ref 1  \t8 BPP\t256-Color\t   64 x   8");
  entry.width = 128;
  EXPECT_EQ(itemText(1, entry, true), "Ref 1  \t8 BPP\t256-Color\t  128 x   8");
}

TEST(MultiIconListing, AnEntryWithoutBitCountHasAnAsteriskBehindItsBits) {
  const ListedEntry entry = listed(entryOf(anyPicture(32, 4), 16, 0));
  EXPECT_TRUE(entry.lacksBits());
  EXPECT_EQ(itemText(1, entry, true), "Ref 1  \t0 BPP*\t16-Color\t   32 x  32");
}

TEST(MultiIconListing, AnEntryThatTellsNothingIsListedWith256Colors) {
  EXPECT_EQ(itemText(2, listed(entryOf(anyPicture(48, 8), 0, 0)), true), "Ref 2  \t0 BPP*\t256-Color\t   48 x  48");
}

TEST(MultiIconListing, ItemsAreReadAgainFromTheirTexts) {
  const ListedEntry entry{.width = 48, .height = 48, .directory = {-1, 24}};
  for (const int ref : {1, 9, 10, 99}) {
    const ItemReading reading = readItem(itemText(ref, entry, true));
    EXPECT_EQ(reading.index, ref - 1);
    EXPECT_EQ(reading.width, 48);
    EXPECT_EQ(reading.height, 48);
  }
}

TEST(MultiIconListing, SidesOfThreeDigitsAreReadAgain) {
  const ItemReading reading = readItem(itemText(1, {.width = 128, .height = 7, .directory = {2, 1}}, true));
  EXPECT_EQ(reading.width, 128);
  EXPECT_EQ(reading.height, 7);
}

// Only two characters are read.
TEST(MultiIconListing, Ref100ReadsAs10AndIsKnownNotToBe) {
  const ListedEntry entry{.width = 16, .height = 16, .directory = {16, 4}};
  for (const int ref : {1, 9, 10, 99, 100, 101, 110, 257, 1000, 65535}) {
    const ItemReading reading = readItem(itemText(ref, entry, true));
    EXPECT_EQ(reading.ref, ref);
    EXPECT_EQ(reading.isOfItsEntry(), ref < 100) << ref;
  }
  EXPECT_EQ(readItem(itemText(100, entry, true)).index, 9);
  EXPECT_EQ(readItem(itemText(257, entry, true)).index, 24);
  EXPECT_EQ(readItem(itemText(65535, entry, true)).index, 64);
}

int selectedAmong(const std::vector<std::pair<int, int>>& sizesAndBits) {
  DefaultSelection selection;
  for (int item = 0; const auto& [size, bits] : sizesAndBits) selection.consider(item++, size, bits);
  return selection.item();
}

TEST(DefaultSelection, IsTheFirst32x32Entry) { EXPECT_EQ(selectedAmong({{16, 4}, {32, 4}, {32, 24}, {48, 8}}), 1); }

TEST(DefaultSelection, IsDisplacedByALater32x32EntryOf8Bits) {
  EXPECT_EQ(selectedAmong({{16, 4}, {32, 4}, {32, 8}, {32, 24}}), 2);
  EXPECT_EQ(selectedAmong({{32, 8}, {32, 8}, {48, 8}}), 1);
}

TEST(DefaultSelection, AFirst32x32EntryAtTheTopStandsAgainstThoseOfOtherBits) {
  EXPECT_EQ(selectedAmong({{32, 4}, {32, 24}, {32, 32}}), 0);
}

TEST(DefaultSelection, IsTheTopWithout32x32) {
  EXPECT_EQ(selectedAmong({{16, 8}, {48, 8}}), 0);
  EXPECT_EQ(selectedAmong({}), 0);
}

}  // namespace
}  // namespace gp::test
