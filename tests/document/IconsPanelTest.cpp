#include "document/AlphaGreys.h"
#include "document/DocumentFixture.h"

namespace gp {
namespace {

class IconsPanelTest : public test::DocumentFixture {
 protected:
  // Puts an opaque icon of one colour on the Editing Area and into a container.
  void loadInto(int container, int size, Color color) {
    state.mCurContainer = container;
    state.current().used = state.current().present = true;
    state.current().size = static_cast<std::int16_t>(size);
    area.SizeEditSurfaces(size);
    area.SizePanelSurfaces(size);
    state.picImage.fill(color);
    state.picMask.fill(kBlack);
    area.ComposeCurrentIcon();
    area.UpdatePanelFromCurrent();
  }
};

TEST_F(IconsPanelTest, SwitchingShowsTheIconOfTheOtherContainer) {
  loadInto(0, 32, 0x0000FF);
  loadInto(1, 48, 0x00FF00);
  panel.SwitchContainer(0);
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_EQ(state.picImage.width(), 32);
  EXPECT_EQ(state.PicIcon.GetPixel(3, 3), 0x0000FF);
  EXPECT_EQ(state.picDisp.width(), 384);
  EXPECT_TRUE(state.current().present);
}

TEST_F(IconsPanelTest, SwitchingWithTheOptionOffNeverAsksAndKeepsTheChangedIconFlagged) {
  loadInto(0, 32, 0x0000FF);
  state.picImage.fill(0x123456);
  state.current().modified = true;
  panel.SwitchContainer(1);
  EXPECT_EQ(editor.count("AskSaveCurrent (To remove Reminder, untick the related Option submenu)"), 0);
  EXPECT_EQ(state.picPanelImage[0].GetPixel(0, 0), 0x123456);
  EXPECT_TRUE(state.mIconRecs[0].modified);
  panel.SwitchContainer(0);
  EXPECT_EQ(state.picImage.GetPixel(0, 0), 0x123456);
}

TEST_F(IconsPanelTest, SwitchingWithTheOptionOnAsksOnlyForAChangedIcon) {
  loadInto(0, 32, 0x0000FF);
  state.options.promptToSave = true;
  panel.SwitchContainer(1);
  EXPECT_EQ(editor.count("AskSaveCurrent (To remove Reminder, untick the related Option submenu)"), 0);
  panel.SwitchContainer(0);
  state.current().neverSaved = true;
  panel.SwitchContainer(1);
  EXPECT_EQ(editor.count("AskSaveCurrent (To remove Reminder, untick the related Option submenu)"), 1);
}

TEST_F(IconsPanelTest, ARefusedSaveDuringASwitchLeavesTheFormerContainerCurrent) {
  loadInto(0, 32, 0x0000FF);
  state.options.promptToSave = true;
  state.current().modified = true;
  state.picImage.fill(0x123456);
  editor.askSaveProceeds = false;
  panel.SwitchContainer(1);
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_EQ(state.picImage.GetPixel(0, 0), 0x123456);
  EXPECT_EQ(state.picPanelImage[0].GetPixel(0, 0), 0x0000FF);
}

TEST_F(IconsPanelTest, SwitchingToAClearedContainerShowsAnEmptyEditingAreaOf32Pixels) {
  loadInto(0, 48, 0x0000FF);
  state.screen.lblStatusPanel.fill("of the former icon");
  panel.SwitchContainer(2);
  EXPECT_EQ(state.picDisp.width(), 32 * state.gMagnification);
  EXPECT_EQ(state.gMagnification, 12);
  EXPECT_EQ(state.picDisp.GetPixel(5, 5), kGround);
  EXPECT_FALSE(state.screen.fraTools[1]);
  EXPECT_EQ(state.current().size, 32);
  EXPECT_FALSE(state.current().present);
  EXPECT_EQ(editor.count("showChart16"), 1);
  for (const std::string& text : state.screen.lblStatusPanel) EXPECT_EQ(text, "");
}

TEST_F(IconsPanelTest, SwitchingResetsTheUndoHistoryToABaseline) {
  loadInto(0, 32, 0x0000FF);
  loadInto(1, 32, 0x00FF00);
  panel.SwitchContainer(0);
  EXPECT_EQ(editor.count("clearUndoHistory"), 1);
  EXPECT_EQ(editor.count("recordUndo"), 1);
}

TEST_F(IconsPanelTest, InTheIconsListTheIconIsChosenButNotShown) {
  loadInto(0, 32, 0x0000FF);
  loadInto(1, 32, 0x00FF00);
  state.screen.mActivePanel = 1;
  panel.SwitchContainer(0);
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_EQ(state.picImage.GetPixel(0, 0), 0x00FF00);
  EXPECT_EQ(editor.count("closePanels"), 0);
}

TEST_F(IconsPanelTest, SwitchingClosesAnOpenSidePanel) {
  loadInto(0, 32, 0x0000FF);
  state.screen.mActivePanel = 7;
  panel.SwitchContainer(1);
  EXPECT_EQ(editor.count("closePanels"), 1);
}

TEST_F(IconsPanelTest, SwitchingKeepsAPanelOpenDuringAnAnimatedCursorSession) {
  loadInto(0, 32, 0x0000FF);
  loadInto(1, 32, 0x00FF00);
  state.screen.mActivePanel = 7;
  state.screen.aniContainerVisible = true;
  panel.SwitchContainer(0);
  EXPECT_EQ(editor.count("closePanels"), 0);
  EXPECT_EQ(state.PicIcon.GetPixel(0, 0), 0x0000FF);
}

TEST_F(IconsPanelTest, TheAlphaValuesFollowTheContainer) {
  loadInto(0, 16, 0x0000FF);
  state.mIconRecs[0].hasAlpha = true;
  state.mIconRecs[0].setDepth({kTrueColor, kBitsWithAlpha});
  state.mAlphaRecs[0] = AlphaMatrix(16, 16, 77);
  loadInto(1, 16, 0x00FF00);
  panel.SwitchContainer(0);
  EXPECT_EQ(state.picAlpha.GetPixel(15, 15), greyOf(77));
}

TEST_F(IconsPanelTest, AnIconWithAlphaFlashesItsIndicatorTwice) {
  loadInto(0, 16, 0x0000FF);
  state.current().hasAlpha = true;
  loadInto(1, 16, 0x00FF00);
  panel.SwitchContainer(0);
  EXPECT_GE(pump.waitedMilliseconds, 200);
  EXPECT_TRUE(state.screen.imgAlphaOnStatusPanel);
}

TEST_F(IconsPanelTest, ARightClickEndsTheIconsListAndShowsTheContainer) {
  loadInto(0, 32, 0x0000FF);
  loadInto(1, 32, 0x00FF00);
  panel.PanelRightClick(0);
  EXPECT_EQ(state.PicIcon.GetPixel(0, 0), 0x0000FF);
  EXPECT_EQ(editor.count("closePanels"), 0);
  state.screen.mActivePanel = 1;
  panel.PanelRightClick(0);
  EXPECT_EQ(editor.count("closePanels"), 1);
}

TEST_F(IconsPanelTest, ARightClickChoosesTheColourChartAtTheEnd) {
  loadInto(0, 32, 0x0000FF);
  for (const int container : {0, 3}) {
    editor.calls.clear();
    panel.PanelRightClick(container);
    ASSERT_FALSE(editor.calls.empty());
    EXPECT_EQ(editor.calls.back(), "chooseColorChart") << container;
  }
}

TEST_F(IconsPanelTest, ARightClickInTheIconsListChoosesTheChartOfTheContainersIcon) {
  loadInto(0, 32, 0x0000FF);
  state.screen.mActivePanel = 1;
  panel.PanelRightClick(0);
  EXPECT_EQ(editor.calls.back(), "chooseColorChart");
}

TEST_F(IconsPanelTest, EndingAToolActionClearsOverlayReadoutAndFlags) {
  loadInto(0, 32, 0x0000FF);
  state.picDisp.makePersistent();
  state.picDisp.SetPixelV(5, 5, 0x00FF00);
  state.screen.lblDispXY[2] = "Region";
  state.mPendingPaint = state.mRegionExists = true;
  panel.EndToolAction();
  EXPECT_NE(state.picDisp.GetPixel(5, 5), 0x00FF00);
  EXPECT_EQ(readout(Readout::Region), "");
  EXPECT_FALSE(state.mPendingPaint);
  EXPECT_FALSE(state.mRegionExists);
}

TEST_F(IconsPanelTest, EndingAToolActionDoesNothingInAnEmptyContainer) {
  state.mPendingPaint = true;
  state.screen.lblDispXY[2] = "Region";
  panel.EndToolAction();
  EXPECT_TRUE(state.mPendingPaint);
  EXPECT_EQ(readout(Readout::Region), "Region");
}

TEST_F(IconsPanelTest, CommittingAPendingActionStoresTheIconAndKeepsTheHistory) {
  loadInto(0, 32, 0x0000FF);
  state.picImage.fill(0x123456);
  state.current().modified = true;
  const unsigned before = state.iconSerial;
  panel.CommitPendingPaint();
  EXPECT_TRUE(editor.calls.empty());
  EXPECT_EQ(state.iconSerial, before);
  state.mPendingPaint = true;
  panel.CommitPendingPaint();
  EXPECT_EQ(state.iconSerial, before);
  EXPECT_FALSE(state.mPendingPaint);
  EXPECT_EQ(editor.count("clearRegion"), 1);
  EXPECT_EQ(editor.count("clearAllTools"), 1);
  EXPECT_EQ(editor.count("clearUndoHistory"), 0);
  EXPECT_EQ(state.picPanelImage[0].GetPixel(0, 0), 0x123456);
  EXPECT_EQ(state.picImage.GetPixel(0, 0), 0x123456);
}

TEST_F(IconsPanelTest, CommittingAsksLikeAClickWithTheOptionOnAndCancelLeavesTheContainer) {
  loadInto(0, 32, 0x0000FF);
  state.picImage.fill(0x123456);
  state.current().modified = state.options.promptToSave = state.mPendingPaint = true;
  editor.askSaveProceeds = false;
  panel.CommitPendingPaint();
  EXPECT_EQ(editor.count("AskSaveCurrent (To remove Reminder, untick the related Option submenu)"), 1);
  EXPECT_FALSE(state.mPendingPaint);
  EXPECT_EQ(state.picPanelImage[0].GetPixel(0, 0), 0x0000FF);
}

TEST_F(IconsPanelTest, OnlyAFirstNameThatEndsInIcoMayBeDropped) {
  EXPECT_TRUE(panel.PanelDragOver({"a.ico"}));
  EXPECT_TRUE(panel.PanelDragOver({"/x/B.IcO", "c.bmp"}));
  EXPECT_FALSE(panel.PanelDragOver({".ico"}));
  EXPECT_FALSE(panel.PanelDragOver({"a.bmp", "b.ico"}));
  EXPECT_FALSE(panel.PanelDragOver({}));
}

TEST_F(IconsPanelTest, ADropOpensTheFirstFileIntoTheContainerWithoutAQuestion) {
  loadInto(0, 32, 0x0000FF);
  state.current().modified = true;
  editor.quietLoader = [this] {
    EXPECT_EQ(state.mCurContainer, 4);
    loadInto(4, 24, 0xFF0000);
    return true;
  };
  panel.PanelDrop(4, {"/a/b.ico", "/a/c.ico"});
  EXPECT_EQ(editor.count("doOpenIconFileQuietly /a/b.ico"), 1);
  EXPECT_EQ(state.mCurContainer, 4);
  EXPECT_EQ(state.PicIcon.GetPixel(1, 1), 0xFF0000);
  EXPECT_TRUE(state.mIconRecs[0].modified);
  EXPECT_EQ(editor.count("chooseColorChart"), 2);
}

TEST_F(IconsPanelTest, ADropOfABitmapIsRefused) {
  loadInto(0, 32, 0x0000FF);
  panel.PanelDrop(1, {"/a/b.bmp"});
  EXPECT_EQ(editor.count("doOpenIconFileQuietly /a/b.bmp"), 0);
  EXPECT_EQ(state.mCurContainer, 0);
}

TEST_F(IconsPanelTest, AFailedDropLeavesTheFormerIconOnTheEditingAreaWithItsChanges) {
  loadInto(0, 32, 0x0000FF);
  state.picImage.SetPixelV(9, 9, 0x00FF00);
  area.ComposeCurrentIcon();
  state.current().modified = true;
  editor.quietLoader = [] { return false; };
  const unsigned serial = state.iconSerial;
  panel.PanelDrop(3, {"/a/broken.ico"});
  EXPECT_EQ(state.iconSerial, serial);
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_EQ(state.picImage.width(), 32);
  EXPECT_EQ(state.picImage.GetPixel(9, 9), 0x00FF00);
  EXPECT_EQ(state.PicIcon.GetPixel(9, 9), 0x00FF00);
  EXPECT_TRUE(state.current().modified);
}

TEST_F(IconsPanelTest, ADropStoresAnOpenToolActionFirst) {
  loadInto(0, 32, 0x0000FF);
  state.picImage.fill(0x123456);
  state.current().modified = state.mPendingPaint = true;
  editor.quietLoader = [this] {
    EXPECT_FALSE(state.mPendingPaint) << "the region has ended before the file is opened";
    EXPECT_EQ(editor.count("clearRegion"), 1);
    return false;
  };
  panel.PanelDrop(3, {"/a/none.ico"});
  EXPECT_EQ(editor.count("doOpenIconFileQuietly /a/none.ico"), 1);
  EXPECT_EQ(state.picPanelImage[0].GetPixel(0, 0), 0x123456);
}

TEST_F(IconsPanelTest, ADropClosesASidePanelUnlessAnAnimatedCursorIsEdited) {
  loadInto(0, 32, 0x0000FF);
  editor.quietLoader = [] { return false; };
  panel.PanelDrop(3, {"/a/none.ico"});
  EXPECT_EQ(editor.count("closePanels"), 0) << "the colour panel stays";
  state.screen.mActivePanel = 7;
  panel.PanelDrop(3, {"/a/none.bmp"});
  EXPECT_EQ(editor.count("closePanels"), 0) << "it was refused";
  panel.PanelDrop(3, {"/a/none.ico"});
  EXPECT_EQ(editor.count("closePanels"), 1);
  state.screen.aniContainerVisible = true;
  panel.PanelDrop(3, {"/a/none.ico"});
  EXPECT_EQ(editor.count("closePanels"), 1);
}

TEST_F(IconsPanelTest, ADropThatFailsAtOnceKeepsTheUndoHistory) {
  loadInto(0, 32, 0x0000FF);
  editor.quietLoader = [] { return false; };
  panel.PanelDrop(3, {"/a/none.ico"});
  EXPECT_EQ(editor.count("clearUndoHistory"), 0);
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_EQ(editor.count("offerIconsOfFile /a/none.ico 3"), 1);
}

TEST_F(IconsPanelTest, UpdatingThePanelTakesTheIconAndMakesABaseline) {
  loadInto(0, 32, 0x0000FF);
  state.picImage.SetPixelV(0, 0, 0x00FF00);
  panel.updateFromCurrent();
  EXPECT_EQ(state.picPanelImage[0].GetPixel(0, 0), 0x00FF00);
  EXPECT_EQ(editor.count("clearUndoHistory"), 1);
  EXPECT_EQ(editor.count("recordUndo"), 1);
}

}  // namespace
}  // namespace gp
