#include "drawing/RegionFixture.h"

namespace gp {
namespace {

using test::Rows;

class ContainerCopiesTest : public test::RegionFixture {
 protected:
  Rows panelRows(std::size_t container) const {
    return trimmed(rowsOf(state.picPanelImage[container], state.picPanelMask[container]));
  }
};

constexpr const char* kToThree = "Copy current icon to Container 3.  Proceed?\n";
constexpr const char* kFromOne = "Copy from Container 1 to current container.  Proceed?";

TEST_F(ContainerCopiesTest, AnIconIsCopiedToAnotherContainerWithItsRecord) {
  makeIcon(24, {"ab", "ba"});
  state.current().path = "/icons/a.ico";
  state.mIconRecs[2].seq = 2;
  boxes.expectAsked(kToThree, BoxAnswer::Yes);
  copies.mnuEditSubCopyToContainer(2);
  const IconContainerRec& target = state.mIconRecs[2];
  EXPECT_EQ(panelRows(2), (Rows{"ab", "ba"}));
  EXPECT_EQ(state.picPanelIcon[2].GetPixel(5, 5), kGround);
  EXPECT_EQ(state.picPanelIcon[2].width(), 24);
  EXPECT_EQ(target.seq, 2);
  EXPECT_TRUE(target.used);
  EXPECT_TRUE(target.neverSaved);
  EXPECT_EQ(target.size, 24);
  EXPECT_EQ(target.path.trimmed(), "/icons/a.ico");
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_FALSE(state.current().neverSaved);
}

TEST_F(ContainerCopiesTest, NoLeavesTheTargetAlone) {
  makeIcon(16, {"a"});
  boxes.expectAsked(kToThree, BoxAnswer::No);
  copies.mnuEditSubCopyToContainer(2);
  EXPECT_FALSE(state.mIconRecs[2].used);
}

TEST_F(ContainerCopiesTest, WhatMayNotBeCopiedIsExplained) {
  makeIcon(16, {"a"});
  state.current().fromMultiIconFile = true;
  boxes.expectTold("Current icon originates from a multi-icon file,\nduplication to another container not allowed.",
                   BoxIcon::None);
  copies.mnuEditSubCopyToContainer(2);
  state.current().fromMultiIconFile = false;
  state.current().hasAlpha = true;
  boxes.expectTold("Current icon is with alpha channel,\nduplication to another container not allowed.", BoxIcon::None);
  copies.mnuEditSubCopyToContainer(2);
  EXPECT_FALSE(state.mIconRecs[2].used);
}

TEST_F(ContainerCopiesTest, AnUnsavedIconInTheTargetIsAskedAboutFirst) {
  makeIcon(16, {"a"});
  state.mIconRecs[2].used = true;
  state.mIconRecs[2].modified = true;
  constexpr const char* kUnsaved = "You have not saved the icon in target container yet.  Proceed still?\n";
  boxes.expectAsked(kUnsaved, BoxAnswer::No);
  copies.mnuEditSubCopyToContainer(2);
  EXPECT_FALSE(state.mIconRecs[2].neverSaved);
  boxes.expectAsked(kUnsaved, BoxAnswer::Yes);
  boxes.expectAsked(kToThree, BoxAnswer::Yes);
  copies.mnuEditSubCopyToContainer(2);
  EXPECT_TRUE(state.mIconRecs[2].neverSaved);
}

TEST_F(ContainerCopiesTest, ARegionIsCopiedWhereItIs) {
  makeIcon(16, Rows(4, "aaaa"));
  state.options.updateOnlyEditingArea = true;
  mark(0, 0, 3, 3);
  press(inside(0), inside(0));
  move(inside(0) + cells(4), inside(0));
  boxes.expectAsked(kToThree, BoxAnswer::Yes);
  copies.mnuEditSubCopyToContainer(2);
  EXPECT_EQ(panelRows(2), Rows(4, "....aaaa"));
  release(inside(0) + cells(4), inside(0));
  expectAgreement();
}

TEST_F(ContainerCopiesTest, TheCurrentContainerTakesAnIconWithANewBaseline) {
  makeIcon(24, {"ab", "ba"});
  panel.SwitchContainer(1);
  state.mIconRecs[1].seq = 1;
  boxes.expectAsked(kFromOne, BoxAnswer::Yes);
  copies.mnuEditSubCopyFromContainer(0);
  EXPECT_EQ(icon(), (Rows{"ab", "ba"}));
  EXPECT_EQ(panelRows(1), (Rows{"ab", "ba"}));
  EXPECT_EQ(state.current().size, 24);
  EXPECT_EQ(state.current().seq, 1);
  EXPECT_TRUE(state.current().present);
  EXPECT_TRUE(state.current().neverSaved);
  EXPECT_EQ(history.undoCount(), 1);
  expectAgreement();
}

TEST_F(ContainerCopiesTest, ARegionEndsWithTheIconThatAnotherReplaces) {
  makeIcon(24, {"ab", "ba"});
  panel.SwitchContainer(1);
  makeIcon(16, Rows(4, "cccc"));
  mark(0, 0, 3, 3);
  moveRegion(4, 4);
  boxes.expectAsked(kFromOne, BoxAnswer::Yes);
  copies.mnuEditSubCopyFromContainer(0);
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(icon(), (Rows{"ab", "ba"}));
  expectAgreement();
}

TEST_F(ContainerCopiesTest, ASourceThatMayNotBeCopiedIsExplained) {
  makeIcon(16, {"a"});
  state.mIconRecs[4].used = state.mIconRecs[4].fromMultiIconFile = true;
  boxes.expectTold(
      "Icon in source container originates from a multi-icon file,\nduplication to another container not allowed.",
      BoxIcon::None);
  copies.mnuEditSubCopyFromContainer(4);
  state.mIconRecs[4].fromMultiIconFile = false;
  state.mIconRecs[4].hasAlpha = true;
  boxes.expectTold("Icon in source container is with alpha channel,\nduplication to another container not allowed.",
                   BoxIcon::None);
  copies.mnuEditSubCopyFromContainer(4);
  EXPECT_EQ(icon(), Rows{"a"});
}

TEST_F(ContainerCopiesTest, AContainerCopiedToItselfShowsWhatItsPanelHolds) {
  makeIcon(16, {"a"});
  setPixel(1, 0, 'b');
  boxes.expectAsked(kFromOne, BoxAnswer::Yes);
  copies.mnuEditSubCopyFromContainer(0);
  EXPECT_EQ(icon(), Rows{"a"});
}

TEST_F(ContainerCopiesTest, ClearingAContainerAsksAndEmptiesIt) {
  makeIcon(16, {"aaaa", "aaaa", "aaaa", "aaaa"});
  mark(0, 0, 3, 3);
  boxes.expectAsked("Clear current icon from container.  Proceed?\n", BoxAnswer::No);
  copies.doClearContainer();
  EXPECT_TRUE(state.current().used);
  state.current().modified = true;
  boxes.expectAsked("Clear current icon from container.  Proceed?\n", BoxAnswer::Yes);
  copies.doClearContainer();
  EXPECT_EQ(editor.count("AskSaveCurrent "), 2) << "a region was drawn: the icon counts as changed";
  EXPECT_FALSE(state.current().used);
  EXPECT_FALSE(state.current().present);
  EXPECT_EQ(state.current().size, 32);
  EXPECT_EQ(state.picDisp.width(), 384);
  EXPECT_FALSE(state.mRegionExists);
}

TEST_F(ContainerCopiesTest, ARefusedSaveKeepsTheContainer) {
  makeIcon(16, {"a"});
  state.current().modified = true;
  editor.askSaveProceeds = false;
  copies.doClearContainer();
  EXPECT_TRUE(state.current().used);
}

}  // namespace
}  // namespace gp
