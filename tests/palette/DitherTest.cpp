#include "palette/MonoDiffusion.h"
#include "palette/PalettePictures.h"
#include "palette/clsGPPalDither.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

using Bytes = std::vector<std::uint8_t>;
using testing::Each;
using testing::IsEmpty;

Bytes bytesOf(const clsGPPalDither& dither) { return {dither.PalID().begin(), dither.PalID().end()}; }

clsGPPal blackAndWhite() {
  clsGPPal palette;
  palette.CreatePalette2();
  return palette;
}

// 0 for black and 1 for white, without the padding.
std::vector<Bytes> indicesOf(const SlowPicture& picture) {
  clsGPDIB dib = dibOf(picture);
  clsGPPalDither dither;
  dither.DitherToPalette256(dib, blackAndWhite());
  std::vector<Bytes> rows;
  const std::size_t stride = dither.PalID().size() / picture.size();
  for (std::size_t y = 0; y < picture.size(); ++y) {
    const auto row = dither.PalID().subspan(y * stride, picture[y].size());
    rows.emplace_back(row.begin(), row.end());
  }
  return rows;
}

// With this value of red it is just nearer to black, with one more nearer to white.
constexpr int kMostRedOfBlack = 127;
SlowColor yellowish(int red) { return {red, 255, 0}; }
SlowColor red(int level) { return {level, 0, 0}; }

SlowPicture flat(int width, int height, int level) {
  return painted(width, height, [level](int, int) { return grey(level); });
}

TEST(Dithering, ColorsOfThePaletteSpreadNothing) {
  const SlowPicture picture{{{255, 0, 0}, {0, 0, 255}}, {{0, 255, 255}, {0, 0, 0}}};
  clsGPDIB dib = dibOf(picture);
  clsGPPal palette;
  palette.CreatePalette16();
  clsGPPalDither dither;
  dither.DitherToPalette16(dib, palette);
  EXPECT_EQ(picturesOf(dib), picture);
  EXPECT_EQ(bytesOf(dither), (Bytes{0x9C, 0, 0, 0, 0xE0, 0, 0, 0}));
}

TEST(Dithering, AnErrorOfThreeIsNotSpreadAndOneOfFourIs) {
  EXPECT_EQ(indicesOf({{red(3), yellowish(kMostRedOfBlack)}}), (std::vector<Bytes>{{0, 0}}));
  EXPECT_EQ(indicesOf({{red(4), yellowish(kMostRedOfBlack)}}), (std::vector<Bytes>{{0, 1}}));
  // All channels count together.
  EXPECT_EQ(indicesOf({{{3, 0, 1}, yellowish(kMostRedOfBlack)}}), (std::vector<Bytes>{{0, 1}}));
}

TEST(Dithering, TheNextPixelTakesSevenSixteenthsTruncated) {
  // 21 of 48
  EXPECT_EQ(indicesOf({{red(48), yellowish(106)}}), (std::vector<Bytes>{{0, 0}}));
  EXPECT_EQ(indicesOf({{red(48), yellowish(107)}}), (std::vector<Bytes>{{0, 1}}));
}

TEST(Dithering, TheShareBehindTheFirstPixelIsLost) {
  // Of 48 the pixel above gets 15; 9 more are discarded.
  EXPECT_EQ(indicesOf({{red(48)}, {yellowish(112)}}), (std::vector<Bytes>{{0}, {0}}));
  EXPECT_EQ(indicesOf({{red(48)}, {yellowish(113)}}), (std::vector<Bytes>{{0}, {1}}));
  // Nor does the end of the row get them: it gets 9 of the 21 that its neighbour got.
  const SlowRow dark(3);
  EXPECT_EQ(indicesOf({{red(48), {}, yellowish(118)}, dark})[0], (Bytes{0, 0, 0}));
  EXPECT_EQ(indicesOf({{red(48), {}, yellowish(119)}, dark})[0], (Bytes{0, 0, 1}));
}

TEST(Dithering, TheRowAboveTakesThreeFiveAndOneSixteenth) {
  const auto above = [](const SlowRow& row) { return indicesOf({{{}, red(48), {}}, row})[1]; };
  // 48 gives 21 to the right pixel, and 9, 15 and 3 to those above; the 21 give 3 and 6 to the last two of them.
  EXPECT_EQ(above({yellowish(118), {}, {}})[0], 0);
  EXPECT_EQ(above({yellowish(119), {}, {}})[0], 1);
  // 18 and 3 of the 9 before it
  EXPECT_EQ(above({{}, yellowish(106), {}})[1], 0);
  EXPECT_EQ(above({{}, yellowish(107), {}})[1], 1);
  // 9 and 9 of the 21 before it
  EXPECT_EQ(above({{}, {}, yellowish(109)})[2], 0);
  EXPECT_EQ(above({{}, {}, yellowish(110)})[2], 1);
}

TEST(Dithering, TheLastRowPassesErrorsOnlyAlongItself) {
  const SlowRow dark(2);
  // The row below is finished and does not change.
  EXPECT_EQ(indicesOf({dark, {red(48), yellowish(107)}}), (std::vector<Bytes>{{0, 0}, {0, 1}}));
  EXPECT_EQ(indicesOf({dark, {red(48), yellowish(106)}}), (std::vector<Bytes>{{0, 0}, {0, 0}}));
}

