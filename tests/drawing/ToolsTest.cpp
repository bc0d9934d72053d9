#include "document/PanelNumbers.h"
#include "drawing/DrawingFixture.h"
#include "drawing/ToolTable.h"

namespace gp {
namespace {

using test::kGreen;

class ToolsTest : public test::DrawingFixture {
 protected:
  // A transparent icon on the Editing Area and in container 0.
  void makeIcon(int size) { putIcon(0, size); }
  int paintedPixels() const {
    int count = 0;
    for (int y = 0; y < state.picMask.height(); ++y)
      for (int x = 0; x < state.picMask.width(); ++x) count += state.picMask.GetPixel(x, y) == kBlack;
    return count;
  }
  // The steps recorded since the icon arrived.
  int steps() const { return history.undoCount() - 1; }
};

TEST_F(ToolsTest, PaintPutsTheCurrentColourOnTheImageAndBlackOnTheMask) {
  makeIcon(32);
  tools.selectTool(kPaint);
  click(3, 4);
  EXPECT_EQ(state.picImage.GetPixel(3, 4), kGreen);
  EXPECT_EQ(state.picMask.GetPixel(3, 4), kBlack);
  EXPECT_EQ(state.PicIcon.GetPixel(3, 4), kGreen);
  EXPECT_EQ(state.picDisp.GetPixel(3 * 12 + 6, 4 * 12 + 6), kGreen);
  EXPECT_EQ(paintedPixels(), 1);
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(steps(), 1);
}

TEST_F(ToolsTest, EraseMakesPixelsBlackOnTheImageAndWhiteOnTheMask) {
  makeIcon(32);
  tools.selectTool(kPaint);
  click(3, 4);
  tools.selectTool(kErase);
  click(3, 4);
  EXPECT_EQ(state.picImage.GetPixel(3, 4), kBlack);
  EXPECT_EQ(state.picMask.GetPixel(3, 4), kWhite);
  EXPECT_EQ(state.PicIcon.GetPixel(3, 4), kGround);
  EXPECT_EQ(steps(), 2);
}

TEST_F(ToolsTest, ABrushHangsDownAndToTheRight) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.setBrush(2);
  click(10, 20);
  EXPECT_EQ(paintedPixels(), 9);
  EXPECT_EQ(state.picImage.GetPixel(10, 20), kGreen);
  EXPECT_EQ(state.picImage.GetPixel(12, 22), kGreen);
  EXPECT_EQ(state.picMask.GetPixel(9, 20), kWhite);
  EXPECT_EQ(state.picMask.GetPixel(13, 20), kWhite);
}

TEST_F(ToolsTest, ABrushOfSixAtTheBottomRightPixelPaintsOnePixelAndItsSquareRunsPastTheEdge) {
  makeIcon(16);
  tools.selectTool(kPaint);
  tools.setBrush(5);
  tools.press(at(15, 15));
  tools.move(at(15, 15, 0));
  EXPECT_EQ(paintedPixels(), 1);
  EXPECT_EQ(state.picDisp.GetPixel(191, 191), kGreen);
  tools.release(at(15, 15));
  EXPECT_EQ(paintedPixels(), 1);
}

TEST_F(ToolsTest, TheSquareOfColumnZeroStartsAtZeroAndThatOfColumnOneBehindTheGridLine) {
  makeIcon(16);
  options.SetGrid(1);
  tools.selectTool(kPaint);
  tools.press(at(5, 5));
  tools.move(at(0, 5, 0));
  EXPECT_EQ(state.picDisp.GetPixel(0, 5 * 12 + 1), kGreen);
  EXPECT_EQ(state.picDisp.GetPixel(0, 5 * 12), kBlack) << "the grid line above the cell is spared";
  tools.move(at(1, 5, 0));
  EXPECT_EQ(state.picDisp.GetPixel(12, 5 * 12 + 1), kBlack) << "the grid line left of the cell is spared";
  EXPECT_EQ(state.picDisp.GetPixel(13, 5 * 12 + 1), kGreen);
  EXPECT_EQ(state.picDisp.GetPixel(23, 5 * 12 + 11), kGreen);
  EXPECT_EQ(state.picDisp.GetPixel(24, 5 * 12 + 1), kBlack);
}

TEST_F(ToolsTest, AMoveStampsWhereThePointerIsAndLeavesGaps) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.press(at(0, 0));
  tools.move(at(5, 0, 0));
  EXPECT_EQ(paintedPixels(), 2);
  EXPECT_EQ(state.picMask.GetPixel(3, 0), kWhite);
}

