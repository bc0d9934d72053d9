#include "animation/AniBytes.h"
#include "animation/format/AniInfo.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

std::optional<AniInfo> read(const std::string& file, int frames) { return readAniInfo(bytesOfText(file), frames); }
std::size_t find(const std::string& text, const char* pattern, std::size_t from) {
  return findBytes(bytesOfText(text), pattern, from);
}

std::string framesOf(const std::string& frame) {
  return listOf("fram", chunkOf("icon", frame) + chunkOf("icon", frame));
}

TEST(FindBytes, PositionsCountFromOne) {
  EXPECT_EQ(find("anih anih", "616E6968", 1), 1U);
  EXPECT_EQ(find("anih anih", "616e6968", 2), 6U);
  EXPECT_EQ(find("anih anih", "616E6968", 7), 0U);
  EXPECT_EQ(find("ani", "616E6968", 1), 0U);
  EXPECT_EQ(find("anih", "616E6968", 0), 0U);
  EXPECT_EQ(find("anih", "68", 4), 4U);
  EXPECT_EQ(find("", "68", 1), 0U);
  EXPECT_EQ(find("aanih", "616E6968", 1), 2U) << "a match that begins again";
}

TEST(AniInfo, OnlyARiffFileWithAHeaderHasOne) {
  EXPECT_FALSE(read("", 1));
  EXPECT_FALSE(read("RIFF", 1));
  EXPECT_FALSE(read("xRIFF" + headerOf(1), 1));
  EXPECT_TRUE(read("RIFF and somewhere anih", 1)) << "the tag alone counts, wherever it is";
}

TEST(AniInfo, TheLowByteOfEachRateCounts) {
  const auto info = read(aniOf(headerOf(6) + chunkOf("rate", numbersOf({300, 0, 200, 90, 1, 0x12345602}))), 6);
  ASSERT_TRUE(info);
  EXPECT_EQ(info->jiffies, (std::vector<int>{44, 1, 90, 90, 1, 2}));
}

TEST(AniInfo, RatesBehindTheEndCountAsNothing) {
  const auto info = read(aniOf(headerOf(3) + chunkOf("rate", numbersOf({7}))), 3);
  ASSERT_TRUE(info);
  EXPECT_EQ(info->jiffies, (std::vector<int>{7, 1, 1}));
}

TEST(AniInfo, ASequenceBehindTheHeaderTakesItsRate) {
  const auto info = read(aniOf(headerOf(2, 25, 3) + chunkOf("seq ", numbersOf({0, 1}))), 2);
  ASSERT_TRUE(info);
  EXPECT_EQ(info->jiffies, (std::vector<int>{25, 25}));
  // Elsewhere, the byte that is eight before the tag.
  const auto other =
      read(aniOf(headerOf(2, 25, 3) + chunkOf("JUNK", "A1234567") + chunkOf("seq ", numbersOf({0, 1}))), 2);
  EXPECT_EQ(other->jiffies, (std::vector<int>{'A', 'A'}));
}

TEST(AniInfo, WithoutATableTheRateOfTheHeaderHolds) {
  EXPECT_EQ(read(aniOf(headerOf(3, 12)), 3)->jiffies, (std::vector<int>{12, 12, 12}));
  EXPECT_EQ(read(aniOf(headerOf(1, 0)), 1)->jiffies, std::vector<int>{1});
  EXPECT_EQ(read(aniOf(headerOf(1, 91)), 1)->jiffies, std::vector<int>{90});
}

TEST(AniInfo, ATagInATitleIsFoundFirst) {
  const std::string title = listOf("INFO", chunkOf("INAM", "rate1234M12"));
  EXPECT_EQ(read(aniOf(title + headerOf(1) + chunkOf("rate", numbersOf({5}))), 1)->jiffies, std::vector<int>{'M'});
}

TEST(AniInfo, TheHotspotIsThatOfTheFirstFrame) {
  struct Case {
    int type, x, y, wantedX, wantedY;
  };
  for (const Case& c : {Case{2, 7, 9, 7, 9}, Case{2, 40, 2, 31, 2}, Case{2, 0, 255, 0, 31}, Case{1, 7, 9, 0, 0}}) {
    const auto info = read(aniOf(headerOf(2) + framesOf(frameOf(c.type, c.x, c.y))), 2);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->hotspotX, c.wantedX);
    EXPECT_EQ(info->hotspotY, c.wantedY);
  }
  const auto junk =
      read(aniOf(headerOf(2) + listOf("fram", chunkOf("JUNK", "") + chunkOf("icon", frameOf(2, 7, 9)))), 2);
  EXPECT_EQ(junk->hotspotX, 0) << "the first frame must follow directly";
}

}  // namespace
}  // namespace gp::test
