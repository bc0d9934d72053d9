#include "drawing/DrawingFixture.h"

#include <functional>

namespace gp {
namespace {

using test::kGreen;
using test::kRed;

// Step n paints pixel n of row 0.
class UndoCommandsTest : public test::DrawingFixture {
 protected:
  UndoCommandsTest() { putIcon(0, 16); }
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

TEST_F(UndoCommandsTest, WithABaselineAloneNothingHappensNotEvenToARegion) {
  putPixel(3, 0, 'g');
  markRegion(8, 8, 11, 11);
  undo.doUndo();
  undo.doUndoAll();
  undo.doRedo();
  EXPECT_EQ(row(), "...g");
  EXPECT_TRUE(state.mRegionExists);
  EXPECT_EQ(history.undoCount(), 1);
}

TEST_F(UndoCommandsTest, AfterTwelveStepsTenUndosReachTheStateAfterTheSecondAndAnEleventhIsRefused) {
  steps(12);
  EXPECT_EQ(history.undoCount(), 11);
  for (int i = 11; i >= 2; --i) {
    undo.doUndo();
    EXPECT_EQ(row(), std::string(static_cast<std::size_t>(i), 'g'));
  }
  EXPECT_EQ(row(), "gg");
  undo.doUndo();
  EXPECT_EQ(row(), "gg");
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_EQ(history.redoCount(), 10);
}

TEST_F(UndoCommandsTest, ANewStepAfterAnUndoEndsTheRedoChain) {
  steps(2);
  undo.doUndo();
  EXPECT_TRUE(history.canRedo());
  step(5);
  EXPECT_FALSE(history.canRedo());
  undo.doRedo();
  EXPECT_EQ(row(), "g....g");
}

TEST_F(UndoCommandsTest, UndoAllEmptiesRedoAndTheCounterStartsAgainAtOne) {
  steps(4);
  undo.doUndo();
  EXPECT_EQ(history.undoSeq(), 5);
  undo.doUndoAll();
  EXPECT_EQ(row(), ".");
  EXPECT_FALSE(history.canRedo());
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_EQ(history.undoSeq(), 1);
  step(2);
  EXPECT_EQ(history.undoSeq(), 2);
}

TEST_F(UndoCommandsTest, UndoAllAfterMoreThanTenStepsGoesBackToTheOldestReachableState) {
  steps(14);
  undo.doUndoAll();
  EXPECT_EQ(row(), "gggg");
}

TEST_F(UndoCommandsTest, AnUndoWhileShiftIsOnTurnsItOffAndGoesToTheBaseline) {
  step(0);
  tools.selectTool(kShift);
  step(1);
  drawing.shift.shift(ShiftCell::Right);
  step(2);
  area.MagnifyIcon();
  EXPECT_EQ(state.picDisp.GetPixel(2 * 12 + 5, 5), kGreen);
  EXPECT_EQ(history.undoCount(), 4);
  undo.doUndo();
  EXPECT_EQ(row(), "g");
  EXPECT_EQ(tools.selectedTool(), kNoTool);
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_FALSE(history.canRedo());
  EXPECT_EQ(state.picDisp.GetPixel(2 * 12 + 5, 5), kGround) << "the Editing Area shows the baseline";
}

TEST_F(UndoCommandsTest, ARedoBringsTheExactPixelsOfBothSurfacesBack) {
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) {
      state.picImage.SetPixelV(x, y, rgb(x * 16, y * 16, x * y));
      state.picMask.SetPixelV(x, y, (x + y) % 3 == 0 ? kWhite : kBlack);
    }
  history.recordUndo();
  const Surface image = state.picImage;
  const Surface mask = state.picMask;
  undo.doUndo();
  EXPECT_EQ(letterAt(5, 5), '.');
  undo.doRedo();
  EXPECT_TRUE(std::ranges::equal(image.pixels(), state.picImage.pixels()));
  EXPECT_TRUE(std::ranges::equal(mask.pixels(), state.picMask.pixels()));
  EXPECT_EQ(history.redoCount(), 0);
  EXPECT_EQ(history.undoCount(), 2);
}

TEST_F(UndoCommandsTest, AnUnrecordedStrokeGoesWithTheStepThatFollowsIt) {
  step(0);
  putPixel(8, 0, 'r');  // a Restore stroke: no snapshot
  step(1);
  EXPECT_EQ(row(), "gg......r");
  undo.doUndo();
  EXPECT_EQ(row(), "g");
}

TEST_F(UndoCommandsTest, AnUndoRightAfterAnUnrecordedStrokeTakesBackTheStepBeforeIt) {
  steps(2);
  putPixel(1, 0, '.');  // a Restore stroke: no snapshot
  undo.doUndo();
  EXPECT_EQ(row(), "g");
  undo.doRedo();
  EXPECT_EQ(row(), "gg") << "the stroke itself was never a step";
}

TEST_F(UndoCommandsTest, UndoAndRedoRedrawTheEditingAreaAndEndARegion) {
  step(0);
  EXPECT_EQ(state.picDisp.GetPixel(5, 5), kGround);
  markRegion(8, 8, 11, 11);
  undo.doUndo();
  EXPECT_FALSE(state.mRegionExists);
  markRegion(8, 8, 11, 11);
  undo.doRedo();
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(state.picDisp.GetPixel(5, 5), kGreen);
  EXPECT_EQ(state.PicIcon.GetPixel(0, 0), kGreen);
  markRegion(8, 8, 11, 11);
  undo.doUndoAll();
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(state.picDisp.GetPixel(5, 5), kGround);
}

TEST_F(UndoCommandsTest, EachCommandMarksASavedIconAsChanged) {
  step(0);
  for (void (UndoCommands::*command)() : {&UndoCommands::doUndo, &UndoCommands::doRedo, &UndoCommands::doUndoAll}) {
    state.current().modified = false;
    std::invoke(command, undo);
    EXPECT_TRUE(state.IsIconChanged());
  }
}

TEST_F(UndoCommandsTest, AChangeOfTheMaskAloneMarksTheIconToo) {
  putPixel(0, 0, 'b');  // black, as a transparent pixel is in the image
  history.recordUndo();
  state.current().modified = false;
  undo.doUndo();
  EXPECT_TRUE(state.current().modified);
}

TEST_F(UndoCommandsTest, AnUndoThatChangesNoPixelDoesNotMarkTheIcon) {
  history.recordUndo();
  state.current().modified = false;
  undo.doUndo();
  undo.doRedo();
  undo.doUndoAll();
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_FALSE(state.current().modified);
}

TEST_F(UndoCommandsTest, EachCommandBringsTheColourPanelForwardOnlyWhereItIsHidden) {
  steps(3);
  undo.doUndo();
  EXPECT_EQ(editor.count("showPanel 0"), 0);
  int shown = 0;
  for (void (UndoCommands::*command)() : {&UndoCommands::doRedo, &UndoCommands::doUndo, &UndoCommands::doUndoAll}) {
    state.screen.mActivePanel = 5;
    std::invoke(command, undo);
    EXPECT_EQ(editor.count("showPanel 0"), ++shown);
    EXPECT_EQ(state.screen.mActivePanel, 0);
  }
  state.screen.mActivePanel = 5;
  undo.doUndo();
  EXPECT_EQ(state.screen.mActivePanel, 5) << "there was nothing to undo";
}

TEST_F(UndoCommandsTest, ASnapshotOfAnotherSizeIsNeverApplied) {
  step(0);
  area.SizeEditSurfaces(32);
  state.picImage.fill(kRed);
  undo.doUndo();
  EXPECT_EQ(state.picImage.GetPixel(0, 0), kRed);
  EXPECT_EQ(history.undoCount(), 2);
  EXPECT_EQ(history.redoCount(), 0);
}

TEST_F(UndoCommandsTest, AnUndoneSnapshotOfAnotherSizeIsNeverAppliedAgain) {
  step(0);
  undo.doUndo();
  area.SizeEditSurfaces(32);
  state.picImage.fill(kRed);
  undo.doRedo();
  EXPECT_EQ(state.picImage.GetPixel(0, 0), kRed);
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_EQ(history.redoCount(), 1);
}

TEST_F(UndoCommandsTest, AnUndoTakesARegionWithTheStepAndTheRedoDoesNotBringItBack) {
  step(0);
  markRegion(0, 0, 3, 3);
  undo.doUndo();
  undo.doRedo();
  EXPECT_EQ(row(), "g");
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(readout(Readout::Region), "");
  expectAgreement();
}

TEST_F(UndoCommandsTest, ANewSizeIsRecordedAtItsOwnWidth) {
  step(0);
  putIcon(0, 48);
  putPixel(47, 47, 'r');
  history.recordUndo();
  undo.doUndo();
  EXPECT_EQ(letterAt(47, 47), '.');
  undo.doRedo();
  EXPECT_EQ(letterAt(47, 47), 'r');
}

TEST_F(UndoCommandsTest, RecordingPumpsLastSoThatANestedUndoFindsTheStep) {
  putPixel(4, 0, 'g');
  area.ComposeCurrentIcon();
  pump.inside = [this] { undo.doUndo(); };
  history.recordUndo();
  EXPECT_EQ(row(), ".");
  EXPECT_EQ(history.redoCount(), 1);
  expectAgreement();
}

TEST_F(UndoCommandsTest, AnIconClosedInsideTheRecordingLeavesNothingToUndo) {
  pump.inside = [this] { panel.showEmptyContainer(); };
  step(3);
  EXPECT_EQ(history.undoCount(), 0);
  undo.doUndo();
  undo.doUndoAll();
  EXPECT_FALSE(state.current().present);
}

}  // namespace
}  // namespace gp