TEST_F(ToolsTest, AMoveOfEraseShowsTheGroundOnTheEditingArea) {
  makeIcon(32);
  tools.selectTool(kPaint);
  click(2, 2);
  tools.selectTool(kErase);
  tools.press(at(9, 9));
  tools.move(at(2, 2, 0));
  EXPECT_EQ(state.picDisp.GetPixel(2 * 12 + 5, 2 * 12 + 5), kGround);
  EXPECT_EQ(state.picMask.GetPixel(2, 2), kWhite);
}

TEST_F(ToolsTest, AMoveWithoutAPressPaintsNothing) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.move(at(5, 5, 0));
  EXPECT_EQ(paintedPixels(), 0);
  tools.press(at(5, 5));
  tools.release(at(5, 5));
  tools.move(at(8, 8, 0));
  EXPECT_EQ(paintedPixels(), 1);
}

TEST_F(ToolsTest, AStrokeMoveRebuildsTheSmallIconAndNotTheWholeEditingArea) {
  makeIcon(48);
  tools.selectTool(kPaint);
  tools.press(at(5, 5));
  const int rebuilt = display.count(DisplayPart::EditingArea);
  const int repaints = display.repaints;
  state.picDisp.SetPixelV(300, 300, kGreen);
  state.picDisp.makePersistent();
  tools.move(at(6, 5, 0));
  EXPECT_EQ(display.count(DisplayPart::EditingArea), rebuilt);
  EXPECT_EQ(display.repaints, repaints + 1);
  EXPECT_EQ(state.picDisp.GetPixel(300, 300), kGreen) << "what is elsewhere stays as it is";
  EXPECT_EQ(state.PicIcon.GetPixel(6, 5), kGreen);
}

TEST_F(ToolsTest, RestoreTakesOnePixelFromTheContainerWhateverTheBrush) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.setBrush(3);
  click(4, 4);
  tools.selectTool(kRestore);
  tools.press(at(5, 5));
  EXPECT_EQ(paintedPixels(), 15);
  EXPECT_EQ(state.picMask.GetPixel(5, 5), kWhite);
  EXPECT_EQ(state.PicIcon.GetPixel(5, 5), kGround);
  tools.move(at(6, 5, 0));
  EXPECT_EQ(paintedPixels(), 14);
}

TEST_F(ToolsTest, RestoreMarksTheIconAtReleaseAndRecordsNoStep) {
  makeIcon(32);
  tools.selectTool(kRestore);
  tools.press(at(5, 5));
  EXPECT_FALSE(state.current().modified);
  tools.release(at(5, 5));
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(steps(), 0);
}

TEST_F(ToolsTest, ARightPressOpensThePopUpMenuAndPaintsNothing) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.press(at(5, 5, kRightButton));
  EXPECT_EQ(display.popUpMenus, 1);
  EXPECT_EQ(paintedPixels(), 0);
}

TEST_F(ToolsTest, APressWithoutIconOrToolDoesNothing) {
  tools.press(at(1, 1));
  makeIcon(32);
  tools.press(at(1, 1));
  EXPECT_EQ(paintedPixels(), 0);
  EXPECT_FALSE(state.current().modified);
}

TEST_F(ToolsTest, AMoveOneLessThanTheWidthIsInsideAndAtTheWidthEmptiesTheReadout) {
  makeIcon(32);
  tools.move({0, 0, 383, 10});
  EXPECT_EQ(readout(Readout::Position), "X=32  Y=1");
  tools.move({0, 0, 384, 10});
  EXPECT_EQ(readout(Readout::Position), "");
  tools.move({0, 0, 10, 383});
  EXPECT_EQ(readout(Readout::Position), "X=1  Y=32");
  tools.move({0, 0, -1, 10});
  EXPECT_EQ(readout(Readout::Position), "");
}

