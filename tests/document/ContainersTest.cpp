#include "document/AlphaGreys.h"
#include "document/Containers.h"
#include "document/EditState.h"
#include "document/IconImage.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

void makeAlphaIcon(EditState& state, int size) {
  IconContainerRec& record = state.current();
  record.used = true;
  record.present = true;
  record.dirColors = kTrueColor;
  record.bitCount = 32;
  record.hasAlpha = true;
  record.size = static_cast<std::int16_t>(size);
  state.picAlpha = Surface(size, size, greyOf(7));
}

TEST(ClearContainer, LeavesTheSizeAtThirtyTwoAlthoughNothingIsThere) {
  EditState state;
  makeAlphaIcon(state, 48);
  ClearContainer(state);
  EXPECT_EQ(state.current().size, 32);
  EXPECT_FALSE(state.current().used);
}

TEST(ClearContainer, ZeroesTheFieldsFromColoursThroughPresentAndKeepsTheOrigin) {
  EditState state;
  IconContainerRec& record = state.current();
  makeAlphaIcon(state, 16);
  record.sourceLabel = "ICO file";
  record.path = "/a/b.ico";
  record.bihColors = 16;
  record.bihBitCount = 4;
  record.fromMultiIconFile = true;
  record.multiIconIndex = 3;
  record.isCursor = true;
  record.hotspotX = 4;
  record.hotspotY = 5;
  record.neverSaved = true;
  record.modified = true;
  ClearContainer(state);
  EXPECT_EQ(record.sourceLabel.trimmed(), "");
  EXPECT_EQ(record.path.trimmed(), "");
  EXPECT_EQ(record.dirColors, 0);
  EXPECT_EQ(record.bitCount, 0);
  EXPECT_FALSE(record.hasAlpha);
  EXPECT_EQ(record.bihColors, 0);
  EXPECT_EQ(record.bihBitCount, 0);
  EXPECT_FALSE(record.present);
  EXPECT_TRUE(record.fromMultiIconFile);
  EXPECT_EQ(record.multiIconIndex, 3);
  EXPECT_TRUE(record.isCursor);
  EXPECT_EQ(record.hotspotX, 4);
  EXPECT_EQ(record.hotspotY, 5);
  EXPECT_TRUE(record.neverSaved);
  EXPECT_TRUE(record.modified);
}

TEST(ClearContainer, EmptiesOnlyTheSurfacesOfTheCurrentContainer) {
  EditState state;
  state.mCurContainer = 2;
  for (Surface& surface : state.picPanelImage) {
    surface.resize(16, 16);
    surface.fill(0x123456);
    surface.makePersistent();
  }
  ClearContainer(state);
  EXPECT_FALSE(state.picPanelImage[2].hasPicture());
  EXPECT_TRUE(state.picPanelImage[1].hasPicture());
  EXPECT_EQ(state.picPanelImage[1].GetPixel(0, 0), 0x123456);
}

TEST(NameOfAnIcon, IsItsFilesNameOrThatItIsUntitledOrEmpty) {
  IconContainerRec record;
  EXPECT_EQ(nameOf(record), "empty");
  record.path = "/home/ana/former.ico";
  EXPECT_EQ(nameOf(record), "empty") << "of a cleared container";
  EXPECT_EQ(nameOf(NewRecord()), "Untitled");
  record.used = true;
  EXPECT_EQ(nameOf(record), "former.ico");
  record.path = "C:\\icons\\tools.ico";
  EXPECT_EQ(nameOf(record), "tools.ico");
  record.path = "/home/ana/back\\slash.ico";
  EXPECT_EQ(nameOf(record), "back\\slash.ico");
  record.path = "/home/ana/" + std::string(300, 'a') + ".ico";
  EXPECT_EQ(nameOf(record), std::string(300, 'a') + ".ico");
}

