#include "palette/PalettePictures.h"
#include "palette/clsGPPal.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr SlowColor kDark{};

clsGPPal optimal(const SlowRow& pixels, int maxColors = 256, int levels = 8) {
  clsGPPal palette;
  palette.CreateOptimal(dibOf({pixels}), maxColors, levels);
  return palette;
}

SlowRow filled(const clsGPPal& palette) {
  return colorsOf(palette.PalettePtr().first(static_cast<std::size_t>(palette.MaxCount())));
}

// Colours of which no two are near each other in the tree.
SlowRow loners(int count) {
  SlowRow colors;
  for (int i = 0; i < count; ++i) colors.push_back({0, i % 32 * 8, 8 + i / 32 * 8});
  return colors;
}

TEST(Palette, IsEmptyAtFirst) {
  const clsGPPal palette;
  EXPECT_EQ(palette.Count(), 0);
  EXPECT_EQ(palette.MaxCount(), 0);
  EXPECT_TRUE(palette.hPal().empty());
  EXPECT_EQ(palette.NearestPaletteIndex(255, 255, 255), 0);
}

TEST(Palette, TwoColorsAreBlackAndWhite) {
  clsGPPal palette;
  palette.CreatePalette2();
  EXPECT_EQ(colorsOf(palette.PalettePtr()), (SlowRow{grey(0), grey(255)}));
}

TEST(Palette, TheSixteenColorsStandInTheirOrder) {
  clsGPPal palette;
  palette.CreatePalette16();
  const SlowRow expected{{0, 0, 0},     {128, 0, 0},     {0, 128, 0},     {128, 128, 0},  {0, 0, 128}, {128, 0, 128},
                         {0, 128, 128}, {192, 192, 192}, {128, 128, 128}, {255, 0, 0},    {0, 255, 0}, {255, 255, 0},
                         {0, 0, 255},   {255, 0, 255},   {0, 255, 255},   {255, 255, 255}};
  EXPECT_EQ(colorsOf(palette.PalettePtr()), expected);
}

TEST(Palette, GreysGoFromBlackToWhite) {
  clsGPPal palette;
  palette.CreateGrays_256();
  ASSERT_EQ(palette.Count(), 256);
  for (int i = 0; i < 256; ++i) EXPECT_EQ(colorsOf(palette.PalettePtr())[static_cast<std::size_t>(i)], grey(i));
}

TEST(Palette, APictureOfOneColorFillsOneEntry) {
  clsGPPal palette;
  palette.CreateOptimal(dibOf(painted(5, 4, [](int, int) { return SlowColor{200, 3, 77}; })), 256, 8);
  EXPECT_EQ(palette.Count(), 256);
  EXPECT_EQ(palette.MaxCount(), 1);
  const SlowRow entries = colorsOf(palette.PalettePtr());
  EXPECT_EQ(entries[0], (SlowColor{200, 3, 77}));
  EXPECT_EQ(std::ranges::count(entries, kDark), 255);
}

TEST(Palette, AsManyLeavesAsColorsAreNotReduced) {
  const SlowRow colors = loners(256);
  const clsGPPal palette = optimal(colors);
  EXPECT_EQ(palette.MaxCount(), 256);
  EXPECT_EQ(filled(palette), colors);
}

TEST(Palette, ColorsThatDifferOnlyWithinTheLastSplitShareTheEntryOfTheFirst) {
  EXPECT_EQ(filled(optimal({{1, 50, 60}, {0, 50, 60}, {0, 50, 60}})), (SlowRow{{1, 50, 60}}));
  EXPECT_EQ(filled(optimal({{0, 50, 60}, {1, 50, 60}, {1, 50, 60}})), (SlowRow{{0, 50, 60}}));
  EXPECT_EQ(filled(optimal({{1, 50, 60}, {2, 50, 60}})), (SlowRow{{1, 50, 60}, {2, 50, 60}}));
}

// Two pairs of colours that meet one level above the leaves, before and after the single ones.
TEST(Palette, TheLeafTooManyFoldsTheDeepestNodeListedLastAtOnce) {
  SlowRow colors{{3, 0, 0}, {4, 0, 0}};
  const SlowRow between = loners(253);
  colors.insert(colors.end(), between.begin(), between.end());
  SlowRow expected = colors;
  expected.push_back({104, 0, 0});  // 103.5, the even one
  // The last one reaches the folded node and adds no colour.
  colors.insert(colors.end(), {{103, 0, 0}, {104, 0, 0}, {103, 0, 0}});
  EXPECT_EQ(filled(optimal(colors)), expected);
}

TEST(Palette, FoldingGoesOnOverNodesOfOneLeafUntilTheNumberFits) {
  SlowRow colors{{3, 0, 0}, {4, 0, 0}};
  const SlowRow behind = loners(255);
  colors.insert(colors.end(), behind.begin(), behind.end());
  SlowRow expected{{4, 0, 0}};  // 3.5, the even one
  expected.insert(expected.end(), behind.begin(), behind.end());
  EXPECT_EQ(filled(optimal(colors)), expected);
}