TEST(Dithering, FourBitsLeaveTheLastHalfByteOfAnOddRowAtZero) {
  clsGPDIB dib = dibOf(flat(3, 2, 255));
  clsGPPal palette;
  palette.CreatePalette16();
  clsGPPalDither dither;
  dither.DitherToPalette16(dib, palette);
  EXPECT_EQ(bytesOf(dither), (Bytes{0xFF, 0xF0, 0, 0, 0xFF, 0xF0, 0, 0}));
}

TEST(Dithering, RowsArePaddedToFourBytesAndStartAtTheBottom) {
  Surface picture(5, 2, kBlack);
  picture.SetPixelV(4, 0, kWhite);
  picture.SetPixelV(0, 1, kWhite);
  clsGPDIB dib;
  dib.CreateDIBFromPic(picture);
  clsGPPalDither dither;
  dither.DitherToPalette256(dib, blackAndWhite());
  EXPECT_EQ(bytesOf(dither), (Bytes{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}));
  dither.InitializePalID(33, 2, 1);
  EXPECT_EQ(dither.PalID().size(), 16U);
  EXPECT_THAT(bytesOf(dither), Each(0));
}

TEST(Dithering, AFlatGreyBeginsWithWhiteAndANegativeError) {
  clsGPDIB dib = dibOf(flat(3, 1, 100));
  clsGPPalDither dither;
  dither.DitherToBlackAndWhite(dib, 15);
  // 100 is not below the mean of 100; -155 passes on -29 and -14. With two thirds of the -29 the next pixel has 81,
  // which passes on 15, and the third one is left with 100.
  EXPECT_EQ(bytesOf(dither), (Bytes{0b10100000, 0, 0, 0}));
  EXPECT_EQ(picturesOf(dib), (SlowPicture{{grey(255), grey(0), grey(255)}}));
}

TEST(Dithering, TwoRowsOfBlackAndWhiteGetNoErrorFromEachOther) {
  clsGPDIB dib = dibOf(flat(3, 2, 100));
  clsGPPalDither dither;
  dither.DitherToBlackAndWhite(dib, 15);
  EXPECT_EQ(bytesOf(dither), (Bytes{0b10100000, 0, 0, 0, 0b10100000, 0, 0, 0}));
}

TEST(Dithering, OfThreeRowsTheSecondTakesErrorsAndTheLastNone) {
  clsGPDIB dib = dibOf(flat(3, 3, 100));
  clsGPPalDither dither;
  dither.DitherToBlackAndWhite(dib, 15);
  const Bytes bytes = bytesOf(dither);
  EXPECT_EQ(bytes[0], 0b10100000);
  EXPECT_EQ(bytes[4] & 0b10000000, 0);  // -29, 7 and -7 from below
  EXPECT_EQ(bytes[8], 0b10100000);
}

TEST(Dithering, WeightedReachesTheLastRow) {
  clsGPDIB weighted = dibOf(flat(1, 2, 100));
  ditherWeighted(weighted);
  EXPECT_EQ(picturesOf(weighted), (SlowPicture{{grey(255)}, {grey(0)}}));
}

TEST(Dithering, OrderedKeepsWhiteWhite) {
  clsGPDIB dib = dibOf(flat(9, 7, 255));
  ditherOrdered(dib);
  EXPECT_EQ(picturesOf(dib), flat(9, 7, 255));
}

TEST(Dithering, OrderedLeavesOneWhitePixelInEachBlockOfBlack) {
  clsGPDIB dib = dibOf(flat(9, 7, 0));
  ditherOrdered(dib);
  EXPECT_EQ(picturesOf(dib), painted(9, 7, [](int x, int y) { return grey(x % 4 == 0 && y % 4 == 0 ? 255 : 0); }));
}

TEST(Dithering, OrderedThresholdsGoUpByOneForSixteenLevels) {
  constexpr int kColumns[4][4] = {{1, 9, 3, 11}, {13, 5, 15, 7}, {4, 12, 2, 10}, {16, 8, 14, 6}};
  for (int level = 0; level < 256; ++level) {
    clsGPDIB dib = dibOf(flat(4, 4, level));
    ditherOrdered(dib);
    EXPECT_EQ(picturesOf(dib),
              painted(4, 4, [&](int x, int y) { return grey(level / 16 + 1 < kColumns[x][y] ? 0 : 255); }))
        << level;
  }
}

TEST(Dithering, AnEmptyBitmapIsLeftAlone) {
  clsGPDIB dib;
  clsGPPalDither dither;
  dither.DitherToBlackAndWhite(dib, 15);
  dither.DitherToPalette16(dib, blackAndWhite());
  dither.DitherToPalette256(dib, blackAndWhite());
  ditherWeighted(dib);
  ditherOrdered(dib);
  EXPECT_TRUE(dib.isEmpty());
  EXPECT_THAT(bytesOf(dither), IsEmpty());
}

TEST(Dithering, PalettesOfNoEntryOrTooManyAreRefused) {
  const SlowPicture picture = flat(2, 2, 99);
  clsGPDIB dib = dibOf(picture);
  clsGPPal palette;
  clsGPPalDither dither;
  dither.DitherToPalette256(dib, palette);
  palette.CreateGrays_256();
  dither.DitherToPalette16(dib, palette);
  EXPECT_EQ(picturesOf(dib), picture);
  EXPECT_THAT(bytesOf(dither), IsEmpty());
}

}  // namespace
}  // namespace gp::test
