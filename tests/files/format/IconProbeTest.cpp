#include "files/IcoBuilder.h"
#include "files/IconFileOf.h"
#include "files/format/IconProbe.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr const char* kNoIcon = "0/0/0/0/0/0/0/0/0";

std::string probe(const IcoFile& file, bool preferEightBit = true) {
  return probeIcon(iconFileOf(build(file)), preferEightBit).joined();
}
std::string probe(const Entry& entry) { return probe(IcoFile{{entry}, 0, 1, {}}); }

Entry icon(int size, int bits) { return entryOf(anyPicture(size, bits)); }

TEST(IconProbe, OneEntryGivesItsNumbers) {
  EXPECT_EQ(probe(icon(16, 1)), "1/1/0/16/16/2/1/2/1");
  EXPECT_EQ(probe(icon(24, 4)), "1/1/0/24/24/16/4/16/4");
  EXPECT_EQ(probe(icon(48, 8)), "1/1/0/48/48/256/8/256/8");
  EXPECT_EQ(probe(icon(32, 24)), "1/1/0/32/32/-1/24/-1/24");
  EXPECT_EQ(probe(icon(32, 32)), "1/1/0/32/32/-1/32/-1/32");
}

TEST(IconProbe, OldIconsWithoutBitCountGetTheirColorsFromTheColorCount) {
  EXPECT_EQ(probe(entryOf(anyPicture(32, 4), 16, 0)), "1/1/0/32/32/16/0/16/4");
  EXPECT_EQ(probe(entryOf(anyPicture(32, 8), 0, 0)), "1/1/0/32/32/256/0/256/8");
}

TEST(IconProbe, BitCountFollowsFromColorsWhereItIsStrange) {
  IconFacts facts;
  facts.directory.colors = 16;
  EXPECT_EQ(facts.depth().bits, 4);
  facts.directory.colors = 2;
  facts.directory.bits = 24;
  EXPECT_EQ(facts.depth().bits, 1);
  facts.directory.colors = 256;
  EXPECT_EQ(facts.depth().bits, 8);
  facts.directory.bits = 4;
  EXPECT_EQ(facts.depth().bits, 4);
  facts.directory.colors = -1;
  facts.directory.bits = 16;
  EXPECT_EQ(facts.depth().bits, 16);
}

TEST(IconProbe, WidthAndHeightOfASingleEntryMayDiffer) {
  Entry entry = icon(32, 4);
  entry.width = 16;
  EXPECT_EQ(probe(entry), "1/1/0/16/32/16/4/16/4");
}

TEST(IconProbe, ASingleEntryOfAnotherSizeIsNotUsable) {
  Entry entry = icon(32, 4);
  entry.width = 20;
  EXPECT_EQ(probe(entry), "1/0/0/0/0/0/0/0/0");
}

TEST(IconProbe, AnUnsoundFirstEntryMakesItNoIconFile) {
  for (int broken = 0; broken < 4; ++broken) {
    Entry first = icon(32, 4);
    if (broken == 0) first.width = 0;
    if (broken == 1) first.height = 0;
    if (broken == 2) first.bytesInRes = 0;
    if (broken == 3) first.offset = 0;
    EXPECT_EQ(probe(first), kNoIcon) << broken;
    EXPECT_EQ(probe(IcoFile{{first, icon(32, 8)}, 0, 1, {}}), kNoIcon) << broken;
  }
}

TEST(IconProbe, AnUnsoundLaterEntryOnlyCountsAsUnusable) {
  Entry second = icon(32, 8);
  second.width = 0;
  EXPECT_EQ(probe(IcoFile{{icon(32, 4), second}, 0, 1, {}}), "2/1/0/32/32/16/4/16/4");
}

TEST(IconProbe, TypeAndCountMustBeThoseOfAnIcon) {
  IcoFile file{{icon(32, 4)}, 0, 1, {}};
  file.type = 0;
  EXPECT_EQ(probe(file), kNoIcon);
  file.type = 2;
  EXPECT_EQ(probe(file), kNoIcon);
  file.type = 1;
  file.count = 0;
  EXPECT_EQ(probe(file), kNoIcon);
}