TEST_F(ToolsTest, TheReadoutTellsTransparentBlackColouredAndInvertingPixels) {
  makeIcon(32);
  state.screen.pixelRgbVisible = true;
  state.picMask.SetPixelV(1, 0, kBlack);
  state.picImage.SetPixelV(2, 0, rgb(10, 20, 30));
  state.picMask.SetPixelV(2, 0, kBlack);
  state.picImage.SetPixelV(3, 0, kWhite);
  tools.move(at(0, 0, 0));
  EXPECT_EQ(readout(Readout::PixelRgb), "N/A");
  tools.move(at(1, 0, 0));
  EXPECT_EQ(readout(Readout::PixelRgb), "RGB: 0, 0, 0");
  tools.move(at(2, 0, 0));
  EXPECT_EQ(readout(Readout::PixelRgb), "RGB: 10, 20, 30");
  tools.move(at(3, 0, 0));
  EXPECT_EQ(readout(Readout::PixelRgb), "RGB: 255, 255, 255");
}

TEST_F(ToolsTest, TheColourReadoutIsEmptyDuringAStrokeAndWhileHidden) {
  makeIcon(32);
  tools.move(at(0, 0, 0));
  EXPECT_EQ(readout(Readout::PixelRgb), "");
  state.screen.pixelRgbVisible = true;
  tools.selectTool(kPaint);
  tools.press(at(0, 0));
  tools.move(at(1, 0, 0));
  EXPECT_EQ(readout(Readout::PixelRgb), "");
}

TEST_F(ToolsTest, ThePickerTakesTheColourMarksNothingAndRecordsNoStep) {
  makeIcon(32);
  tools.selectTool(kPaint);
  click(3, 3);
  state.current().modified = false;
  state.mCurrentColor = kBlack;
  colors.imgColorPicker();
  click(3, 3);
  EXPECT_EQ(state.mCurrentColor, kGreen);
  click(4, 4);
  EXPECT_EQ(state.mCurrentColor, kGround) << "the transparent ground reads as silver";
  EXPECT_FALSE(state.current().modified);
  EXPECT_EQ(steps(), 1);
  tools.release({kLeftButton, 0, 5000, 5000});
  EXPECT_EQ(state.mCurrentColor, kGround) << "outside the icon there is no colour to take";
}

TEST_F(ToolsTest, AReleaseWhileTheCursorPanelIsUpTellsTheHotSpotWhateverIsSelectedAndMarksNothing) {
  makeIcon(32);
  tools.selectTool(kPaint);
  colors.imgColorPicker();
  state.current().modified = false;
  state.screen.mActivePanel = kCursorPanel;
  editor.calls.clear();
  tools.release({kLeftButton, 0, 7.9F * static_cast<float>(state.gMagnification), 0});
  EXPECT_EQ(editor.calls, std::vector<std::string>{"setHotspotByClick 7 0"});
  EXPECT_FALSE(state.current().modified);
  EXPECT_EQ(paintedPixels(), 0);
}

TEST_F(ToolsTest, AReleaseOfRegionOrShiftMarksTheIconAlthoughNoPixelChanged) {
  for (const Tool tool : {kRegion, kShift}) {
    makeIcon(32);
    state.current().modified = false;
    tools.release(at(3, 3));
    EXPECT_FALSE(state.current().modified) << "no tool is selected";
    tools.selectTool(tool);
    ASSERT_EQ(tools.selectedTool(), tool);
    EXPECT_FALSE(state.current().modified);
    tools.release(at(3, 3));
    EXPECT_TRUE(state.current().modified) << tool;
    EXPECT_EQ(paintedPixels(), 0);
    EXPECT_FALSE(state.mRegionExists);
  }
}

TEST_F(ToolsTest, ASecondClickOnAToolTurnsItOffSoThatAPressDoesNothing) {
  makeIcon(32);
  tools.selectTool(kPaint);
  EXPECT_TRUE(tools.isToolActive());
  tools.selectTool(kPaint);
  EXPECT_EQ(tools.selectedTool(), kNoTool);
  click(1, 1);
  EXPECT_EQ(paintedPixels(), 0);
}

