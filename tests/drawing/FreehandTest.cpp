#include "drawing/DrawingFixture.h"

namespace gp {
namespace {

class FreehandTest : public test::DrawingFixture {
 protected:
  FreehandTest() {
    putIcon(1, 16, {"rr"});
    putIcon(0, 16, {"...", "..."});
    tools.selectTool(kPaint);
  }
};

TEST_F(FreehandTest, AStrokeIsOneStep) {
  press(1, 1);
  move(2, 1);
  release(2, 1);
  expectPicture({"...", ".gg"});
  EXPECT_EQ(history.undoCount(), 2);
  expectAgreement();
}

TEST_F(FreehandTest, AClickOnAnotherContainerInThePumpOfAReleaseLeavesThatIconNothingToUndo) {
  press(1, 1);
  pump.inside = [this] { panel.SwitchContainer(1); };
  release(1, 1);
  EXPECT_EQ(state.mCurContainer, 1);
  EXPECT_EQ(history.undoCount(), 1);
  expectPicture({"rr"});
  expectAgreement();
}

TEST_F(FreehandTest, AnUndoInThePumpOfAReleaseTakesTheStrokeBackAndCanBeRedone) {
  press(1, 1);
  pump.inside = [this] { undo.doUndo(); };
  release(1, 1);
  expectPicture({"...", "..."});
  EXPECT_TRUE(history.canRedo());
  expectAgreement();
}

}  // namespace
}  // namespace gp
