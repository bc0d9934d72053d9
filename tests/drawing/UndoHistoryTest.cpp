#include "drawing/DrawingFixture.h"
#include "drawing/UndoHistory.h"

namespace gp {
namespace {

using test::kGreen;
using test::kRed;
using test::Rows;

// Step n paints pixel n of row 0.
class UndoHistoryTest : public test::DrawingFixture {
 protected:
  UndoHistoryTest() { putIcon(0, 16); }
  void step(int x) {
    putPixel(x, 0, 'g');
    area.ComposeCurrentIcon();
    history.recordUndo();
  }
  void steps(int count) {
    for (int i = 0; i < count; ++i) step(i);
  }
  std::string row() const { return picture(1, 1).front(); }
};

TEST_F(UndoHistoryTest, ABaselineAloneCannotBeUndone) {
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_EQ(history.undoSeq(), 1);
  EXPECT_FALSE(history.canUndo());
  putPixel(3, 0, 'g');
  history.doUndo();
  history.doUndoAll();
  history.doRedo();
  EXPECT_FALSE(history.restoreUndo(UndoMode::OneStep));
  EXPECT_FALSE(history.restoreRedo());
  EXPECT_EQ(row(), "...g");
  EXPECT_EQ(editor.count("clearRegion"), 0);
}

TEST_F(UndoHistoryTest, AfterTwelveStepsTenUndosReachTheStateAfterTheSecondAndAnEleventhIsRefused) {
  steps(12);
  EXPECT_EQ(history.undoCount(), 11);
  for (int i = 11; i >= 2; --i) {
    history.doUndo();
    EXPECT_EQ(row(), std::string(static_cast<std::size_t>(i), 'g'));
  }
  EXPECT_EQ(row(), "gg");
  history.doUndo();
  EXPECT_EQ(row(), "gg");
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_EQ(history.redoCount(), 10);
}

TEST_F(UndoHistoryTest, ANewStepAfterAnUndoEndsTheRedoChain) {
  steps(2);
  history.doUndo();
  EXPECT_TRUE(history.canRedo());
  step(5);
  EXPECT_FALSE(history.canRedo());
  history.doRedo();
  EXPECT_EQ(row(), "g....g");
}

TEST_F(UndoHistoryTest, UndoAllEmptiesRedoAndTheCounterStartsAgainAtOne) {
  steps(4);
  history.doUndo();
  EXPECT_EQ(history.undoSeq(), 5);
  history.doUndoAll();
  EXPECT_EQ(row(), ".");
  EXPECT_FALSE(history.canRedo());
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_EQ(history.undoSeq(), 1);
  step(2);
  EXPECT_EQ(history.undoSeq(), 2);
}

TEST_F(UndoHistoryTest, UndoAllAfterMoreThanTenStepsGoesBackToTheOldestReachableState) {
  steps(14);
  history.doUndoAll();
  EXPECT_EQ(row(), "gggg");
}

TEST_F(UndoHistoryTest, AnUndoWhileShiftIsOnTurnsItOffAndGoesToTheBaseline) {
  step(0);
  // Turning Shift on: a new baseline, and a second like entry once its Surfaces are ready.
  history.clearUndoHistory();
  history.recordUndo();
  history.recordUndo();
  editor.tool = kShift;
  step(1);
  step(2);
  history.doUndo();
  EXPECT_EQ(row(), "g");
  EXPECT_EQ(editor.tool, kNoTool);
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_FALSE(history.canRedo());
  EXPECT_EQ(state.picDisp.GetPixel(2 * 12 + 5, 5), kGround) << "the Editing Area shows the baseline";
}

TEST_F(UndoHistoryTest, ARedoBringsTheExactPixelsOfBothSurfacesBack) {
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) {
      state.picImage.SetPixelV(x, y, rgb(x * 16, y * 16, x * y));
      state.picMask.SetPixelV(x, y, (x + y) % 3 == 0 ? kWhite : kBlack);
    }
  history.recordUndo();
  const Surface image = state.picImage;
  const Surface mask = state.picMask;
  history.doUndo();
  EXPECT_EQ(letterAt(5, 5), '.');
  history.doRedo();
  EXPECT_TRUE(std::ranges::equal(image.pixels(), state.picImage.pixels()));
  EXPECT_TRUE(std::ranges::equal(mask.pixels(), state.picMask.pixels()));
  EXPECT_EQ(history.redoCount(), 0);
  EXPECT_EQ(history.undoCount(), 2);
}

TEST_F(UndoHistoryTest, AnUnrecordedStrokeGoesWithTheStepThatFollowsIt) {
  step(0);
  putPixel(8, 0, 'r');  // a Restore stroke: no snapshot
  step(1);
  EXPECT_EQ(row(), "gg......r");
  history.doUndo();
  EXPECT_EQ(row(), "g");
}

TEST_F(UndoHistoryTest, AnUndoRightAfterAnUnrecordedStrokeTakesBackTheStepBeforeIt) {
  steps(2);
  putPixel(1, 0, '.');  // a Restore stroke: no snapshot
  history.doUndo();
  EXPECT_EQ(row(), "g");
  history.doRedo();
  EXPECT_EQ(row(), "gg") << "the stroke itself was never a step";
}

TEST_F(UndoHistoryTest, UndoAndRedoRedrawTheEditingAreaAndEndARegion) {
  step(0);
  EXPECT_EQ(state.picDisp.GetPixel(5, 5), kGround);
  history.doUndo();
  history.doRedo();
  EXPECT_EQ(state.picDisp.GetPixel(5, 5), kGreen);
  EXPECT_EQ(state.PicIcon.GetPixel(0, 0), kGreen);
  EXPECT_EQ(editor.count("clearRegion"), 2);
  history.doUndoAll();
  EXPECT_EQ(state.picDisp.GetPixel(5, 5), kGround);
  EXPECT_EQ(editor.count("clearRegion"), 3);
}

TEST_F(UndoHistoryTest, EachCommandBringsTheColourPanelForwardOnlyWhereItIsHidden) {
  steps(3);
  history.doUndo();
  EXPECT_EQ(editor.count("showPanel 0"), 0);
  int shown = 0;
  for (void (UndoHistory::*command)() : {&UndoHistory::doRedo, &UndoHistory::doUndo, &UndoHistory::doUndoAll}) {
    state.screen.mActivePanel = 5;
    (history.*command)();
    EXPECT_EQ(editor.count("showPanel 0"), ++shown);
    EXPECT_EQ(state.screen.mActivePanel, 0);
  }
  state.screen.mActivePanel = 5;
  history.doUndo();
  EXPECT_EQ(state.screen.mActivePanel, 5) << "there was nothing to undo";
}

TEST_F(UndoHistoryTest, ASnapshotOfAnotherSizeIsNeverApplied) {
  step(0);
  area.SizeEditSurfaces(32);
  state.picImage.fill(kRed);
  history.doUndo();
  EXPECT_EQ(state.picImage.GetPixel(0, 0), kRed);
  EXPECT_EQ(history.undoCount(), 2);
  EXPECT_EQ(history.redoCount(), 0);
}

TEST_F(UndoHistoryTest, AnUndoneSnapshotOfAnotherSizeIsNeverAppliedAgain) {
  step(0);
  history.doUndo();
  area.SizeEditSurfaces(32);
  state.picImage.fill(kRed);
  history.doRedo();
  EXPECT_EQ(state.picImage.GetPixel(0, 0), kRed);
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_EQ(history.redoCount(), 1);
}

TEST_F(UndoHistoryTest, ANewSizeIsRecordedAtItsOwnWidth) {
  step(0);
  putIcon(0, 48);
  putPixel(47, 47, 'r');
  history.recordUndo();
  history.doUndo();
  EXPECT_EQ(letterAt(47, 47), '.');
  history.doRedo();
  EXPECT_EQ(letterAt(47, 47), 'r');
  EXPECT_EQ(state.picUndo.width(), 96);
  EXPECT_EQ(state.picUndo.height(), 48);
}

TEST_F(UndoHistoryTest, ClearingTheHistoryEmptiesBothStacksAndBeginsANewEra) {
  steps(3);
  history.doUndo();
  const unsigned era = history.era();
  history.clearUndoHistory();
  EXPECT_EQ(history.undoCount(), 0);
  EXPECT_EQ(history.redoCount(), 0);
  EXPECT_EQ(history.undoSeq(), 0);
  EXPECT_NE(history.era(), era);
}

TEST_F(UndoHistoryTest, TheCounterStaysInItsRange) {
  for (int i = 0; i < 40000; ++i) history.recordUndo();
  EXPECT_EQ(history.undoSeq(), 32767);
  EXPECT_EQ(history.undoCount(), 11);
  expectAgreement();
}

TEST_F(UndoHistoryTest, RecordingPumpsLastSoThatANestedUndoFindsTheStep) {
  putPixel(4, 0, 'g');
  area.ComposeCurrentIcon();
  pump.inside = [this] { history.doUndo(); };
  history.recordUndo();
  EXPECT_EQ(row(), ".");
  EXPECT_EQ(history.redoCount(), 1);
  expectAgreement();
}

TEST_F(UndoHistoryTest, AContainerClickInsideTheRecordingStartsTheOtherIconsHistory) {
  putIcon(1, 32, {"rr"});
  putIcon(0, 16);
  state.current().modified = true;
  putPixel(4, 0, 'g');
  area.ComposeCurrentIcon();
  pump.inside = [this] { panel.SwitchContainer(1); };
  history.recordUndo();
  expectPicture({"rr"});
  EXPECT_EQ(history.undoCount(), 1);
  expectAgreement();
  panel.SwitchContainer(0);
  expectPicture({"....g"});
}

TEST_F(UndoHistoryTest, AnIconClosedInsideTheRecordingLeavesNothingToUndo) {
  pump.inside = [this] { panel.showEmptyContainer(); };
  step(3);
  EXPECT_EQ(history.undoCount(), 0);
  history.doUndo();
  history.doUndoAll();
  EXPECT_FALSE(state.current().present);
}

}  // namespace
}  // namespace gp