TEST_F(ToolsTest, AtMostOneToolIsSelected) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.selectTool(kErase);
  EXPECT_EQ(tools.selectedTool(), kErase);
}

TEST_F(ToolsTest, SelectingAToolEndsARegion) {
  makeIcon(32);
  for (const Tool tool : {kPaint, kErase, kRegion}) {
    markRegion(4, 4, 9, 9);
    tools.selectTool(tool);
    EXPECT_FALSE(state.mRegionExists) << tool;
    EXPECT_EQ(readout(Readout::Region), "") << tool;
  }
}

TEST_F(ToolsTest, SelectingAToolPutsThePickerAwayAndBringsTheColourPanelBack) {
  makeIcon(32);
  colors.imgColorPicker();
  state.screen.mActivePanel = 5;
  tools.selectTool(kPaint);
  EXPECT_FALSE(colors.isPickerSelected());
  EXPECT_EQ(editor.count("showPanel 0"), 1);
}

TEST_F(ToolsTest, SelectingThePickerPutsTheToolAway) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.pickColorFromMenu();
  EXPECT_EQ(tools.selectedTool(), kNoTool);
  EXPECT_TRUE(colors.isPickerSelected());
  EXPECT_EQ(display.nudges, 1);
}

TEST_F(ToolsTest, TheMenuSelectsAToolAndNudgesThePointer) {
  makeIcon(32);
  tools.selectFromMenu(kErase);
  EXPECT_EQ(tools.selectedTool(), kErase);
  EXPECT_EQ(display.nudges, 1);
  tools.clearFromMenu();
  EXPECT_EQ(tools.selectedTool(), kNoTool);
}

TEST_F(ToolsTest, AToolThatNoOneWorksCannotBeSelected) {
  makeIcon(32);
  DrawState drawState;
  Tools bare(context, panel, colors, history, regions, drawState);
  EXPECT_FALSE(bare.isAvailable(kFill));
  bare.selectTool(kFill);
  EXPECT_EQ(bare.selectedTool(), kNoTool);
  bare.attach(kFill, drawing.shift);
  EXPECT_TRUE(bare.isAvailable(kFill));
}

TEST_F(ToolsTest, ClearingToolsWithARegionRecordsAStepFirst) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.imgClearAllTools();
  EXPECT_EQ(steps(), 0);
  markRegion(4, 4, 9, 9);
  EXPECT_NE(readout(Readout::Region), "");
  bool regionThen = false;
  pump.inside = [&] { regionThen = state.mRegionExists; };
  tools.imgClearAllTools();
  EXPECT_TRUE(regionThen) << "the step is recorded before the region ends";
  EXPECT_EQ(steps(), 1);
  EXPECT_EQ(readout(Readout::Region), "");
}

TEST_F(ToolsTest, ClearingToolsFromTheMenuEndsARegionToo) {
  makeIcon(32);
  markRegion(4, 4, 9, 9);
  tools.clearFromMenu();
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(steps(), 1);
  EXPECT_EQ(tools.selectedTool(), kNoTool);
}

TEST_F(ToolsTest, ClearingToolsDuringAStrokeRecordsItOnce) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.press(at(1, 1));
  tools.clearFromMenu();
  tools.release(at(1, 1));
  EXPECT_EQ(steps(), 1);
  EXPECT_FALSE(draw.isStroke());
}

TEST_F(ToolsTest, ThePointerIsThePictureOfTheToolOrThePickerOrThePlatformsOwn) {
  makeIcon(32);
  tools.selectTool(kErase);
  EXPECT_EQ(state.screen.editingPointer, kErase);
  colors.imgColorPicker();
  tools.move(at(1, 1, 0));
  EXPECT_EQ(state.screen.editingPointer, kColorPickerPointer);
  state.screen.fraTools[1] = false;
  tools.move(at(1, 1, 0));
  EXPECT_EQ(state.screen.editingPointer, kDefaultPointer);
}

