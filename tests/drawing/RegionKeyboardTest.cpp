#include "drawing/RegionFixture.h"

namespace gp {
namespace {

using test::Rows;

// The keyboard on icon pixels. Every test that moves a region is valid for both settings of the option.
class RegionByKeyboard : public test::RegionFixture, public testing::WithParamInterface<bool> {
 protected:
  RegionByKeyboard() { state.options.updateOnlyEditingArea = GetParam(); }

  MouseInput key(int x, int y, int modifiers = 0) const {
    MouseInput input = at(x, y, kLeftButton, modifiers);
    input.byKeyboard = true;
    return input;
  }
  void pressKey(int x, int y, int modifiers = 0) { tools.press(key(x, y, modifiers)); }
  void moveKey(int x, int y, int modifiers = 0) { tools.move(key(x, y, modifiers)); }
  void releaseKey(int x, int y) { tools.release(key(x, y)); }
  // Marks pixels by keyboard, both corners included.
  void markByKeyboard(int x1, int y1, int x2, int y2) {
    pressKey(x1, y1);
    moveKey(x2, y2);
    releaseKey(x2, y2);
  }
};
INSTANTIATE_TEST_SUITE_P(BothSettings, RegionByKeyboard, testing::Bool());

const Rows kDrawing = {"aaaa",  //
                       "abba",  //
                       "ab.a",  //
                       "aaaa"};

TEST_P(RegionByKeyboard, ABoxGoesRoundThePixelsOfThePressAndTheLastMove) {
  for (const int size : {16, 48}) {
    makeIcon(size, kDrawing);
    for (const auto& [x1, y1, x2, y2] :
         {std::array{1, 1, 2, 2}, std::array{2, 2, 1, 1}, std::array{2, 1, 1, 2}, std::array{1, 2, 2, 1}}) {
      markByKeyboard(x1, y1, x2, y2);
      EXPECT_EQ(boxInPixels(), (Rows{"1,1", "2,2"})) << size;
      EXPECT_EQ(content(), (Rows{"bb", "b."}));
      EXPECT_EQ(label(), "Region: Start [2, 2]   W=2 H=2");
      expectAgreement();
      regions.clearRegion();
    }
  }
}

TEST_P(RegionByKeyboard, APressAndReleaseMarkOnePixel) {
  makeIcon(16, kDrawing);
  pressKey(15, 15);
  EXPECT_TRUE(tools.isHeld());
  releaseKey(15, 15);
  EXPECT_FALSE(tools.isHeld());
  EXPECT_EQ(boxInPixels(), (Rows{"15,15", "15,15"}));
  expectAgreement();
}

TEST_P(RegionByKeyboard, AModifierMakesASquareAsWithTheMouse) {
  makeIcon(16, kDrawing);
  pressKey(2, 2);
  moveKey(6, 3, kShiftKey);
  releaseKey(6, 3);
  EXPECT_EQ(boxInPixels(), (Rows{"2,2", "6,6"}));
}

TEST_P(RegionByKeyboard, APressOnAnyPixelOfARegionTakesHoldOfItAtEachMagnification) {
  for (const int magnification : {4, 12, 15, 40}) {
    makeIcon(16, {"", ".aa", ".bb"});
    area.setZoom(magnification);
    area.ChooseMagnify(16);
    area.MagnifyIcon();
    markByKeyboard(1, 1, 2, 2);
    pressKey(2, 2);
    EXPECT_EQ(regions.phase(), RegionPhase::Moving) << magnification;
    moveKey(3, 2);
    moveKey(4, 3);
    releaseKey(4, 3);
    EXPECT_EQ(boxInPixels(), (Rows{"3,2", "4,3"}));
    EXPECT_EQ(icon(), (Rows{"", "", "...aa", "...bb"})) << magnification;
    expectAgreement();
    regions.clearRegion();
  }
}

TEST_P(RegionByKeyboard, ALongMoveGoesAsFarAsTheRegionMay) {
  makeIcon(16, {"aaaaaaaaaa"});
  markByKeyboard(0, 0, 9, 0);
  pressKey(0, 0);
  moveKey(15, 0);
  EXPECT_EQ(boxInPixels(), (Rows{"13,0", "22,0"})) << "70 percent may leave";
  moveKey(5, 0);
  EXPECT_EQ(boxInPixels(), (Rows{"5,0", "14,0"})) << "the hand is where it was";
  releaseKey(5, 0);
  EXPECT_EQ(icon(), (Rows{".....aaaaaaaaaa"}));
  expectAgreement();
}

TEST_P(RegionByKeyboard, APressOutsideMergesAndANewOneDrawsAgain) {
  makeIcon(16, kDrawing);
  markByKeyboard(0, 0, 1, 1);
  pressKey(0, 0);
  moveKey(8, 8);
  releaseKey(8, 8);
  pressKey(3, 3);
  EXPECT_FALSE(tools.isHeld());
  releaseKey(3, 3);
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(tools.selectedTool(), kRegion);
  EXPECT_EQ(history.undoCount(), 2);
  pressKey(3, 3);
  EXPECT_EQ(regions.phase(), RegionPhase::Drawing);
}

TEST_P(RegionByKeyboard, ADrawnBoxThatIsGivenUpLeavesNothing) {
  makeIcon(16, kDrawing);
  pressKey(1, 1);
  moveKey(5, 5);
  tools.giveUp();
  EXPECT_FALSE(tools.isHeld());
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_FALSE(state.current().modified);
  EXPECT_FALSE(state.screen.regionOutline.shown);
  EXPECT_EQ(icon(), kDrawing);
  expectAgreement();
}

TEST_P(RegionByKeyboard, AMoveThatIsGivenUpBringsIconRegionAndRecordBack) {
  makeIcon(16, {"ab!", "a.b", "", "cccc"});
  markByKeyboard(0, 0, 2, 1);
  state.current().modified = false;
  pressKey(1, 1);
  moveKey(3, 3);
  moveKey(4, 2);
  EXPECT_EQ(boxInPixels(), (Rows{"3,1", "5,2"}));
  tools.giveUp();
  EXPECT_EQ(icon(), (Rows{"ab!", "a.b", "", "cccc"})) << "also the pixel that inverts";
  EXPECT_EQ(boxInPixels(), (Rows{"0,0", "2,1"}));
  EXPECT_EQ(regions.phase(), RegionPhase::Standing);
  EXPECT_FALSE(state.current().modified);
  EXPECT_FALSE(history.canUndo());
}

TEST_P(RegionByKeyboard, AMoveThatIsGivenUpKeepsTheMovesBeforeIt) {
  makeIcon(16, {"ab"});
  markByKeyboard(0, 0, 1, 0);
  pressKey(0, 0);
  moveKey(0, 4);
  releaseKey(0, 4);
  pressKey(0, 4);
  moveKey(9, 9);
  tools.giveUp();
  EXPECT_EQ(icon(), (Rows{"", "", "", "", "ab"}));
  EXPECT_TRUE(state.current().modified);
  EXPECT_TRUE(history.canUndo());
  expectAgreement();
}

TEST_P(RegionByKeyboard, GivingUpWithoutAHeldPressDoesNothing) {
  makeIcon(16, kDrawing);
  markByKeyboard(0, 0, 1, 1);
  tools.giveUp();
  EXPECT_EQ(regions.phase(), RegionPhase::Standing);
  EXPECT_EQ(boxInPixels(), (Rows{"0,0", "1,1"}));
}

TEST_P(RegionByKeyboard, SizingMovesTheRightAndTheBottomSide) {
  makeIcon(16, kDrawing);
  markByKeyboard(0, 0, 1, 1);
  regions.sizeBy(1, 0);
  regions.sizeBy(0, 2);
  EXPECT_EQ(boxInPixels(), (Rows{"0,0", "2,3"}));
  EXPECT_EQ(content(), (Rows{"aaa", "abb", "ab.", "aaa"}));
  EXPECT_EQ(label(), "Region: Start [1, 1]   W=3 H=4");
  regions.sizeBy(-1, -1);
  EXPECT_EQ(content(), (Rows{"aa", "ab", "ab"}));
  EXPECT_EQ(icon(), kDrawing);
  expectAgreement();
}

TEST_P(RegionByKeyboard, SizingEndsAtTheEdgeOfTheIconAndAtOnePixel) {
  makeIcon(16, kDrawing);
  markByKeyboard(1, 1, 2, 2);
  regions.sizeBy(1 << 16, 1 << 16);
  EXPECT_EQ(boxInPixels(), (Rows{"1,1", "15,15"}));
  regions.sizeBy(-(1 << 16), -(1 << 16));
  EXPECT_EQ(boxInPixels(), (Rows{"1,1", "1,1"}));
  EXPECT_EQ(content(), (Rows{"b"}));
  expectAgreement();
}

TEST_P(RegionByKeyboard, SizingIsTheSameAsDraggingTheSide) {
  makeIcon(16, kDrawing);
  mark(0, 0, 1, 1);
  drag(2, 1, 4, 1);
  const Rows dragged = content();
  const Rows box = boxInPixels();
  regions.clearRegion();
  markByKeyboard(0, 0, 1, 1);
  regions.sizeBy(2, 0);
  EXPECT_EQ(boxInPixels(), box);
  EXPECT_EQ(content(), dragged);
}

TEST_P(RegionByKeyboard, SizingAPastedRegionMergesItAsAStep) {
  makeIcon(16, {"cccc", "cccc"});
  clipboard.hold(picture({"aa", "ab"}));
  commands.doPaste(false);
  ASSERT_TRUE(regions.isPasted());
  regions.sizeBy(1, -1);
  EXPECT_FALSE(regions.isFloating());
  EXPECT_FALSE(state.mPendingPaint);
  EXPECT_TRUE(state.mRegionExists);
  EXPECT_EQ(content(), (Rows{"aac"}));
  EXPECT_EQ(icon(), (Rows{"aacc", "abcc"}));
  EXPECT_EQ(history.undoCount(), 2);
  pressKey(0, 0);
  moveKey(0, 4);
  releaseKey(0, 4);
  EXPECT_EQ(icon(), (Rows{"...c", "abcc", "", "", "aac"}));
  undo.doUndo();
  EXPECT_EQ(icon(), (Rows{"aacc", "abcc"}));
  undo.doUndo();
  EXPECT_EQ(icon(), (Rows{"cccc", "cccc"}));
}

TEST_P(RegionByKeyboard, ARegionThatHangsOverTheEdgeIsNotSized) {
  makeIcon(16, {"abab"});
  markByKeyboard(0, 0, 3, 0);
  pressKey(2, 0);
  moveKey(1, 0);
  releaseKey(1, 0);
  ASSERT_EQ(boxInPixels(), (Rows{"-1,0", "2,0"}));
  regions.sizeBy(1, 1);
  EXPECT_EQ(boxInPixels(), (Rows{"-1,0", "2,0"}));
  EXPECT_EQ(content(), (Rows{"abab"})) << "the pixel outside is kept";
}

TEST_P(RegionByKeyboard, SizingDuringADragDoesNothing) {
  makeIcon(16, kDrawing);
  regions.sizeBy(1, 1);
  EXPECT_EQ(regions.phase(), RegionPhase::None);
  pressKey(1, 1);
  regions.sizeBy(1, 1);
  EXPECT_EQ(boxInPixels(), (Rows{"1,1", "1,1"}));
}

TEST_P(RegionByKeyboard, TheMouseGoesOnAfterAHeldPress) {
  makeIcon(16, kDrawing);
  pressKey(1, 1);
  moveKey(4, 4);
  press(cells(8), cells(8));
  move(cells(10), cells(10));
  release(cells(10), cells(10));
  EXPECT_EQ(boxInPixels(), (Rows{"8,8", "9,9"}));
  expectAgreement();
}

TEST_P(RegionByKeyboard, AnotherMagnificationTakesAMoveAndABoxWithIt) {
  makeIcon(16, {"aa", "bb"});
  pressKey(0, 0);
  moveKey(1, 0);
  options.zoom(ZoomStep::In);
  tools.followMagnification();
  EXPECT_TRUE(tools.isHeld());
  EXPECT_EQ(draw.region.x2, 2 * 13);
  moveKey(1, 1);
  releaseKey(1, 1);
  EXPECT_EQ(boxInPixels(), (Rows{"0,0", "1,1"}));
  pressKey(1, 1);
  moveKey(3, 2);
  options.zoom(ZoomStep::Out);
  tools.followMagnification();
  EXPECT_TRUE(tools.isHeld());
  moveKey(4, 2);
  releaseKey(4, 2);
  EXPECT_EQ(icon(), (Rows{"", "...aa", "...bb"}));
  expectAgreement();
}

// The outline that the view paints.

RegionOutline outlineOf(int left, int top, int right, int bottom, bool hasHandles) {
  return {left, top, right, bottom, true, hasHandles};
}

TEST_P(RegionByKeyboard, TheOutlineIsTheBoxAndHasHandlesWhileSidesCanBeDragged) {
  makeIcon(16, kDrawing);
  EXPECT_FALSE(state.screen.regionOutline.shown);
  press(cells(3), cells(3));
  move(cells(1), cells(1));
  EXPECT_EQ(state.screen.regionOutline, outlineOf(12, 12, 36, 36, false)) << "drawn up and left";
  release(cells(1), cells(1));
  EXPECT_EQ(state.screen.regionOutline, outlineOf(12, 12, 36, 36, true));
  pressKey(1, 1);
  moveKey(2, 3);
  EXPECT_EQ(state.screen.regionOutline, outlineOf(24, 36, 48, 60, true));
  releaseKey(2, 3);
  options.zoom(ZoomStep::Out);
  EXPECT_EQ(state.screen.regionOutline, outlineOf(22, 33, 44, 55, true));
  regions.clearRegion();
  EXPECT_EQ(state.screen.regionOutline, RegionOutline());
}

TEST_P(RegionByKeyboard, TheOutlineOfAPastedRegionHasNoHandles) {
  makeIcon(16);
  clipboard.hold(picture({"aa", "ab"}));
  commands.doPaste(false);
  EXPECT_EQ(state.screen.regionOutline, outlineOf(0, 0, 24, 24, false));
  regions.sizeBy(1, 0);
  EXPECT_EQ(state.screen.regionOutline, outlineOf(0, 0, 36, 24, true));
}

}  // namespace
}  // namespace gp
