#include "drawing/DrawingFixture.h"

namespace gp {
namespace {

using test::kGreen;
using test::kRed;

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
  EXPECT_FALSE(history.canRedo());
  putPixel(3, 0, 'g');
  EXPECT_FALSE(history.restoreUndo(UndoMode::OneStep));
  EXPECT_FALSE(history.restoreUndo(UndoMode::Baseline));
  EXPECT_FALSE(history.restoreRedo());
  EXPECT_EQ(row(), "...g");
}

TEST_F(UndoHistoryTest, OneStepBackComposesTheIconAndLeavesTheEditingAreaToTheCaller) {
  steps(2);
  area.MagnifyIcon();
  EXPECT_TRUE(history.restoreUndo(UndoMode::OneStep));
  EXPECT_EQ(row(), "g");
  EXPECT_EQ(state.PicIcon.GetPixel(1, 0), kGround);
  EXPECT_EQ(state.picDisp.GetPixel(12 + 5, 5), kGreen);
  EXPECT_TRUE(history.restoreRedo());
  EXPECT_EQ(row(), "gg");
  EXPECT_EQ(state.PicIcon.GetPixel(1, 0), kGreen);
}

TEST_F(UndoHistoryTest, TheBaselineIsTheOldestStateAndCannotBeRedone) {
  steps(3);
  EXPECT_TRUE(history.restoreUndo(UndoMode::Baseline));
  EXPECT_EQ(row(), ".");
  EXPECT_FALSE(history.canRedo());
  EXPECT_EQ(history.undoCount(), 1);
  EXPECT_EQ(history.undoSeq(), 1);
}

TEST_F(UndoHistoryTest, ASnapshotOfAnotherSizeIsNeverRestored) {
  steps(2);
  ASSERT_TRUE(history.restoreUndo(UndoMode::OneStep));
  area.SizeEditSurfaces(32);
  state.picImage.fill(kRed);
  EXPECT_FALSE(history.restoreUndo(UndoMode::OneStep));
  EXPECT_FALSE(history.restoreUndo(UndoMode::Baseline));
  EXPECT_FALSE(history.restoreRedo());
  EXPECT_EQ(state.picImage.GetPixel(0, 0), kRed);
  EXPECT_EQ(history.undoCount(), 2);
  EXPECT_EQ(history.redoCount(), 1);
}

TEST_F(UndoHistoryTest, ClearingTheHistoryEmptiesBothStacks) {
  steps(3);
  history.restoreUndo(UndoMode::OneStep);
  EXPECT_EQ(history.redoCount(), 1);
  history.clearUndoHistory();
  EXPECT_EQ(history.undoCount(), 0);
  EXPECT_EQ(history.redoCount(), 0);
  EXPECT_EQ(history.undoSeq(), 0);
}

TEST_F(UndoHistoryTest, TheCounterStaysInItsRange) {
  for (int i = 0; i < 40000; ++i) history.recordUndo();
  EXPECT_EQ(history.undoSeq(), 32767);
  EXPECT_EQ(history.undoCount(), 11);
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

}  // namespace
}  // namespace gp