TEST_F(ToolsTest, AReleaseThatArrivesInsideAMoveEndsTheStrokeBeforeTheStamp) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.press(at(1, 1));
  pump.inside = [this] { tools.release(at(1, 1)); };
  tools.move(at(9, 9, 0));
  EXPECT_EQ(state.picMask.GetPixel(9, 9), kWhite);
  EXPECT_EQ(paintedPixels(), 1);
}

TEST_F(ToolsTest, AnotherToolSelectedInsideAStrokeFinishesItAsAStepOfItsOwn) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.press(at(1, 1));
  pump.inside = [this] { tools.selectFromMenu(kErase); };
  tools.move(at(9, 9, 0));
  EXPECT_EQ(steps(), 1);
  EXPECT_EQ(paintedPixels(), 1);
  EXPECT_EQ(tools.selectedTool(), kErase);
  tools.move(at(1, 1, 0));
  EXPECT_EQ(paintedPixels(), 1) << "the new tool has not been pressed";
}

TEST_F(ToolsTest, AToolPressedInsideAMoveOfTheFormerOneIsNotFollowedByItsStamp) {
  makeIcon(32);
  tools.selectTool(kPaint);
  click(9, 9);
  for (const Tool former : {kPaint, kErase}) {
    const Tool other = former == kPaint ? kErase : kPaint;
    const int there = former == kPaint ? 8 : 9;
    const Color before = state.picMask.GetPixel(there, there);
    if (tools.selectedTool() != former) tools.selectTool(former);
    tools.press(at(1, 1));
    // The handler of picDisp pumps first, then the tool does.
    pump.inside = [&] {
      pump.inside = [&] {
        tools.selectTool(other);
        tools.press(at(5, 5));
      };
    };
    tools.move(at(there, there, 0));
    EXPECT_EQ(state.picMask.GetPixel(there, there), before) << former;
    EXPECT_EQ(state.picMask.GetPixel(5, 5), other == kPaint ? kBlack : kWhite) << former;
    tools.release(at(5, 5));
  }
}

TEST_F(ToolsTest, AContainerEmptiedInsideAMoveIsLeftAlone) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.press(at(1, 1));
  pump.inside = [this] { state.current().present = false; };
  tools.move(at(9, 9, 0));
  EXPECT_EQ(state.picMask.GetPixel(9, 9), kWhite);
}

TEST(SnapToCell, TheCentreOfACellIsHalfAFactorFromItsEdge) {
  EXPECT_EQ(snapToCell(0, SnapMode::CellCentre, 12), 6);
  EXPECT_EQ(snapToCell(11.9, SnapMode::CellCentre, 12), 6);
  EXPECT_EQ(snapToCell(12, SnapMode::CellCentre, 12), 18);
  EXPECT_EQ(snapToCell(14, SnapMode::CellCentre, 15), 7);
}

TEST(SnapToCell, APositionExactlyOnTheHalfGoesToTheNextCorner) {
  EXPECT_EQ(snapToCell(5, SnapMode::NearestCorner, 12), 0);
  EXPECT_EQ(snapToCell(6, SnapMode::NearestCorner, 12), 12);
  EXPECT_EQ(snapToCell(7, SnapMode::NearestCorner, 15), 0);
  EXPECT_EQ(snapToCell(8, SnapMode::NearestCorner, 15), 15);
  EXPECT_EQ(snapToCell(18, SnapMode::NearestCorner, 12), 24);
}

TEST(ToolTable, ToolsAreKnownByTheirTooltipUpToTheFirstBracket) {
  EXPECT_EQ(toolName(kErase), "Erase");
  EXPECT_EQ(toolName(kFilledOval), "Filled Oval");
  EXPECT_EQ(toolName(kPaint), "Paint");
  EXPECT_EQ(toolName(kShift), "Set/unset shift image");
}

TEST(ToolTable, EveryRowStandsAtItsIndex) {
  for (int i = kFirstTool; i <= kLastTool; ++i) EXPECT_EQ(toolRow(i).index, i);
  EXPECT_THROW(toolRow(3), std::out_of_range);
  EXPECT_THROW(toolRow(16), std::out_of_range);
}

}  // namespace
}  // namespace gp