TEST(Palette, TheFirstSplitPutsItsMidpointIntoTheLowerHalf) {
  EXPECT_EQ(filled(optimal({{128, 0, 0}, {100, 0, 0}, {129, 0, 0}, {255, 0, 0}}, 256, 1)),
            (SlowRow{{128, 0, 0}, {129, 0, 0}}));
  EXPECT_EQ(filled(optimal({{0, 128, 0}, {0, 129, 0}}, 256, 1)), (SlowRow{{0, 128, 0}, {0, 129, 0}}));
  EXPECT_EQ(filled(optimal({{0, 0, 128}, {0, 0, 129}}, 256, 1)), (SlowRow{{0, 0, 128}, {0, 0, 129}}));
}

TEST(Palette, MidpointsBetweenTwoNumbersAreTheEvenOne) {
  // The upper half ends at 255, its middle is 191.5.
  EXPECT_EQ(filled(optimal({{192, 0, 0}, {129, 0, 0}, {193, 0, 0}}, 256, 2)), (SlowRow{{192, 0, 0}, {193, 0, 0}}));
}

TEST(Palette, AnEmptyBitmapFillsNoEntry) {
  clsGPPal palette;
  palette.CreateOptimal(clsGPDIB(), 256, 8);
  EXPECT_EQ(palette.Count(), 256);
  EXPECT_EQ(palette.MaxCount(), 0);
}

TEST(Palette, GreysAreKnownOnlyWhenTheyWereMadeFromAPicture) {
  clsGPPal grays;
  grays.CreateGrays_256();
  EXPECT_FALSE(grays.IsGreyScale());
  EXPECT_TRUE(optimal({grey(0), grey(100), grey(255)}).IsGreyScale());
  for (const SlowColor& odd : {SlowColor{1, 2, 2}, SlowColor{2, 1, 2}, SlowColor{2, 2, 1}})
    EXPECT_FALSE(optimal({grey(200), odd}).IsGreyScale());
  EXPECT_FALSE(clsGPPal().IsGreyScale());
}

TEST(Palette, FixedTablesLeaveTheNumberOfFilledEntriesAsItIs) {
  clsGPPal palette = optimal(loners(100));
  palette.CreatePalette2();
  EXPECT_EQ(palette.MaxCount(), 100);
  EXPECT_TRUE(palette.IsGreyScale());
  palette.CreatePalette16();
  EXPECT_FALSE(palette.IsGreyScale());
}

TEST(Palette, MatchesAreLookedForInTheChannelsAsTheyAre) {
  clsGPPal palette;
  palette.CreatePalette16();
  EXPECT_EQ(palette.NearestPaletteIndex(250, 10, 20), 9);
  EXPECT_EQ(palette.NearestPaletteIndex(20, 10, 250), 12);
  EXPECT_EQ(palette.NearestPaletteIndex(160, 160, 160), 7);
  // At the same distance from dark red and from black.
  EXPECT_EQ(palette.NearestPaletteIndex(64, 0, 0), 0);
  palette.CreateGrays_256();
  EXPECT_EQ(palette.NearestPaletteIndex(255, 255, 255), 255);
}

TEST(Palette, AnInitializedTableIsBlackAndMatchesAsBefore) {
  clsGPPal palette;
  palette.CreatePalette16();
  palette.InitializePalette();
  EXPECT_EQ(palette.Count(), 256);
  EXPECT_EQ(palette.MaxCount(), 0);
  EXPECT_EQ(std::ranges::count(colorsOf(palette.PalettePtr()), kDark), 256);
  EXPECT_EQ(palette.NearestPaletteIndex(0, 0, 255), 12);
}

TEST(Palette, ChangedEntriesShowInTheTableAndNotInMatches) {
  clsGPPal palette;
  palette.CreatePalette2();
  palette.setRgbR(1, 10);
  palette.setRgbG(1, 20);
  palette.setRgbB(1, 30);
  EXPECT_EQ(palette.rgbR(1), 10);
  EXPECT_EQ(palette.rgbG(1), 20);
  EXPECT_EQ(palette.rgbB(1), 30);
  EXPECT_EQ(palette.PalettePtr()[1], (DibPixel{30, 20, 10, 0}));
  EXPECT_EQ(palette.NearestPaletteIndex(255, 255, 255), 1);
}

TEST(Palette, ClearingUpEmptiesIt) {
  clsGPPal palette = optimal(loners(3));
  palette.ClearUp();
  EXPECT_EQ(palette.Count(), 0);
  EXPECT_EQ(palette.MaxCount(), 0);
  EXPECT_TRUE(palette.hPal().empty());
}

}  // namespace
}  // namespace gp::test
