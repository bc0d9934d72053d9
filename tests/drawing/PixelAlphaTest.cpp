// What tools and commands do to the alpha values of the Current Icon.
#include "document/AlphaGreys.h"
#include "document/CurrentIcon.h"
#include "drawing/DrawingFixture.h"
#include "drawing/FloatingContent.h"

#include <functional>

namespace gp::test {
namespace {

constexpr int kSide = 16;
constexpr int kClearX = 13;  // the transparent column

int valueAt(int x, int y) { return 1 + (x + 16 * y) % 254; }

class PixelAlpha : public DrawingFixture {
 protected:
  PixelAlpha() { bringUp(); }

  // An icon in which each pixel has another colour and, but for a transparent column, another alpha value.
  static IconImage makeIcon() {
    IconImage icon = transparentIcon(kSide);
    icon.alpha = AlphaMatrix(kSide, kSide, kOpaqueAlpha);
    for (int y = 0; y < kSide; ++y)
      for (int x = 0; x < kSide; ++x) {
        if (x == kClearX) continue;
        icon.image.SetPixelV(x, y, rgb(x * 16, y * 16, 1));
        icon.mask.SetPixelV(x, y, kBlack);
        icon.alpha.at(x, y) = static_cast<std::uint8_t>(valueAt(x, y));
      }
    return icon;
  }
  void bringUp() {
    IconContainerRec record = NewRecord();
    record.hasAlpha = true;
    record.setDepth({kTrueColor, kBitsWithAlpha});
    document.arrival.arrive(makeIcon(), record);
    editor.calls.clear();
  }
  int alphaAt(int x, int y) const { return redOf(state.picAlpha.GetPixel(x, y)); }
  bool isPainted(int x, int y) const { return state.picMask.GetPixel(x, y) == kBlack; }