TEST(NewRecord, IsAnUntitledIconThatWasNeverChanged) {
  const IconContainerRec record = NewRecord();
  EXPECT_TRUE(record.used);
  EXPECT_TRUE(record.present);
  EXPECT_EQ(record.sourceLabel.trimmed(), "New icon");
  EXPECT_EQ(record.path.trimmed(), "Untitled");
  EXPECT_EQ(record.dirColors, 0);
  EXPECT_EQ(record.bitCount, 0);
  EXPECT_FALSE(record.modified);
  EXPECT_FALSE(record.neverSaved);
  EXPECT_FALSE(record.fromMultiIconFile);
  EXPECT_EQ(record.hotspotX, 0);
}

TEST(PrepareAlphaRec, MakesAMatrixOfTheIconsSizeOnlyForAnIconWithAlpha) {
  EditState state;
  makeAlphaIcon(state, 24);
  EXPECT_TRUE(PrepareAlphaRec(state));
  EXPECT_TRUE(state.mAlphaRecs[0].isOfSize(24));
  EXPECT_TRUE(AlphaRecIsReady(state));

  state.current().hasAlpha = false;
  EXPECT_FALSE(PrepareAlphaRec(state));
  EXPECT_TRUE(state.mAlphaRecs[0].isOfSize(1));
  EXPECT_FALSE(AlphaRecIsReady(state));
}

TEST(PrepareAlphaRec, RefusesValuesOfAnotherSize) {
  EditState state;
  makeAlphaIcon(state, 24);
  state.picAlpha = Surface(16, 16);
  EXPECT_FALSE(PrepareAlphaRec(state));
}

TEST(PrepareAlphaRec, DoesNothingWhileTheFormLoads) {
  EditState state;
  makeAlphaIcon(state, 24);
  state.mAlphaRecs[0] = AlphaMatrix(5, 5);
  state.mInLoad = true;
  EXPECT_FALSE(PrepareAlphaRec(state));
  EXPECT_TRUE(state.mAlphaRecs[0].isOfSize(5));
}

TEST(AlphaRecords, ValuesGoToTheRecordAndBack) {
  EditState state;
  makeAlphaIcon(state, 16);
  state.picAlpha.SetPixelV(3, 4, greyOf(99));
  ASSERT_TRUE(PrepareAlphaRec(state));
  ASSERT_TRUE(StoreAlphaToRec(state));
  EXPECT_EQ(state.mAlphaRecs[0].at(3, 4), 99);
  state.picAlpha = Surface(16, 16);
  ASSERT_TRUE(LoadAlphaFromRec(state));
  EXPECT_EQ(state.picAlpha.GetPixel(3, 4), greyOf(99));
}

TEST(AlphaRecords, StoringRefusesAMatrixOfAnotherSize) {
  EditState state;
  makeAlphaIcon(state, 16);
  state.picAlpha = Surface(1, 1);
  EXPECT_FALSE(StoreAlphaToRec(state));
}

TEST(AlphaRecords, LoadingNeedsAPresentIconAndEqualSizes) {
  EditState state;
  makeAlphaIcon(state, 16);
  EXPECT_FALSE(LoadAlphaFromRec(state)) << "no matrix yet";
  ASSERT_TRUE(PrepareAlphaRec(state));
  state.current().present = false;
  EXPECT_FALSE(LoadAlphaFromRec(state));
}

TEST(IsIconChanged, IsTrueForACaptureThatWasNeverTouched) {
  EditState state;
  state.current().present = true;
  state.current().neverSaved = true;
  EXPECT_TRUE(state.IsIconChanged());
}

TEST(IsIconChanged, IsFalseForAFileJustOpened) {
  EditState state;
  state.current().present = true;
  EXPECT_FALSE(state.IsIconChanged());
  state.current().modified = true;
  EXPECT_TRUE(state.IsIconChanged());
}

TEST(IsIconChanged, IsFalseWhileNothingIsPresent) {
  EditState state;
  state.current().modified = true;
  EXPECT_FALSE(state.IsIconChanged());
}

TEST(Containers, AnIndexOutsideTheSixIsABoundsError) {
  EditState state;
  state.mCurContainer = 6;
  EXPECT_THROW(state.current(), std::out_of_range);
}

}  // namespace
}  // namespace gp
