#include "drawing/RegionFixture.h"

namespace gp {
namespace {

using test::Rows;

// Every test that moves a region is valid for both settings of the option.
class Dragging : public test::RegionFixture, public testing::WithParamInterface<bool> {
 protected:
  Dragging() { state.options.updateOnlyEditingArea = GetParam(); }
};
INSTANTIATE_TEST_SUITE_P(BothSettings, Dragging, testing::Bool());

class RegionsTest : public test::RegionFixture {};

const Rows kDrawing = {"aaaa",  //
                       "abba",  //
                       "ab.a",  //
                       "aaaa"};

TEST_F(RegionsTest, APressAndReleaseWithoutAMoveLeavesNoRegion) {
  makeIcon(16, kDrawing);
  press(24, 24);
  release(24, 24);
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(icon(), kDrawing);
  expectAgreement();
}

TEST_F(RegionsTest, ABoxWithoutHeightLeavesNoRegion) {
  makeIcon(16, kDrawing);
  drag(1, 1, 5, 1);
  EXPECT_FALSE(state.mRegionExists);
  expectAgreement();
}

TEST_F(RegionsTest, ABoxIsDrawnFromCornerToCornerAndItsContentLifted) {
  makeIcon(16, kDrawing);
  mark(1, 1, 2, 2);
  EXPECT_TRUE(state.mRegionExists);
  EXPECT_EQ(boxInPixels(), (Rows{"1,1", "2,2"}));
  EXPECT_EQ(content(), (Rows{"bb", "b."}));
  EXPECT_EQ(label(), "Region: Start [2, 2]   W=2 H=2");
  EXPECT_EQ(icon(), kDrawing) << "lifting alone changes nothing";
  EXPECT_EQ(beneath(), (Rows{"aaaa", "a..a", "a..a", "aaaa"}));
  expectAgreement();
}

TEST_F(RegionsTest, ABoxDraggedUpAndLeftIsNormalisedAtRelease) {
  makeIcon(16, kDrawing);
  press(cells(3), cells(3));
  move(cells(1), cells(1));
  EXPECT_EQ(label(), "Region: Start [4, 4]   W=3 H=3");
  release(cells(1), cells(1));
  EXPECT_EQ(boxInPixels(), (Rows{"1,1", "2,2"}));
  EXPECT_EQ(label(), "Region: Start [2, 2]   W=2 H=2");
  EXPECT_EQ(content(), (Rows{"bb", "b."}));
  expectAgreement();
}

TEST_F(RegionsTest, ABoxAtTheRightEdgeEndsOnTheIconsLastColumn) {
  makeIcon(16);
  drag(13, 0, 16, 2);
  EXPECT_EQ(boxInPixels(), (Rows{"13,0", "15,1"}));
  expectAgreement();
}

TEST_F(RegionsTest, AModifierMakesTheBoxASquareThatStaysInside) {
  makeIcon(16);
  press(cells(2), cells(2));
  move(cells(7), cells(4), kCtrlKey);
  release(cells(7), cells(4));
  EXPECT_EQ(boxInPixels(), (Rows{"2,2", "6,6"}));
  press(cells(12), cells(12));
  release(cells(12), cells(12));
  press(cells(13), cells(2));
  move(191, cells(12), kShiftKey);
  release(191, cells(12));
  EXPECT_EQ(boxInPixels(), (Rows{"13,2", "15,4"}));
  EXPECT_EQ(content().size(), 3U);
}

TEST_F(RegionsTest, TheBoxIsABandOnTheOverlayThatASideAtTheFullSizeKeepsInSight) {
  makeIcon(16);
  state.gGridColor = kNoGrid;
  area.MagnifyIcon();
  drag(0, 0, 16, 16);
  int drawnRight = 0, drawnBottom = 0;
  for (int i = 0; i < 191; ++i) {
    drawnRight += state.picDisp.GetPixel(191, i) != kGround;
    drawnBottom += state.picDisp.GetPixel(i, 191) != kGround;
  }
  EXPECT_NEAR(drawnRight, 96, 3) << "three drawn, three left out";
  EXPECT_NEAR(drawnBottom, 96, 3);
  regions.clearRegion();
  for (int i = 0; i < 192; ++i) {
    EXPECT_EQ(state.picDisp.GetPixel(i, 0), kGround);
    EXPECT_EQ(state.picDisp.GetPixel(191, i), kGround);
  }
}

TEST_P(Dragging, ARegionIsMovedAndThePlaceItLeftIsBlank) {
  makeIcon(16, {"aaaaa", "abbba", "abcba", "abbba", "aaaaa"});
  mark(0, 0, 4, 4);
  moveRegion(3, 2);
  EXPECT_EQ(icon(), (Rows{"", "", "...aaaaa", "...abbba", "...abcba", "...abbba", "...aaaaa"}));
  EXPECT_EQ(label(), "Region: Start [4, 3]   W=5 H=5");
  EXPECT_TRUE(state.current().modified);
  EXPECT_FALSE(regions.isFloating());
  expectAgreement();
}

TEST_P(Dragging, TransparentPixelsOfTheRegionStaySeeThroughWhileItIsDragged) {
  makeIcon(16, {"a..a", "....", "....", "a..a", "", "", "bbbbbbbb", "bbbbbbbb", "bbbbbbbb", "bbbbbbbb"});
  mark(0, 0, 3, 3);
  moveRegion(2, 6);
  EXPECT_EQ(icon(), (Rows{"", "", "", "", "", "", "bbabbabb", "bbbbbbbb", "bbbbbbbb", "bbabbabb"}));
  expectAgreement();
}

TEST_P(Dragging, WhatARegionPassedOverIsAsItWas) {
  makeIcon(16, {"aaaa....b", "aaaa....b", "aaaa....b", "aaaa....b"});
  mark(0, 0, 3, 3);
  press(inside(0), inside(0));
  move(inside(0) + cells(6), inside(0));
  move(inside(0) + cells(6), inside(0) + cells(6));
  release(inside(0), inside(0));
  EXPECT_EQ(icon(), (Rows{"........b", "........b", "........b", "........b", "", "", "......aaaa", "......aaaa",
                          "......aaaa", "......aaaa"}));
  expectAgreement();
}

TEST_P(Dragging, StopsWhenSeventyPercentOfTheBoxHaveLeft) {
  makeIcon(32, Rows(10, "aaaaaaaaaa"));
  mark(0, 0, 9, 9);
  press(cells(9), cells(9));
  for (int step = 8; step >= 0; --step) move(cells(step), cells(9));
  EXPECT_EQ(draw.region.x1, -84) << "the box is 120 wide";
  release(cells(0), cells(9));
  EXPECT_EQ(icon(), Rows(10, "aaa"));
  EXPECT_EQ(label(), "Region: Start [-6, 1]   W=10 H=10");
}

TEST_P(Dragging, AMovePastALimitIsIgnoredAsAWhole) {
  makeIcon(32, Rows(10, "aaaaaaaaaa"));
  mark(0, 0, 9, 9);
  press(cells(9), cells(5));
  move(cells(1), cells(8));
  EXPECT_EQ(draw.region.x1, 0);
  EXPECT_EQ(draw.region.y1, 0) << "down would have been allowed";
  release(cells(1), cells(8));
}

TEST_P(Dragging, ADragThatEndsOutsideStaysAtItsLastPlaceInside) {
  makeIcon(16, Rows(4, "aaaa"));
  mark(0, 0, 3, 3);
  press(inside(0), inside(0));
  move(inside(0) + cells(4), inside(0));
  move(5000, -300);
  release(5000, -300);
  EXPECT_EQ(icon(), Rows(4, "....aaaa"));
  expectAgreement();
}

TEST_P(Dragging, ASecondButtonInBetweenEndsTheDragOnce) {
  makeIcon(16, Rows(4, "aaaa"));
  mark(0, 0, 3, 3);
  press(inside(0), inside(0));
  move(inside(0) + cells(4), inside(0));
  release(inside(0) + cells(4), inside(0));
  move(inside(0) + cells(8), inside(0));
  release(inside(0) + cells(8), inside(0));
  EXPECT_EQ(icon(), Rows(4, "....aaaa"));
  expectAgreement();
}

TEST_P(Dragging, ASecondPressWithoutAReleaseGoesOnFromWhereTheRegionIs) {
  makeIcon(16, Rows(4, "aaaa"));
  mark(0, 0, 3, 3);
  press(inside(0), inside(0));
  move(inside(0) + cells(4), inside(0));
  press(inside(4), inside(0));
  move(inside(4), inside(0) + cells(2));
  release(inside(4), inside(0) + cells(2));
  EXPECT_EQ(icon(), (Rows{"", "", "....aaaa", "....aaaa", "....aaaa", "....aaaa"}));
  expectAgreement();
}

TEST_P(Dragging, APressOutsideMergesTheRegionAndRecordsAStep) {
  makeIcon(16, Rows(4, "aaaa"));
  mark(0, 0, 3, 3);
  moveRegion(4, 0);
  const int steps = history.undoCount();
  press(cells(12), cells(12));
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(tools.selectedTool(), kRegion);
  EXPECT_EQ(history.undoCount(), steps + 1);
  release(cells(12), cells(12));
  EXPECT_EQ(icon(), Rows(4, "....aaaa"));
  undo.doUndo();
  EXPECT_EQ(icon(), Rows(4, "aaaa"));
  undo.doRedo();
  EXPECT_EQ(icon(), Rows(4, "....aaaa"));
  expectAgreement();
}

TEST_P(Dragging, BothSettingsShowTheSameWhileTheMouseIsDown) {
  const Rows drawn = {"a..a.b", "....b.", "..ka..", "a..a.c"};
  for (int grid = 0; grid < kGridCount; ++grid) {
    makeIcon(16, drawn);
    options.SetGrid(grid);
    mark(0, 0, 3, 3);
    press(inside(0), inside(0));
    for (int step = 1; step <= 5; ++step) move(inside(0) + cells(step), inside(0) + cells(step / 2));
    const Surface shown = state.picDisp;
    release(inside(0) + cells(5), inside(0) + cells(2));
    EXPECT_TRUE(same(shown, state.picDisp)) << "grid " << grid;
    regions.clearRegion();
  }
}

TEST_F(RegionsTest, WithTheOptionOnTheIconWaitsForTheMouseToComeUp) {
  makeIcon(16, Rows(4, "aaaa"));
  state.options.updateOnlyEditingArea = true;
  mark(0, 0, 3, 3);
  press(inside(0), inside(0));
  const int rebuilt = display.count(DisplayPart::EditingArea);
  move(inside(0) + cells(4), inside(0));
  EXPECT_EQ(icon(), Rows(4, "aaaa"));
  EXPECT_EQ(display.count(DisplayPart::EditingArea), rebuilt);
  EXPECT_EQ(state.picDisp.GetPixel(cells(6) + 5, 5), test::kColorA);
  EXPECT_EQ(state.picDisp.GetPixel(cells(1) + 5, 5), kGround);
  release(inside(0) + cells(4), inside(0));
  EXPECT_EQ(icon(), Rows(4, "....aaaa"));
}

TEST_F(RegionsTest, AGridChosenDuringADragIsTheGridTheDragGoesOnOver) {
  makeIcon(16, Rows(4, "aaaa"));
  state.options.updateOnlyEditingArea = true;
  mark(0, 0, 3, 3);
  press(inside(0), inside(0));
  move(inside(0) + cells(2), inside(0));
  options.SetGrid(3);
  move(inside(0) + cells(4), inside(0));
  const Surface shown = state.picDisp;
  release(inside(0) + cells(4), inside(0));
  EXPECT_TRUE(same(shown, state.picDisp));
  EXPECT_EQ(icon(), Rows(4, "....aaaa"));
  expectAgreement();
}

TEST_F(RegionsTest, ANewMagnificationTakesTheBoxWithIt) {
  makeIcon(16, Rows(4, "aaaa"));
  mark(0, 0, 3, 3);
  tools.clearAllTools();
  options.setRoom(600, 600);
  EXPECT_EQ(state.gMagnification, 15);
  EXPECT_EQ(draw.region.x2, 60);
  EXPECT_EQ(boxInPixels(), (Rows{"0,0", "3,3"}));
  // Selecting Region would end the region.
  RegionTool tool(context, history, regions, tools);
  const auto mouse = [this](int column) {
    return ToolMouse{kRegion, column, 2, static_cast<float>(cells(column)), static_cast<float>(cells(2))};
  };
  tool.press(mouse(2));
  tool.move(mouse(6));
  tool.release(mouse(6));
  EXPECT_EQ(icon(), Rows(4, "....aaaa"));
  expectAgreement();
}

TEST_P(Dragging, ASideIsPulledAndTheContentLiftedAgain) {
  makeIcon(16, {"aaaaaa", "aaaaab", "aaaaab", "aaaaaa"});
  mark(0, 0, 3, 3);
  press(cells(4), cells(2));
  EXPECT_EQ(regions.phase(), RegionPhase::Sizing);
  move(cells(4) + 20, cells(2));
  EXPECT_EQ(draw.region.x2, 68);
  EXPECT_EQ(label(), "") << "no size is shown while a side moves";
  move(cells(6) + 7, cells(2));
  release(cells(6) + 7, cells(2));
  EXPECT_EQ(boxInPixels(), (Rows{"0,0", "5,3"}));
  EXPECT_EQ(content(), (Rows{"aaaaaa", "aaaaab", "aaaaab", "aaaaaa"}));
  EXPECT_EQ(label(), "Region: Start [1, 1]   W=6 H=4");
  expectAgreement();
}

TEST_P(Dragging, ASidePulledOverTheOtherGivesARegionInOrder) {
  makeIcon(16, Rows(8, "aaaabbbb"));
  mark(4, 0, 7, 3);
  press(cells(8), cells(2));
  move(cells(2), cells(2));
  release(cells(2), cells(2));
  EXPECT_EQ(boxInPixels(), (Rows{"2,0", "3,3"}));
  EXPECT_EQ(content(), Rows(4, "aa"));
  expectAgreement();
}

TEST_P(Dragging, ASidePulledOntoTheOtherGoesBack) {
  makeIcon(16, Rows(8, "aaaabbbb"));
  mark(4, 0, 7, 3);
  press(cells(8), cells(2));
  move(cells(4), cells(2));
  release(cells(4), cells(2));
  EXPECT_EQ(boxInPixels(), (Rows{"4,0", "7,3"}));
  expectAgreement();
}

TEST_P(Dragging, APressInThePointersBandBesideThePressBandPullsNoSide) {
  makeIcon(16, Rows(8, "aaaaaaaa"));
  mark(4, 4, 7, 7);
  press(cells(4) - 7, cells(6));
  EXPECT_EQ(regions.phase(), RegionPhase::Sizing);
  EXPECT_EQ(regions.pulledEdge(), RegionEdge::None);
  move(cells(2), cells(6));
  release(cells(2), cells(6));
  EXPECT_EQ(boxInPixels(), (Rows{"4,4", "7,7"}));
  expectAgreement();
}

TEST_F(RegionsTest, WithoutARegionThePointerIsACross) {
  makeIcon(16);
  EXPECT_EQ(regions.pointerAt(5, 5), RegionPointer::Cross);
  mark(0, 0, 7, 7);
  EXPECT_EQ(regions.pointerAt(inside(0), inside(0)), RegionPointer::Move);
}

TEST_F(RegionsTest, InvertingPixelsAreNotLiftedAndStayWhileTheRegionIsOnlyClicked) {
  makeIcon(16, {"a!aa", "aaaa", "aaaa", "aaaa"});
  state.options.updateOnlyEditingArea = true;
  mark(0, 0, 3, 3);
  EXPECT_EQ(content().front(), "a.aa");
  press(inside(0), inside(0));
  release(inside(0), inside(0));
  EXPECT_EQ(icon().front(), "a!aa");
}

TEST_F(RegionsTest, LiftingTheBlockAsItIsTakesInvertingPixelsToo) {
  makeIcon(16, {"a!aa", "aaaa", "aaaa", "aaaa"});
  mark(0, 0, 3, 3);
  regions.liftRegion(false);
  EXPECT_EQ(content().front(), "a!aa");
}

TEST_F(RegionsTest, AnIconOfAnotherSizeIsNotWrittenByARegionOfTheLastOne) {
  makeIcon(32, Rows(4, "aaaa"));
  mark(0, 0, 3, 3);
  area.SizeEditSurfaces(16);
  setPixels({"b"});
  regions.renderRegion();
  EXPECT_EQ(icon(), Rows{"b"});
}

TEST_F(RegionsTest, AnotherIconOfItsSizeIsNotWrittenByARegionOfTheLastOne) {
  makeIcon(16, Rows(4, "aaaa"));
  mark(0, 0, 3, 3);
  ++state.iconSerial;
  setPixels({"b"});
  regions.renderRegion();
  EXPECT_EQ(icon(), Rows{"b"});
}

TEST_F(RegionsTest, AnotherToolCommitsAFloatingRegion) {
  makeIcon(16, {"ab", "aa"});
  mark(0, 0, 1, 1);
  transforms.RotateFlipHoriz();
  ASSERT_TRUE(state.mPendingPaint);
  EXPECT_EQ(trimmed(rowsOf(state.picPanelImage[0], state.picPanelMask[0])), (Rows{"ab", "aa"}));
  tools.selectTool(kPaint);
  EXPECT_EQ(trimmed(rowsOf(state.picPanelImage[0], state.picPanelMask[0])), (Rows{"ba", "aa"}));
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(tools.selectedTool(), kPaint);
  EXPECT_EQ(history.undoCount(), 2) << "the flip is a step";
  expectAgreement();
}

TEST_F(RegionsTest, AnotherToolKeepsTheMergeAndEndsTheRegion) {
  makeIcon(16, Rows(4, "aaaa"));
  mark(0, 0, 3, 3);
  moveRegion(4, 0);
  tools.selectTool(kPaint);
  EXPECT_EQ(icon(), Rows(4, "....aaaa"));
  expectAgreement();
}

TEST_F(RegionsTest, AnotherContainerKeepsWhatARegionMoved) {
  makeIcon(16, Rows(4, "aaaa"));
  mark(0, 0, 3, 3);
  moveRegion(4, 0);
  panel.SwitchContainer(1);
  expectAgreement();
  panel.SwitchContainer(0);
  EXPECT_EQ(icon(), Rows(4, "....aaaa"));
  expectAgreement();
}

TEST_F(RegionsTest, CommittingAFloatingRegionMergesItIntoTheContainerAsAStep) {
  makeIcon(16, {"ab", "aa"});
  mark(0, 0, 1, 1);
  transforms.RotateFlipHoriz();
  EXPECT_TRUE(state.mPendingPaint);
  panel.CommitPendingPaint();
  EXPECT_EQ(icon(), (Rows{"ba", "aa"}));
  EXPECT_EQ(trimmed(rowsOf(state.picPanelImage[0], state.picPanelMask[0])), (Rows{"ba", "aa"}));
  EXPECT_EQ(history.undoCount(), 2);
  EXPECT_FALSE(state.mRegionExists);
  expectAgreement();
}

// A busy machine: the mouse moves on while its former position is still being handled.
TEST_F(RegionsTest, ALaterPositionOfTheMouseIsNotOvertakenByAnEarlierOne) {
  makeIcon(16, {"ab", "cd"});
  mark(0, 0, 1, 1);
  const int start = cells(1);
  press(start, start);
  pump.inside = [&] { move(start + cells(6), start + cells(4)); };
  move(start + cells(3), start + cells(2));
  release(start + cells(6), start + cells(4));
  EXPECT_EQ(boxInPixels(), (Rows{"6,4", "7,5"}));
  EXPECT_FALSE(regions.isDragged());
}

}  // namespace
}  // namespace gp
