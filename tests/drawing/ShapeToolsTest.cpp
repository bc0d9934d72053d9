#include "drawing/DrawingFixture.h"
#include "platform/gdi/GoldenFile.h"

#include <cstdio>
#include <functional>

namespace gp {
namespace {

using test::GoldenCase;
using test::kGreen;
using test::kRed;
using test::Rows;

constexpr Tool kShapes[] = {kLine, kRectangle, kFilledRectangle, kOval, kFilledOval};

class ShapeToolTest : public test::DrawingFixture {
 protected:
  void start(Tool tool, int brush = 1, int size = 16) {
    putIcon(0, size);
    tools.selectTool(tool);
    tools.setBrush(brush - 1);
  }
  void expectDrawn(Tool tool, int brush, const DrawRect& rect, const Rows& rows, int modifiers = 0) {
    start(tool, brush);
    drag(static_cast<int>(rect.x1), static_cast<int>(rect.y1), static_cast<int>(rect.x2), static_cast<int>(rect.y2),
         modifiers);
    expectPicture(rows);
    expectAgreement();
  }
  // The next position of the mouse comes while the events of the one before it are processed.
  void moveTwiceAtOnce(int x1, int y1, int x2, int y2) {
    pump.inside = [=, this] { move(x2, y2); };
    move(x1, y1);
  }
  int bandPixels() const {
    int count = 0;
    for (int y = 0; y < state.picDisp.height(); ++y)
      for (int x = 0; x < state.picDisp.width(); ++x) count += state.picDisp.GetPixel(x, y) != kGround;
    return count;
  }
  // The opaque pixels of the mask in the size of a picture, written like the reference pictures.
  Rows opaqueCells(const GoldenCase& c) const {
    Rows rows;
    for (int y = 0; y < c.height(); ++y) {
      rows.emplace_back();
      for (int x = 0; x < c.width(); ++x) rows.back() += state.picMask.GetPixel(x, y) == kBlack ? '#' : '.';
    }
    return rows;
  }
  void expectReference(const GoldenCase& c, Tool tool, const DrawRect& rect, Rows rows) {
    for (std::string& row : rows)
      for (char& cell : row) cell = cell == '.' ? '.' : '#';
    start(tool, c.number("pen"), c.width() == 32 ? 32 : 48);
    dragBeyondTheIcon(tool, rect);
    EXPECT_EQ(test::joined(opaqueCells(c)), test::joined(rows)) << c.name;
  }
  // Corners that the mouse cannot reach: the tool gets them directly.
  void dragBeyondTheIcon(Tool tool, const DrawRect& rect) {
    ShapeTool shape(context, area, history, tools, drawing.drawState);
    const auto mouse = [=, m = state.gMagnification](double x, double y) {
      return ToolMouse{tool, static_cast<int>(x), static_cast<int>(y), static_cast<float>((x + 0.5) * m),
                       static_cast<float>((y + 0.5) * m)};
    };
    shape.press(mouse(rect.x1, rect.y1));
    shape.move(mouse(rect.x2, rect.y2));
    drawing.drawState.mPainting = false;
    shape.release(mouse(rect.x2, rect.y2));
  }
  static DrawRect cornersOf(const GoldenCase& c) { return {c.real("x1"), c.real("y1"), c.real("x2"), c.real("y2")}; }
  static DrawRect ovalCornersOf(const GoldenCase& c) {
    return {c.real("left"), c.real("top"), c.real("right") - 1, c.real("bottom") - 1};
  }
};

TEST_F(ShapeToolTest, ALineHasBothItsEnds) {
  expectDrawn(kLine, 1, {1, 0, 4, 3}, {".g...", "..g..", "...g.", "....g"});
}

TEST_F(ShapeToolTest, ARectangleIsAnOutlineAndAFilledOneIsNot) {
  expectDrawn(kRectangle, 1, {1, 1, 5, 3}, {"......", ".ggggg", ".g...g", ".ggggg"});
  expectDrawn(kFilledRectangle, 1, {5, 3, 1, 1}, {"......", ".ggggg", ".ggggg", ".ggggg"});
}

TEST_F(ShapeToolTest, AThinOvalIsTwoArcsWithThePixelMissingThatThePlatformLeavesOut) {
  expectDrawn(kOval, 1, {0, 0, 4, 4}, {".ggg.", "g...g", "g...g", "g....", ".ggg."});
  expectDrawn(kOval, 1, {4, 4, 0, 0}, {".ggg.", "g...g", "g...g", "g....", ".ggg."});
  expectDrawn(kOval, 1, {2, 2, 0, 0}, {".g.", "g.g", ".g."});
}

TEST_F(ShapeToolTest, AWideOvalIsClosed) {
  // The outline that a pen of 2 draws around 5 x 5 pixels.
  expectDrawn(kOval, 2, {1, 1, 5, 5}, {".gggg.", "gggggg", "gggggg", "gg..gg", "gggggg", "gggggg"});
}

TEST_F(ShapeToolTest, AFilledOvalHasAPenOfTwo) {
  expectDrawn(kFilledOval, 1, {1, 1, 5, 5}, {".gggg.", "gggggg", "gggggg", "gggggg", "gggggg", "gggggg"});
}

TEST_F(ShapeToolTest, AClickWithoutAMoveIsOnePixelForLineAndRectanglesAndNothingForOvals) {
  for (const Tool tool : {kLine, kRectangle, kFilledRectangle}) {
    start(tool);
    press(3, 2);
    release(3, 2);
    expectPicture({"....", "....", "...g"});
  }
  for (const Tool tool : {kOval, kFilledOval}) {
    start(tool);
    press(3, 2);
    release(3, 2);
    expectPicture({"."});
  }
}

TEST_F(ShapeToolTest, AnOvalWithoutWidthIsNothingAndOneWithoutHeightIsFlat) {
  expectDrawn(kOval, 1, {3, 1, 3, 9}, {"."});
  expectDrawn(kFilledOval, 1, {3, 1, 3, 9}, {"."});
  expectDrawn(kOval, 1, {1, 1, 6, 1}, {".......", ".gggggg"});
}

TEST_F(ShapeToolTest, FilledOvalIgnoresTheBrushAndTheOthersDoNot) {
  auto drawn = [this](Tool tool, int brush) {
    start(tool, brush);
    drag(4, 4, 11, 11);
    return picture(16, 16);
  };
  EXPECT_EQ(drawn(kFilledOval, 1), drawn(kFilledOval, 6));
  for (const Tool tool : {kLine, kRectangle, kFilledRectangle, kOval})
    EXPECT_NE(drawn(tool, 1), drawn(tool, 4)) << tool;
}

TEST_F(ShapeToolTest, TheBrushWidensTheOutlineByItsRoundNib) {
  expectDrawn(kFilledRectangle, 3, {2, 2, 4, 4}, {"......", "..ggg.", ".ggggg", ".ggggg", ".ggggg", "..ggg."});
}

TEST_F(ShapeToolTest, ShiftMakesASquareOfTheLongerSide) {
  expectDrawn(kRectangle, 1, {1, 1, 6, 3},
              {".......", ".gggggg", ".g....g", ".g....g", ".g....g", ".g....g", ".gggggg"}, kShiftKey);
}

TEST_F(ShapeToolTest, ASquareEndsWithTheIcon) {
  // The icon's edge is 3 pixels right of the start.
  start(kFilledRectangle);
  drag(13, 0, 15, 5, kShiftKey);
  expectPicture({".............ggg", ".............ggg", ".............ggg"});
}

TEST_F(ShapeToolTest, CtrlAndAltConstrainAsShiftDoesAndOtherBitsDoNot) {
  for (int modifier : {kCtrlKey, kAltKey, kShiftKey | kAltKey})
    expectDrawn(kFilledRectangle, 1, {0, 0, 1, 2}, {"ggg", "ggg", "ggg"}, modifier);
  expectDrawn(kFilledRectangle, 1, {0, 0, 1, 2}, {"gg", "gg", "gg"}, 8);
}

TEST_F(ShapeToolTest, AConstrainedLineIsADiagonalOrStaysOnItsRow) {
  expectDrawn(kLine, 1, {0, 0, 3, 1}, {"g...", ".g..", "..g.", "...g"}, kShiftKey);
  expectDrawn(kLine, 1, {0, 1, 3, 1}, {"....", "gggg"}, kShiftKey);
}

TEST_F(ShapeToolTest, TheShapeEndsWhereTheLastMoveWasWhateverTheRelease) {
  start(kLine);
  press(0, 0);
  move(3, 0);
  release(9, 9, kShiftKey);
  expectPicture({"gggg"});
}

TEST_F(ShapeToolTest, TheConstraintIsThatOfTheLastMove) {
  start(kFilledRectangle);
  press(0, 0);
  move(2, 1, kShiftKey);
  release(2, 1);
  expectPicture({"ggg", "ggg", "ggg"});
}

TEST_F(ShapeToolTest, ADragShowsABandAndTouchesTheIconOnlyAtTheRelease) {
  for (const Tool tool : kShapes) {
    start(tool);
    press(1, 1);
    EXPECT_EQ(bandPixels(), 0);
    const int repaints = display.repaints;
    move(8, 6);
    EXPECT_GT(bandPixels(), 0);
    EXPECT_EQ(display.repaints, repaints + 1);
    expectPicture({"."});
    EXPECT_EQ(history.undoCount(), 1);
    release(8, 6);
    EXPECT_EQ(history.undoCount(), 2);
    undo.doUndo();
    EXPECT_EQ(bandPixels(), 0) << "no band is left";
  }
}

TEST_F(ShapeToolTest, TheBandIsADottedOutlineThroughTheCentresOfCells) {
  start(kRectangle);
  press(1, 1);
  move(5, 3);
  const Color inverse = kGround ^ kWhite;
  EXPECT_EQ(state.picDisp.GetPixel(12 + 6, 12 + 6), inverse) << "the dots begin in the corner";
  int dots = 0;
  for (int y = 0; y < state.picDisp.height(); ++y)
    for (int x = 0; x < state.picDisp.width(); ++x) {
      if (state.picDisp.GetPixel(x, y) == kGround) continue;
      EXPECT_EQ(state.picDisp.GetPixel(x, y), inverse);
      EXPECT_TRUE(x == 18 || x == 66 || y == 18 || y == 42) << x << ',' << y;
      ++dots;
    }
  // Half of an outline of 2 * (48 + 24) pixels.
  EXPECT_EQ(dots, 72);
}

TEST_F(ShapeToolTest, ABandReplacesTheOneBeforeAndLeavesThePicture) {
  start(kRectangle);
  press(1, 1);
  move(9, 9);
  move(5, 3);
  EXPECT_EQ(bandPixels(), 72);
  state.picDisp.clearDrawing();
  EXPECT_EQ(bandPixels(), 0);
}

TEST_F(ShapeToolTest, AnOvalsBandIsABoxAndTheEllipseInIt) {
  start(kRectangle);
  press(1, 1);
  move(5, 3);
  const int box = bandPixels();
  start(kOval);
  press(1, 1);
  move(5, 3);
  EXPECT_GT(bandPixels(), box);
  move(1, 5);
  EXPECT_LE(bandPixels(), 2 * (4 * 12 + 1)) << "without width there is the box alone";
}

TEST_F(ShapeToolTest, AMoveWithoutAPressShowsNoBand) {
  start(kRectangle);
  const int repaints = display.repaints;
  move(5, 5);
  EXPECT_EQ(bandPixels(), 0);
  EXPECT_EQ(display.repaints, repaints);
}

TEST_F(ShapeToolTest, PensAndFillModesAreAsTheyWereAfterwards) {
  for (const Tool tool : kShapes) {
    start(tool, 5);
    state.picImage.penWidth = 1;
    drag(2, 2, 9, 9);
    for (const Surface* surface : {&state.picImage, &state.picMask, &state.picDisp}) {
      EXPECT_EQ(surface->penWidth, 1);
      EXPECT_EQ(surface->penStyle, PenStyle::Solid);
      EXPECT_EQ(surface->fillMode, FillMode::Transparent);
      EXPECT_EQ(surface->drawMode, DrawMode::Copy);
    }
  }
}

TEST_F(ShapeToolTest, AReleaseThatNoDragBelongsToDrawsNothing) {
  start(kLine);
  release(3, 3);
  expectPicture({"."});
  EXPECT_EQ(history.undoCount(), 1);
  // The second button of a drag: its release ends the drag; the release of the first has no effect.
  drag(0, 0, 2, 0);
  release(9, 9);
  expectPicture({"ggg"});
  EXPECT_EQ(history.undoCount(), 2);
}

TEST_F(ShapeToolTest, AReleaseBeforeAMoveEndsTheBand) {
  start(kLine);
  press(0, 0);
  release(0, 0);
  move(5, 5);
  EXPECT_EQ(bandPixels(), 12 * 12) << "the drawn pixel alone";
}

TEST_F(ShapeToolTest, ACancelledDragLeavesNoBandAndNoShape) {
  start(kRectangle);
  press(1, 1);
  move(8, 8);
  tools.clearAllTools();
  EXPECT_EQ(bandPixels(), 0);
  tools.selectTool(kRectangle);
  move(9, 9);
  release(9, 9);
  expectPicture({"."});
  EXPECT_EQ(bandPixels(), 0);
}

TEST_F(ShapeToolTest, ADragDoesNotGoOnUponAnotherIcon) {
  putIcon(1, 32);
  start(kRectangle);
  press(1, 1);
  move(8, 8);
  panel.SwitchContainer(1);
  tools.selectTool(kRectangle);
  move(9, 9);
  EXPECT_EQ(bandPixels(), 0);
  release(9, 9);
  expectPicture({"."});
  expectAgreement();
  panel.SwitchContainer(0);
  expectPicture({"."});
}

TEST_F(ShapeToolTest, ALineEqualsThePlatformsPixels) {
  int checked = 0;
  for (const GoldenCase& c : test::readGoldenFile("lines.txt")) {
    if (c.number("pen") != 1 || !c.startsWith("dir_")) continue;
    Rows rows = c.rows;
    rows.at(static_cast<std::size_t>(c.number("y2"))).at(static_cast<std::size_t>(c.number("x2"))) = '#';
    expectReference(c, kLine, cornersOf(c), rows);
    ++checked;
  }
  std::printf("lines.txt: %d reference cases checked\n", checked);
  EXPECT_GT(checked, 40);
}

TEST_F(ShapeToolTest, RectanglesEqualThePlatformsPixelsWithEveryBrush) {
  int checked = 0;
  for (const GoldenCase& c : test::readGoldenFile("boxes.txt")) {
    const DrawRect rect = cornersOf(c);
    const bool isPoint = rect.x1 == rect.x2 && rect.y1 == rect.y2;
    if (rect.x2 < rect.x1 || rect.y2 < rect.y1 || (isPoint && c.number("pen") == 1)) continue;
    expectReference(c, c.number("filled") == 1 ? kFilledRectangle : kRectangle, rect, c.rows);
    ++checked;
  }
  std::printf("boxes.txt: %d reference cases checked\n", checked);
  EXPECT_GT(checked, 100);
}

TEST_F(ShapeToolTest, OvalsEqualThePlatformsPixelsWithEveryBrush) {
  int checked = 0;
  for (const GoldenCase& c : test::readGoldenFile("arcs.txt")) {
    const DrawRect rect = ovalCornersOf(c);
    const bool isFromCorners = c.real("cx") == (rect.x1 + rect.x2) / 2 && c.real("cy") == (rect.y1 + rect.y2) / 2 &&
                               c.real("rx") == (rect.x2 - rect.x1) / 2 && c.real("ry") == (rect.y2 - rect.y1) / 2;
    if (!c.startsWith("arc_") || !isFromCorners || rect.x1 == rect.x2 || c.width() > 48) continue;
    expectReference(c, kOval, rect, c.rows);
    ++checked;
  }
  std::printf("arcs.txt: %d reference cases checked\n", checked);
  EXPECT_GT(checked, 50);
}

TEST_F(ShapeToolTest, FilledOvalsEqualThePlatformsPixels) {
  int checked = 0;
  for (const GoldenCase& c : test::readGoldenFile("ellipses_boxes.txt")) {
    const DrawRect rect = ovalCornersOf(c);
    const bool isSlender = rect.y2 - rect.y1 > 2 * (rect.x2 - rect.x1);
    if (c.number("pen") != 2 || c.number("filled") != 1 || c.width() > 48 || rect.x1 == rect.x2 || isSlender) continue;
    expectReference(c, kFilledOval, rect, c.rows);
    ++checked;
  }
  std::printf("ellipses_boxes.txt: %d reference cases checked\n", checked);
  EXPECT_GT(checked, 80);
}

// What a user does while the release of an oval pumps messages.
class OvalPumpTest : public ShapeToolTest {
 protected:
  OvalPumpTest() {
    putIcon(1, 32, {"rr"});
    start(kOval);
  }
  void dragWith(std::function<void()> event) {
    press(0, 0);
    move(4, 4);
    pump.inside = std::move(event);
    release(4, 4);
  }
};
const Rows kCircle = {".ggg.", "g...g", "g...g", "g....", ".ggg."};

TEST_F(OvalPumpTest, APressBeginsADragOfItsOwn) {
  dragWith([this] { press(8, 0); });
  expectPicture(kCircle);
  expectAgreement();
  move(10, 2);
  release(10, 2);
  expectPicture({".ggg.....g.", "g...g...g.g", "g...g....g.", "g..........", ".ggg......."});
  expectAgreement();
}

TEST_F(OvalPumpTest, AReleaseDrawsNothingASecondTime) {
  dragWith([this] { release(4, 4); });
  expectPicture(kCircle);
  EXPECT_EQ(history.undoCount(), 2);
  expectAgreement();
}

TEST_F(OvalPumpTest, AWholeDragIsAStepOfItsOwn) {
  dragWith([this] { drag(8, 0, 10, 2); });
  expectPicture({".ggg.....g.", "g...g...g.g", "g...g....g.", "g..........", ".ggg......."});
  EXPECT_EQ(history.undoCount(), 3);
  expectAgreement();
}

TEST_F(OvalPumpTest, AMenuCommandIsFollowedByTheShape) {
  start(kLine);
  drag(0, 9, 3, 9);
  tools.selectTool(kOval);
  dragWith([this] { undo.doUndo(); });
  expectPicture(kCircle);
  EXPECT_FALSE(history.canRedo());
  expectAgreement();
}

TEST_F(OvalPumpTest, AnotherToolDoesNotChangeWhatIsDrawn) {
  dragWith([this] { tools.selectTool(kFilledRectangle); });
  expectPicture(kCircle);
  expectAgreement();
}

TEST_F(OvalPumpTest, AClickOnAnotherContainerDropsTheShape) {
  dragWith([this] { panel.SwitchContainer(1); });
  expectPicture({"rr"});
  EXPECT_EQ(history.undoCount(), 1);
  expectAgreement();
  panel.SwitchContainer(0);
  expectPicture({"."});
}

TEST_F(OvalPumpTest, AClickOnItsOwnContainerDropsTheShape) {
  dragWith([this] { panel.SwitchContainer(0); });
  expectPicture({"."});
  EXPECT_EQ(history.undoCount(), 1);
  expectAgreement();
}

TEST_F(OvalPumpTest, AnIconThatWasClosedIsLeftAlone) {
  dragWith([this] { panel.showEmptyContainer(); });
  EXPECT_EQ(history.undoCount(), 0);
  EXPECT_EQ(state.picMask.GetPixel(2, 0), kWhite);
}

TEST_F(OvalPumpTest, APanelThatComesUpFindsTheIconAsItWillStay) {
  dragWith([this] { editor.showPanel(7); });
  expectPicture({"."});
  EXPECT_EQ(bandPixels(), 0);
  expectAgreement();
}

TEST_F(OvalPumpTest, ARegionThatWasMadeKeepsItsIcon) {
  dragWith([this] { markRegion(8, 8, 11, 11); });
  EXPECT_TRUE(state.mRegionExists);
  expectPicture({"."});
  expectAgreement();
}

TEST_F(OvalPumpTest, ShiftThatWasTurnedOnHasKeptTheIconAsItStays) {
  dragWith([this] { tools.selectTool(kShift); });
  expectPicture({"."});
  EXPECT_EQ(history.undoCount(), 2) << "Shift has made its baseline";
  drawing.shift.shift(ShiftCell::Right);
  expectPicture({"."});
}

TEST_F(OvalPumpTest, APanelThatTookTheIconOverHasABaselineBeforeTheShape) {
  dragWith([this] { panel.updateFromCurrent(); });
  expectPicture(kCircle);
  EXPECT_EQ(history.undoCount(), 2);
  expectAgreement();
  undo.doUndo();
  expectPicture({"."});
}

TEST_F(OvalPumpTest, PensAreAtRestWhileEventsRun) {
  start(kOval, 6);
  int width = 0;
  dragWith([&] { width = state.picImage.penWidth; });
  EXPECT_EQ(width, 1);
}

TEST_F(OvalPumpTest, AStraightShapeIsDrawnBeforeAnythingElseHappens) {
  start(kFilledRectangle);
  press(0, 0);
  move(1, 1);
  state.current().modified = true;
  pump.inside = [this] { panel.SwitchContainer(1); };
  release(1, 1);
  expectPicture({"rr"});
  expectAgreement();
  panel.SwitchContainer(0);
  expectPicture({"gg", "gg"});
}

TEST_F(ShapeToolTest, ALaterPositionOfTheMouseIsNotOvertakenByAnEarlierOne) {
  start(kLine);
  press(1, 1);
  moveTwiceAtOnce(3, 1, 5, 1);
  release(5, 1);
  expectPicture({".", ".ggggg"});
}

}  // namespace
}  // namespace gp
