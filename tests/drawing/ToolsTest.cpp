#include "document/PanelNumbers.h"
#include "drawing/Freehand.h"
#include "drawing/Tools.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

constexpr Color kGreen = 0x00FF00;

// A FakeEditor whose display operations are real and whose picker and tools are those under test.
class ToolEditor : public test::FakeEditor {
 public:
  EditingArea* area = nullptr;
  Tools* tools = nullptr;
  ColorSelection* colors = nullptr;

  void ComposeCurrentIcon() override { FakeEditor::ComposeCurrentIcon(), area->ComposeCurrentIcon(); }
  void MagnifyIcon() override { FakeEditor::MagnifyIcon(), area->MagnifyIcon(); }
  void clearAllTools() override { tools->clearAllTools(); }
  void deselectColorPicker() override { colors->deselectPicker(); }
  int selectedTool() const override { return tools->selectedTool(); }
};

class ToolsTest : public testing::Test {
 protected:
  EditState state;
  ToolEditor editor;
  test::RecordingDisplay display;
  test::ScriptedBoxes boxes;
  test::ScriptedDialogs dialogs;
  test::ScriptedPump pump;
  clsGPDialog dialog{dialogs};
  EditingArea area{state, editor, display, pump};
  ColorSelection colors{state, editor, display, boxes, pump, dialog};
  DrawState drawState;
  FreehandTool freehand{state, editor, area, pump, drawState};
  RestoreTool restore{state, editor, drawState};
  Tools tools{state, editor, display, colors, boxes, pump, drawState};

  ToolsTest() {
    tools.attach(kPaint, freehand);
    tools.attach(kErase, freehand);
    tools.attach(kRestore, restore);
    editor.area = &area;
    editor.tools = &tools;
    editor.colors = &colors;
    state.gGridColor = kNoGrid;
    state.mCurrentColor = kGreen;
  }
  // A transparent icon on the Editing Area and in container 0.
  void makeIcon(int size) {
    state.current().used = true;
    state.current().size = static_cast<std::int16_t>(size);
    area.SizeEditSurfaces(size);
    area.SizePanelSurfaces(size);
    state.picImage.fill(kBlack);
    state.picMask.fill(kWhite);
    area.ComposeCurrentIcon();
    area.UpdatePanelFromCurrent();
    area.ShowCurrentIcon();
  }
  MouseInput at(int pixelX, int pixelY, int button = kLeftButton) const {
    const auto m = static_cast<float>(state.gMagnification);
    return {button, 0, (static_cast<float>(pixelX) + 0.5F) * m, (static_cast<float>(pixelY) + 0.5F) * m};
  }
  void stroke(int pixelX, int pixelY) {
    tools.press(at(pixelX, pixelY));
    tools.release(at(pixelX, pixelY));
  }
  std::string readout(Readout which) const { return state.screen.lblDispXY[static_cast<std::size_t>(which)]; }
  int paintedPixels() const {
    int count = 0;
    for (int y = 0; y < state.picMask.height(); ++y)
      for (int x = 0; x < state.picMask.width(); ++x) count += state.picMask.GetPixel(x, y) == kBlack;
    return count;
  }
};

TEST_F(ToolsTest, PaintPutsTheCurrentColourOnTheImageAndBlackOnTheMask) {
  makeIcon(32);
  tools.selectTool(kPaint);
  stroke(3, 4);
  EXPECT_EQ(state.picImage.GetPixel(3, 4), kGreen);
  EXPECT_EQ(state.picMask.GetPixel(3, 4), kBlack);
  EXPECT_EQ(state.PicIcon.GetPixel(3, 4), kGreen);
  EXPECT_EQ(state.picDisp.GetPixel(3 * 12 + 6, 4 * 12 + 6), kGreen);
  EXPECT_EQ(paintedPixels(), 1);
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(editor.count("recordUndo"), 1);
}

TEST_F(ToolsTest, EraseMakesPixelsBlackOnTheImageAndWhiteOnTheMask) {
  makeIcon(32);
  tools.selectTool(kPaint);
  stroke(3, 4);
  tools.selectTool(kErase);
  stroke(3, 4);
  EXPECT_EQ(state.picImage.GetPixel(3, 4), kBlack);
  EXPECT_EQ(state.picMask.GetPixel(3, 4), kWhite);
  EXPECT_EQ(state.PicIcon.GetPixel(3, 4), kGround);
  EXPECT_EQ(editor.count("recordUndo"), 2);
}

