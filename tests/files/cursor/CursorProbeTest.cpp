#include "files/CursorBuilder.h"
#include "files/IconFileOf.h"
#include "files/cursor/CursorProbe.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

CursorFile plain(int bits = 4) { return cursorOf(anyPicture(32, bits), 7, 9); }
std::string probe(const CursorFile& cursor) { return probeCursor(iconFileOf(build(cursor))).joined(); }

TEST(CursorProbe, TheBitmapHeaderTellsTheColors) {
  const std::pair<int, const char*> cases[] = {
      {1, "1/2/1"}, {4, "1/16/4"}, {8, "1/256/8"}, {24, "1/-1/24"}, {32, "1/-1/32"}};
  for (const auto& [bits, expected] : cases) EXPECT_EQ(probe(plain(bits)), expected);
}

TEST(CursorProbe, TheColorCountOfTheEntryPlaysNoPart) {
  for (const int count : {0, 2, 3, 16, 255}) {
    CursorFile cursor = plain(8);
    cursor.colorCount = count;
    EXPECT_EQ(probe(cursor), "1/256/8") << count;
  }
}

TEST(CursorProbe, OddBitCountsOfTheHeaderCountAsTrueColor) {
  for (const int bits : {0, 2, 3, 15, 16, 65535}) {
    CursorFile cursor = plain();
    cursor.picture.headerBits = bits;
    EXPECT_EQ(probe(cursor), "1/-1/" + std::to_string(bits));
  }
}

TEST(CursorProbe, TheHotSpotStandsWhereIconsTellPlanesAndBits) {
  const CursorFacts facts = probeCursor(iconFileOf(build(plain())));
  EXPECT_TRUE(facts.valid);
  EXPECT_EQ(facts.hotspotX, 7);
  EXPECT_EQ(facts.hotspotY, 9);
}

TEST(CursorProbe, HotSpotsUpTo31AreInside) {
  EXPECT_EQ(probe(cursorOf(anyPicture(32, 1), 0, 0)), "1/2/1");
  EXPECT_EQ(probe(cursorOf(anyPicture(32, 1), 31, 31)), "1/2/1");
}

TEST(CursorProbe, AHotSpotOf32OrMoreIsInvalid) {
  for (const int beyond : {32, 40, 255, 32768, 65535}) {
    EXPECT_EQ(probe(cursorOf(anyPicture(32, 1), beyond, 0)), "0/0/0") << beyond;
    EXPECT_EQ(probe(cursorOf(anyPicture(32, 1), 0, beyond)), "0/0/0") << beyond;
  }
}

TEST(CursorProbe, OtherTypesAndACountOfZeroAreInvalid) {
  for (const int type : {0, 1, 3, 0x0200}) {
    CursorFile cursor = plain();
    cursor.type = type;
    EXPECT_EQ(probe(cursor), "0/0/0") << type;
  }
  CursorFile none = plain();
  none.count = 0;
  EXPECT_EQ(probe(none), "0/0/0");
}

TEST(CursorProbe, OnlySizesOf32By32AreTaken) {
  for (const int side : {0, 16, 24, 31, 33, 48, 255}) {
    CursorFile wide = plain(), high = plain(), both = plain();
    wide.width = high.height = both.width = both.height = side;
    for (const CursorFile& cursor : {wide, high, both}) EXPECT_EQ(probe(cursor), "0/0/0") << side;
  }
}

TEST(CursorProbe, AFileOfSeveralImagesBeginsThemBeyondOffset22AndIsInvalid) {
  CursorFile several = plain();
  several.count = 2;
  several.offset = 38;
  EXPECT_EQ(probe(several), "0/0/0");
}

TEST(CursorProbe, ACountAboveOneIsNoHarmWhenTheImageStandsAtOffset22) {
  for (const int count : {2, 65535}) {
    CursorFile cursor = plain();
    cursor.count = count;
    EXPECT_EQ(probe(cursor), "1/16/4");
  }
}

TEST(CursorProbe, AnyOtherOffsetIsInvalid) {
  for (const std::uint32_t offset : {0u, 6u, 21u, 23u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
    Bytes file = build(plain());
    for (std::size_t i = 0; i < 4; ++i) file[18 + i] = static_cast<std::uint8_t>(offset >> (8 * i));
    EXPECT_EQ(probeCursor(iconFileOf(file)).joined(), "0/0/0") << offset;
  }
}

TEST(CursorProbe, TheByteCountPlaysNoPart) {
  for (const std::uint32_t count : {0u, 1u, 0xFFFFFFFFu}) {
    CursorFile cursor = plain();
    cursor.bytesInRes = count;
    EXPECT_EQ(probe(cursor), "1/16/4");
  }
}

TEST(CursorProbe, AFileCutAnywhereIsAnsweredByTheBytesThatItHas) {
  const Bytes whole = build(plain());
  constexpr std::size_t kOffsetEnds = 19, kBitsBegin = 36;  // the high bytes of the offset are zero anyway
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    const char* expected = size < kOffsetEnds ? "0/0/0" : size <= kBitsBegin ? "1/-1/0" : "1/16/4";
    EXPECT_EQ(probeCursor(iconFileOf(cut)).joined(), expected) << size;
  }
}

TEST(CursorProbe, AFileThatIsNotThereAndAFolderAreNoCursors) {
  const IconFolder folder;
  EXPECT_EQ(ProbeCursorFile(folder.path("none.cur")).joined(), "0/0/0");
  EXPECT_EQ(ProbeCursorFile(folder.folder()).joined(), "0/0/0");
  EXPECT_EQ(ProbeCursorFile(folder.write("empty.cur", {})).joined(), "0/0/0");
  EXPECT_EQ(ProbeCursorFile(folder.write("a.cur", build(plain()))).joined(), "1/16/4");
}

}  // namespace
}  // namespace gp::test
