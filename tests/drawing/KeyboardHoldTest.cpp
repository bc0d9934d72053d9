#include "drawing/DrawingFixture.h"
#include "drawing/ToolTable.h"

#include <array>

namespace gp {
namespace {

// Presses that stay down for the keyboard, and the size of what they draw.
class KeyboardHoldTest : public test::DrawingFixture {
 protected:
  KeyboardHoldTest() { putIcon(0, 16); }

  MouseInput key(int x, int y, int modifiers = 0) const {
    MouseInput input = at(x, y, kLeftButton, modifiers);
    input.byKeyboard = true;
    return input;
  }
  std::string size() const { return readout(Readout::Size); }
  // The pixels of picDisp that differ from the icon without a band.
  int bandPixels() {
    Surface plain = state.picDisp;
    plain.clearDrawing();
    int count = 0;
    for (int y = 0; y < plain.height(); ++y)
      for (int x = 0; x < plain.width(); ++x) count += plain.GetPixel(x, y) != state.picDisp.GetPixel(x, y);
    return count;
  }
};

constexpr std::array<Tool, 5> kShapes = {kLine, kRectangle, kFilledRectangle, kOval, kFilledOval};

TEST_F(KeyboardHoldTest, ShapesAndRegionStayPressedAndTheOtherToolsDoNot) {
  for (int tool = kFirstTool; tool <= kLastTool; ++tool) {
    putIcon(0, 16);
    tools.selectTool(static_cast<Tool>(tool));
    EXPECT_FALSE(tools.isHeld()) << tool;
    tools.press(key(3, 3));
    EXPECT_EQ(tools.isHeld(), tool >= kLine && tool <= kRegion) << tool;
    tools.release(key(3, 3));
    EXPECT_FALSE(tools.isHeld()) << tool;
    tools.clearAllTools();
  }
}

TEST_F(KeyboardHoldTest, EachShapeIsTheOneThatTheMouseDraws) {
  for (const Tool tool : kShapes) {
    for (const int modifiers : {0, kShiftKey}) {
      putIcon(0, 16);
      tools.selectTool(tool);
      drag(2, 3, 9, 8, modifiers);
      const IconImage byMouse{state.picImage, state.picMask, {}};
      putIcon(0, 16);
      tools.selectTool(tool);
      tools.press(key(2, 3, modifiers));
      for (int x = 3; x <= 9; ++x) tools.move(key(x, 3, modifiers));
      for (int y = 4; y <= 8; ++y) tools.move(key(9, y, modifiers));
      tools.release(key(9, 8, modifiers));
      EXPECT_TRUE(same(state.picImage, byMouse.image)) << tool;
      EXPECT_TRUE(same(state.picMask, byMouse.mask)) << tool;
      EXPECT_EQ(history.undoCount(), 2);
    }
  }
}

TEST_F(KeyboardHoldTest, AShapeThatIsGivenUpLeavesNothing) {
  for (const Tool tool : kShapes) {
    putIcon(0, 16, {"r"});
    state.current().modified = false;
    tools.selectTool(tool);
    tools.press(key(2, 3));
    tools.move(key(9, 8));
    EXPECT_GT(bandPixels(), 0);
    tools.giveUp();
    EXPECT_EQ(bandPixels(), 0);
    EXPECT_FALSE(tools.isHeld());
    EXPECT_FALSE(state.current().modified);
    expectPicture({"r"});
    EXPECT_EQ(history.undoCount(), 1);
    EXPECT_EQ(size(), "");
    tools.move(key(12, 12));
    EXPECT_EQ(bandPixels(), 0) << "nothing is drawn any more";
  }
}

TEST_F(KeyboardHoldTest, NoKeyOvertakesTheOneBefore) {
  tools.selectTool(kRectangle);
  tools.press(key(2, 2));
  pump.inside = [this] { tools.move(key(9, 9)); };
  tools.move(key(4, 3));
  pump.inside = nullptr;
  EXPECT_EQ(size(), "3 x 2");
  EXPECT_EQ(readout(Readout::Position), "X=5  Y=4");
}

TEST_F(KeyboardHoldTest, AnotherToolEndsTheHold) {
  tools.selectTool(kLine);
  tools.press(key(2, 3));
  tools.selectTool(kPaint);
  EXPECT_FALSE(tools.isHeld());
  EXPECT_EQ(size(), "");
}

TEST_F(KeyboardHoldTest, TheReadOutHasTheSizeWhileAShapeIsDrawn) {
  for (const Tool tool : kShapes) {
    putIcon(0, 16);
    tools.selectTool(tool);
    move(5, 5);
    EXPECT_EQ(size(), "");
    press(5, 5);
    EXPECT_EQ(size(), "1 x 1");
    move(8, 6);
    EXPECT_EQ(size(), "4 x 2");
    EXPECT_EQ(readout(Readout::Position), "X=9  Y=7");
    EXPECT_EQ(readout(Readout::Region), "");
    move(1, 6);
    EXPECT_EQ(size(), "5 x 2") << "drawn to the left";
    move(8, 6, kShiftKey);
    EXPECT_EQ(size(), "4 x 4") << "a square";
    release(8, 6);
    EXPECT_EQ(size(), "");
  }
}

TEST_F(KeyboardHoldTest, TheReadOutHasTheSizeWhileARegionIsDrawnInAnyDirection) {
  tools.selectTool(kRegion);
  const auto corner = [m = static_cast<float>(state.gMagnification)](int x, int y) {
    return MouseInput{kLeftButton, 0, static_cast<float>(x) * m, static_cast<float>(y) * m};
  };
  tools.press(corner(4, 4));
  EXPECT_EQ(size(), "");
  tools.move(corner(7, 5));
  EXPECT_EQ(size(), "3 x 1");
  EXPECT_EQ(readout(Readout::Region), "Region: Start [5, 5]   W=3 H=1");
  tools.move(corner(1, 2));
  EXPECT_EQ(size(), "3 x 2");
  tools.release(corner(1, 2));
  EXPECT_EQ(size(), "");
  EXPECT_EQ(readout(Readout::Region), "Region: Start [2, 3]   W=3 H=2");
}

TEST_F(KeyboardHoldTest, OtherToolsHaveNoSize) {
  for (const Tool tool : {kPaint, kErase, kFill, kReplace, kRestore, kShift}) {
    tools.selectTool(tool);
    press(5, 5);
    move(7, 6);
    EXPECT_EQ(size(), "") << tool;
    release(7, 6);
  }
}

TEST_F(KeyboardHoldTest, TheBandOfAShapeFollowsTheZoom) {
  for (const Tool tool : kShapes) {
    putIcon(0, 16);
    tools.selectTool(tool);
    press(2, 3);
    move(9, 8);
    for (const ZoomStep step : {ZoomStep::In, ZoomStep::In, ZoomStep::Out, ZoomStep::ToOption}) {
      options.zoom(step);
      tools.followMagnification();
      Surface followed = state.picDisp;
      EXPECT_GT(bandPixels(), 0) << tool;
      move(9, 8);
      EXPECT_TRUE(same(state.picDisp, followed)) << "as a move of the mouse draws it";
    }
    release(9, 8);
    const IconImage zoomed{state.picImage, state.picMask, {}};
    putIcon(0, 16);
    tools.selectTool(tool);
    drag(2, 3, 9, 8);
    EXPECT_TRUE(same(zoomed.image, state.picImage)) << tool;
  }
}

TEST_F(KeyboardHoldTest, ZoomingWithoutADragDrawsNoBand) {
  for (const Tool tool : {kLine, kRegion, kPaint}) {
    tools.selectTool(tool);
    options.zoom(ZoomStep::In);
    tools.followMagnification();
    EXPECT_EQ(bandPixels(), 0) << tool;
  }
}

}  // namespace
}  // namespace gp
