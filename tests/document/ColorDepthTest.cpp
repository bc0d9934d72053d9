#include "document/ColorDepth.h"
#include "document/IconContainerRec.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

TEST(ColorDepth, ColorsAndBitsFollowFromEachOther) {
  for (const ColorDepth depth : {ColorDepth{2, 1}, ColorDepth{16, 4}, ColorDepth{256, 8}}) {
    EXPECT_EQ(depthOfColors(depth.colors), depth);
    EXPECT_EQ(depthOfBits(depth.bits), depth);
    EXPECT_EQ(depthOfColors(depth.colors, true), depth) << "an alpha channel is for true colour only";
  }
  EXPECT_EQ(depthOfColors(-1), (ColorDepth{-1, 24}));
  EXPECT_EQ(depthOfColors(-1, true), (ColorDepth{-1, 32}));
  for (const int bits : {0, 2, 3, 16, 24, 32}) EXPECT_EQ(depthOfBits(bits), (ColorDepth{-1, bits}));
}

TEST(ColorDepth, TrueColorOf32BitsHasAlpha) {
  EXPECT_TRUE((ColorDepth{-1, 32}).hasAlpha());
  EXPECT_FALSE((ColorDepth{-1, 24}).hasAlpha());
  EXPECT_FALSE((ColorDepth{256, 32}).hasAlpha());
}

TEST(ColorDepth, PalettesAndTrueColorOf24Or32BitsAreShown) {
  for (const int colors : {2, 16, 256}) EXPECT_TRUE((ColorDepth{colors, 0}).isShown()) << colors;
  for (const int bits : {24, 32}) EXPECT_TRUE((ColorDepth{-1, bits}).isShown()) << bits;
  for (const int bits : {0, 8, 16, 25, 64}) EXPECT_FALSE((ColorDepth{-1, bits}).isShown()) << bits;
}

TEST(ColorDepth, OnlyTrueColorOf32BitsLosesBitsWithItsAlpha) {
  EXPECT_EQ((ColorDepth{-1, 32}).withoutAlpha(), (ColorDepth{-1, 24}));
  for (const ColorDepth depth : {ColorDepth{-1, 24}, ColorDepth{-1, 16}, ColorDepth{256, 8}})
    EXPECT_EQ(depth.withoutAlpha(), depth);
}

TEST(ColorDepth, BitsThatDoNotGoWithAPaletteAreCorrected) {
  EXPECT_EQ(corrected({16, 0}), (ColorDepth{16, 4}));
  EXPECT_EQ(corrected({256, 24}), (ColorDepth{256, 8}));
  EXPECT_EQ(corrected({256, 4}), (ColorDepth{256, 4})) << "bits of another palette stay";
  for (const int bits : {0, 8, 16, 32}) EXPECT_EQ(corrected({-1, bits}), (ColorDepth{-1, bits}));
}

TEST(ColorDepth, PalettesHave2Or16Or256Colors) {
  for (const int colors : {2, 16, 256}) EXPECT_TRUE(isPaletteSize(colors)) << colors;
  for (const int colors : {-1, 0, 1, 4, 8, 255, 257}) EXPECT_FALSE(isPaletteSize(colors)) << colors;
}

TEST(ColorDepth, ARecordTakesAndGivesBothDepths) {
  IconContainerRec record;
  record.setDepth({-1, 32});
  record.setHeaderDepth({256, 8});
  EXPECT_EQ(record.dirColors, -1);
  EXPECT_EQ(record.bitCount, 32);
  EXPECT_EQ(record.bihColors, 256);
  EXPECT_EQ(record.bihBitCount, 8);
  EXPECT_EQ(record.depth(), (ColorDepth{-1, 32}));
  EXPECT_EQ(record.headerDepth(), (ColorDepth{256, 8}));
  EXPECT_TRUE(record.isDiscrepant());
  record.setHeaderDepth(record.depth());
  EXPECT_FALSE(record.isDiscrepant());
}

TEST(ColorDepth, AnAlphaIconIsAUsedRecordOfTrueColorWith32BitsThatStatesAlpha) {
  IconContainerRec record;
  record.used = record.hasAlpha = true;
  record.setDepth({-1, 32});
  EXPECT_TRUE(record.isAlphaIcon());
  for (const ColorDepth depth : {ColorDepth{-1, 24}, ColorDepth{256, 32}}) {
    record.setDepth(depth);
    EXPECT_FALSE(record.isAlphaIcon());
  }
  record.setDepth({-1, 32});
  record.used = false;
  EXPECT_FALSE(record.isAlphaIcon());
  record.used = true;
  record.hasAlpha = false;
  EXPECT_FALSE(record.isAlphaIcon());
}

}  // namespace
}  // namespace gp::test