TEST_F(ToolsTest, ABrushHangsDownAndToTheRight) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.setBrush(2);
  stroke(10, 20);
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
  area.SetGrid(1);
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
  stroke(2, 2);
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
  const int magnified = editor.count("MagnifyIcon");
  tools.move(at(6, 5, 0));
  EXPECT_EQ(editor.count("MagnifyIcon"), magnified);
  EXPECT_EQ(display.repaints, 1);
  EXPECT_EQ(state.PicIcon.GetPixel(6, 5), kGreen);
}

TEST_F(ToolsTest, RestoreTakesOnePixelFromTheContainerWhateverTheBrush) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.setBrush(3);
  stroke(4, 4);
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
  EXPECT_EQ(editor.count("recordUndo"), 0);
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
  stroke(3, 3);
  state.current().modified = false;
  state.mCurrentColor = kBlack;
  colors.imgColorPicker();
  stroke(3, 3);
  EXPECT_EQ(state.mCurrentColor, kGreen);
  stroke(4, 4);
  EXPECT_EQ(state.mCurrentColor, kGround) << "the transparent ground reads as silver";
  EXPECT_FALSE(state.current().modified);
  EXPECT_EQ(editor.count("recordUndo"), 1);
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
  makeIcon(32);
  tools.selectTool(kPaint);
  state.current().modified = false;
  tools.release(at(3, 3));
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(paintedPixels(), 0);
}

TEST_F(ToolsTest, ASecondClickOnAToolTurnsItOffSoThatAPressDoesNothing) {
  makeIcon(32);
  tools.selectTool(kPaint);
  EXPECT_TRUE(tools.isToolActive());
  tools.selectTool(kPaint);
  EXPECT_EQ(tools.selectedTool(), kNoTool);
  stroke(1, 1);
  EXPECT_EQ(paintedPixels(), 0);
}

TEST_F(ToolsTest, AtMostOneToolIsSelected) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.selectTool(kErase);
  EXPECT_EQ(tools.selectedTool(), kErase);
  EXPECT_EQ(editor.count("clearRegion"), 2);
}

TEST_F(ToolsTest, SelectingAToolWithoutIconTellsSoAndLeavesNoneSelected) {
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  tools.selectTool(kPaint);
  EXPECT_EQ(tools.selectedTool(), kNoTool);
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
  tools.mnuTools(2);
  EXPECT_EQ(tools.selectedTool(), kNoTool);
  EXPECT_TRUE(colors.isPickerSelected());
  EXPECT_EQ(display.nudges, 1);
}

TEST_F(ToolsTest, TheMenuSelectsAToolAndNudgesThePointer) {
  makeIcon(32);
  tools.mnuTools(kErase);
  EXPECT_EQ(tools.selectedTool(), kErase);
  EXPECT_EQ(display.nudges, 1);
  tools.mnuTools(0);
  EXPECT_EQ(tools.selectedTool(), kNoTool);
}

TEST_F(ToolsTest, AToolThatNobodyWorksCannotBeSelected) {
  makeIcon(32);
  tools.selectTool(kFill);
  EXPECT_EQ(tools.selectedTool(), kNoTool);
}

TEST_F(ToolsTest, ClearingToolsWithARegionRecordsAStepFirst) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.imgClearAllTools();
  EXPECT_EQ(editor.count("recordUndo"), 0);
  state.mRegionExists = true;
  state.screen.lblDispXY[2] = "Region";
  tools.imgClearAllTools();
  EXPECT_EQ(editor.count("recordUndo"), 1);
  EXPECT_EQ(readout(Readout::Region), "");
}

TEST_F(ToolsTest, ClearingToolsFromTheMenuEndsARegionToo) {
  makeIcon(32);
  tools.selectTool(kPaint);
  state.mRegionExists = true;
  editor.calls.clear();
  tools.mnuTools(0);
  EXPECT_EQ(editor.count("clearRegion"), 1);
  EXPECT_EQ(editor.count("recordUndo"), 1);
  EXPECT_EQ(tools.selectedTool(), kNoTool);
}

TEST_F(ToolsTest, ClearingToolsInTheMidstOfAStrokeRecordsItOnce) {
  makeIcon(32);
  tools.selectTool(kPaint);
  tools.press(at(1, 1));
  tools.mnuTools(0);
  tools.release(at(1, 1));
  EXPECT_EQ(editor.count("recordUndo"), 1);
  EXPECT_FALSE(drawState.isStroke());
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
  pump.inside = [this] { tools.mnuTools(kErase); };
  tools.move(at(9, 9, 0));
  EXPECT_EQ(editor.count("recordUndo"), 1);
  EXPECT_EQ(paintedPixels(), 1);
  EXPECT_EQ(tools.selectedTool(), kErase);
  tools.move(at(1, 1, 0));
  EXPECT_EQ(paintedPixels(), 1) << "the new tool has not been pressed";
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