  // Compares all pixels; those for which `expected` gives no value keep theirs.
  void expectAlpha(const std::function<int(int x, int y)>& expected) const {
    for (int y = 0; y < kSide; ++y)
      for (int x = 0; x < kSide; ++x) ASSERT_EQ(alphaAt(x, y), expected(x, y)) << x << ", " << y;
  }
  static int former(int x, int y) { return x != kClearX ? valueAt(x, y) : 255; }
  void expectOnlyOpaque(const std::function<bool(int x, int y)>& isChanged) const {
    expectAlpha([&](int x, int y) { return isChanged(x, y) ? 255 : former(x, y); });
  }
};

TEST_F(PixelAlpha, PaintAndEraseSetTheWholeBrushToOpaque) {
  for (const Tool tool : {kPaint, kErase}) {
    bringUp();
    tools.selectTool(tool);
    tools.setBrush(2);
    drag(4, 5, 7, 5);
    expectOnlyOpaque([](int x, int y) { return x >= 4 && x <= 9 && y >= 5 && y <= 7; });
    EXPECT_EQ(isPainted(5, 6), tool == kPaint);
  }
}

TEST_F(PixelAlpha, APixelThatIsPaintedAfterErasingIsOpaque) {
  tools.selectTool(kErase);
  click(3, 3);
  tools.selectTool(kPaint);
  click(3, 3);
  EXPECT_TRUE(isPainted(3, 3));
  EXPECT_EQ(alphaAt(3, 3), 255);
}

TEST_F(PixelAlpha, ShapesSetWhatTheyPaint) {
  tools.selectTool(kLine);
  drag(2, 2, 2, 6);
  expectOnlyOpaque([](int x, int y) { return x == 2 && y >= 2 && y <= 6; });
  for (const Tool tool : {kRectangle, kFilledRectangle, kOval, kFilledOval}) {
    bringUp();
    const Surface before = state.picImage;
    state.mCurrentColor = rgb(1, 2, 255);
    tools.selectTool(tool);
    drag(3, 3, 11, 9);
    int painted = 0;
    for (int y = 0; y < kSide; ++y)
      for (int x = 0; x < kSide; ++x) {
        const bool isNew = state.picImage.GetPixel(x, y) != before.GetPixel(x, y);
        painted += isNew;
        ASSERT_EQ(alphaAt(x, y), isNew ? 255 : former(x, y)) << tool << ": " << x << ", " << y;
      }
    EXPECT_GT(painted, 12) << tool;
  }
}

TEST_F(PixelAlpha, FillAndReplaceSetWhatTheyPaintOrErase) {
  for (const int modifiers : {0, +kCtrlKey}) {
    for (const Tool tool : {kFill, kReplace}) {
      bringUp();
      tools.selectTool(tool);
      click(6, 7, modifiers);
      expectOnlyOpaque([](int x, int y) { return x == 6 && y == 7; });
      EXPECT_EQ(isPainted(6, 7), modifiers == 0);
    }
  }
  tools.selectTool(kFill);
  click(kClearX, 4);
  EXPECT_TRUE(isPainted(kClearX, 0));
  EXPECT_EQ(alphaAt(kClearX, 0), 255);
}

TEST_F(PixelAlpha, RestoreBringsTheFormerAlphaBack) {
  tools.selectTool(kPaint);
  drag(2, 2, 3, 2);
  tools.selectTool(kRestore);
  click(2, 2);
  EXPECT_EQ(alphaAt(2, 2), valueAt(2, 2));
  EXPECT_EQ(alphaAt(3, 2), 255);
}

TEST_F(PixelAlpha, FlipsAndTurnsMoveIt) {
  Transforms& transforms = drawing.transforms;
  transforms.RotateFlipHoriz();
  expectAlpha([](int x, int y) { return former(15 - x, y); });
  bringUp();
  transforms.RotateFlipVertical();
  expectAlpha([](int x, int y) { return former(x, 15 - y); });
  bringUp();
  transforms.RotateLeft();
  expectAlpha([](int x, int y) { return former(15 - y, x); });
  bringUp();
  transforms.RotateRight();
  expectAlpha([](int x, int y) { return former(y, 15 - x); });
}

TEST_F(PixelAlpha, RotationByAnyAngleSamplesItAsItSamplesTheColor) {
  for (const int angle : {30, 45, -77, 90, 180, 359}) {
    bringUp();
    drawing.rotatePanel.open();
    drawing.rotatePanel.setSlider(angle);
    drawing.rotatePanel.doRotateProceed();
    int kept = 0;
    for (int y = 0; y < kSide; ++y)
      for (int x = 0; x < kSide; ++x) {
        const Color color = state.picImage.GetPixel(x, y);
        const int expected = isPainted(x, y) ? valueAt(redOf(color) / 16, greenOf(color) / 16) : 255;
        ASSERT_EQ(alphaAt(x, y), expected) << angle << ": " << x << ", " << y;
        kept += isPainted(x, y);
      }
    EXPECT_GT(kept, 100) << angle;
    EXPECT_LT(kept, kSide * kSide) << angle;
  }
}

// The second of two source pixels that fall on one is opaque, and white as a grey.
TEST_F(PixelAlpha, RotationAlsoSamplesOpaquePixels) {
  IconImage icon = makeIcon();
  for (int y = 0; y < kSide; ++y)
    for (int x = 0; x < kSide; ++x)
      if ((x + y) % 2 == 0) icon.alpha.at(x, y) = kOpaqueAlpha;
  for (int angle = 1; angle < 360; ++angle) {
    replacePixels(state, icon);
    drawing.rotatePanel.setSlider(angle);
    drawing.rotatePanel.doRotateProceed();
    for (int y = 0; y < kSide; ++y)
      for (int x = 0; x < kSide; ++x) {
        if (!isPainted(x, y)) continue;
        const Color color = state.picImage.GetPixel(x, y);
        ASSERT_EQ(alphaAt(x, y), icon.alpha.at(redOf(color) / 16, greenOf(color) / 16)) << angle;
      }
  }
}

TEST_F(PixelAlpha, ShiftTakesItAlongAndLeavesOpaqueOnesBehind) {
  tools.selectTool(kShift);
  drawing.shift.padRelease(ShiftCell::Left);
  drawing.shift.padRelease(ShiftCell::Top);
  expectAlpha([](int x, int y) { return x + 1 < kSide && y + 1 < kSide ? former(x + 1, y + 1) : 255; });
  undo.doUndo();
  expectAlpha(former);
}

TEST_F(PixelAlpha, ARegionTakesItAlong) {
  markRegion(2, 2, 5, 4);
  drag(3, 3, 8, 10);
  const auto moved = [](int x, int y) {
    if (x >= 7 && x <= 10 && y >= 9 && y <= 11) return former(x - 5, y - 7);
    return x >= 2 && x <= 5 && y >= 2 && y <= 4 ? 255 : former(x, y);
  };
  expectAlpha(moved);
  tools.clearFromMenu();
  expectAlpha(moved);
  undo.doUndo();
  expectAlpha(former);
  undo.doRedo();
  expectAlpha(moved);
}

TEST_F(PixelAlpha, TransparentPixelsOfARegionLeaveThatOfTheIconBeneath) {
  markRegion(12, 0, 13, 0);
  drag(12, 0, 4, 0);
  EXPECT_EQ(alphaAt(4, 0), former(12, 0));
  EXPECT_EQ(alphaAt(5, 0), former(5, 0));
}

TEST_F(PixelAlpha, ADragThatIsGivenUpBringsItBack) {
  markRegion(2, 2, 5, 4);
  press(3, 3);
  move(8, 10);
  tools.giveUp();
  expectAlpha(former);
}

TEST_F(PixelAlpha, ARegionIsFlippedWithIt) {
  markRegion(2, 2, 5, 4);
  drawing.transforms.RotateFlipHoriz();
  expectAlpha([](int x, int y) { return x >= 2 && x <= 5 && y >= 2 && y <= 4 ? former(7 - x, y) : former(x, y); });
}

TEST_F(PixelAlpha, ErasingARegionMakesItOpaqueAndUndoBringsItBack) {
  markRegion(2, 2, 5, 4);
  drawing.clipboardCommands.doCutRegion(false);
  expectOnlyOpaque([](int x, int y) { return x >= 2 && x <= 5 && y >= 2 && y <= 4; });
  undo.doUndo();
  expectAlpha(former);
}

TEST_F(PixelAlpha, UndoAndRedoGoThroughIt) {
  tools.selectTool(kPaint);
  click(1, 1);
  drawing.transforms.RotateFlipHoriz();
  undo.doUndo();
  expectOnlyOpaque([](int x, int y) { return x == 1 && y == 1; });
  undo.doUndo();
  expectAlpha(former);
  undo.doRedo();
  undo.doRedo();
  EXPECT_EQ(alphaAt(14, 1), 255);
  EXPECT_EQ(alphaAt(1, 1), former(14, 1));
  undo.doUndoAll();
  expectAlpha(former);
}

TEST_F(PixelAlpha, AStepThatChangesOnlyAlphaCanBeUndone) {
  state.picAlpha.SetPixelV(5, 5, greyOf(3));
  history.recordUndo();
  undo.doUndo();
  EXPECT_EQ(alphaAt(5, 5), former(5, 5));
  undo.doRedo();
  EXPECT_EQ(alphaAt(5, 5), 3);
}

// Copy and paste.

TEST_F(PixelAlpha, CopyCarriesItAndPasteBringsIt) {
  markRegion(11, 2, 13, 4);
  drawing.clipboardCommands.doCopyRegion();
  EXPECT_TRUE(clipboard.held->hasAlpha());
  EXPECT_EQ(clipboard.held->alpha.GetPixel(0, 0), greyOf(former(11, 2)));
  EXPECT_EQ(clipboard.held->alpha.GetPixel(2, 1), kBlack) << "transparent";
  EXPECT_EQ(clipboard.held->corner.GetPixel(2, 1), kGround);
  bringUp();
  drawing.clipboardCommands.doPaste(false);
  expectAlpha([](int x, int y) { return x < 2 && y < 3 ? former(11 + x, 2 + y) : former(x, y); });
  EXPECT_EQ(state.picImage.GetPixel(0, 0), rgb(11 * 16, 2 * 16, 1));
  EXPECT_EQ(state.picImage.GetPixel(2, 0), rgb(2 * 16, 0, 1)) << "transparent in the picture";
}

TEST_F(PixelAlpha, TheWholeIconIsCopiedWithIt) {
  state.picAlpha.SetPixelV(4, 4, greyOf(0));
  drawing.clipboardCommands.doCopyRegion();
  const Surface& alpha = clipboard.held->alpha;
  ASSERT_EQ(alpha.width(), kSide);
  for (int y = 0; y < kSide; ++y)
    for (int x = 0; x < kSide; ++x) {
      const int painted = x == 4 && y == 4 ? 1 : former(x, y);
      ASSERT_EQ(alpha.GetPixel(x, y), greyOf(x != kClearX ? painted : 0)) << x << ", " << y;
    }
}

TEST_F(PixelAlpha, APictureWithoutAlphaIsOpaque) {
  clipboard.hold(Surface(3, 2, kGreen));
  drawing.clipboardCommands.doPaste(false);
  expectOnlyOpaque([](int x, int y) { return x < 3 && y < 2; });
}

TEST_F(PixelAlpha, PasteOpaqueCoversWithThatOfThePicture) {
  Surface alpha(2, 1, greyOf(40));
  alpha.SetPixelV(1, 0, kBlack);
  clipboard.hold(Surface(2, 1, kGround), alpha);
  drawing.clipboardCommands.doPaste(true);
  EXPECT_EQ(alphaAt(0, 0), 40);
  EXPECT_EQ(alphaAt(1, 0), 0);
  EXPECT_TRUE(isPainted(1, 0));
}

TEST_F(PixelAlpha, AnIconWithoutAlphaGetsThePictureAsItLooks) {
  arrive(1, transparentIcon(kSide));
  clipboard.hold(Surface(2, 1, kGreen), Surface(2, 1, greyOf(40)));
  clipboard.held->corner.fill(kYellow);
  drawing.clipboardCommands.doPaste(false);
  EXPECT_EQ(state.picImage.GetPixel(0, 0), kYellow);
  EXPECT_FALSE(currentIcon(state).hasAlphaValues());
  EXPECT_EQ(alphaAt(0, 0), 255);
}

TEST_F(PixelAlpha, AnIconWithoutAlphaIsCopiedWithoutIt) {
  arrive(1, transparentIcon(kSide));
  drawing.clipboardCommands.doCopyRegion();
  EXPECT_FALSE(clipboard.held->hasAlpha());
}

TEST_F(PixelAlpha, ContentWithoutAlphaValuesIsOpaque) {
  placeContent(tools, regions, opaqueContentOf(Surface(1, 1, kGreen)), false);
  EXPECT_EQ(alphaAt(0, 0), 255);
  EXPECT_EQ(alphaAt(1, 0), former(1, 0));
}

TEST_F(PixelAlpha, ARegionOfOnePixelOfAnIconWithoutAlphaStaysOpaque) {
  putIcon(1, kSide, {"rg"});
  markRegion(0, 0, 0, 0);
  drag(0, 0, 4, 4);
  EXPECT_EQ(letterAt(4, 4), 'r');
  expectAlpha([](int, int) { return 255; });
}

}  // namespace
}  // namespace gp::test