TEST(IconProbe, TheFirst32x32EntryIsTakenOverAnyOther) {
  EXPECT_EQ(probe(IcoFile{{icon(16, 8), icon(32, 4), icon(48, 8), icon(32, 24)}, 0, 1, {}}), "2/4/1/32/32/16/4/16/4");
}

TEST(IconProbe, ALater32x32EntryOf8BitsReplacesTheChoiceAndEndsTheScan) {
  const IcoFile file{{icon(32, 4), icon(32, 8), icon(32, 24)}, 0, 1, {}};
  EXPECT_EQ(probe(file, true), "2/2/1/32/32/256/8/256/8");
  EXPECT_EQ(probe(file, false), "2/3/1/32/32/256/8/256/8");
}

TEST(IconProbe, AFirst32x32EntryOf8BitsDoesNotEndTheScan) {
  EXPECT_EQ(probe(IcoFile{{icon(32, 8), icon(16, 4), icon(32, 8), icon(48, 4)}, 0, 1, {}}), "2/3/2/32/32/256/8/256/8");
}

TEST(IconProbe, WithoutPreferenceTheLast8BitEntryIsChosen) {
  EXPECT_EQ(probe(IcoFile{{icon(32, 4), icon(32, 8), icon(32, 8)}, 0, 1, {}}, false), "2/3/2/32/32/256/8/256/8");
}

TEST(IconProbe, TheBitmapHeaderDecidesWhatIs8Bits) {
  Picture lying = anyPicture(32, 4);
  lying.headerBits = 8;
  EXPECT_EQ(probe(IcoFile{{icon(32, 4), entryOf(lying, 16, 4)}, 0, 1, {}}), "2/2/1/32/32/16/4/16/8");
}

TEST(IconProbe, SeveralEntriesWithout32x32AreNotUsable) {
  EXPECT_EQ(probe(IcoFile{{icon(16, 4), icon(48, 4)}, 0, 1, {}}), "2/0/0/0/0/0/0/0/0");
}

TEST(IconProbe, AmongSeveralOnlySquareEntriesCount) {
  Entry wide = icon(32, 4);
  wide.height = 16;
  EXPECT_EQ(probe(IcoFile{{wide, icon(32, 4)}, 0, 1, {}}), "2/1/1/32/32/16/4/16/4");
}

TEST(IconProbe, AFileThatIsNotThereIsNoIconFile) { EXPECT_EQ(ProbeIconFile("/no/such.ico", true).joined(), kNoIcon); }

TEST(IconProbe, AFileIsProbedLikeItsBytes) {
  const IconFolder folder;
  EXPECT_EQ(ProbeIconFile(folder.write("a.ico", build(icon(24, 8))), true).joined(), "1/1/0/24/24/256/8/256/8");
}

TEST(IconProbe, AnImageFarBehindInALongFileIsFound) {
  const IconFolder folder;
  Bytes bytes = build(icon(32, 4));
  const Bytes image = imageBytes(anyPicture(32, 8));
  Entry second = icon(32, 8);
  constexpr std::uint32_t kFar = 3'000'000;
  second.offset = kFar;
  IcoFile file{{icon(32, 4), second}, 0, 1, {}};
  bytes = build(file);
  bytes.resize(kFar);
  append(bytes, image);
  EXPECT_EQ(ProbeIconFile(folder.write("far.ico", bytes), true).joined(), "2/2/1/32/32/256/8/256/8");
}

TEST(IconProbe, UsableEntriesAreSquareBitmapsOfAnIconSizeAndAKnownDepth) {
  const auto usable = [](const Entry& entry) {
    const IconFile file = iconFileOf(build(entry));
    return isUsableEntry(file, file.entry(0));
  };
  for (const int bits : {1, 4, 8, 24, 32}) EXPECT_TRUE(usable(icon(24, bits))) << bits;
  EXPECT_FALSE(usable(entryOf(anyPicture(32, 32), 0, 16)));
  EXPECT_FALSE(usable(entryOf(anyPicture(32, 8), 0, 3)));
  Entry other = icon(32, 8);
  other.width = other.height = 64;
  EXPECT_FALSE(usable(other));
  other.width = other.height = 32;
  other.image = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  EXPECT_FALSE(usable(other));
}

}  // namespace
}  // namespace gp::test
