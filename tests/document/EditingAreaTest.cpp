#include "document/DocumentFixture.h"
#include "document/PatternCells.h"
#include "platform/gdi/Pens.h"

#include <algorithm>

namespace gp {
namespace {

constexpr int kRed = 0x0000FF;

class EditingAreaTest : public test::DocumentFixture {
 protected:
  // An icon with one red pixel at (0, 0) and one opaque black one at (1, 0); all others are transparent.
  void makeIcon(int size) {
    state.current().used = state.current().present = true;
    state.current().size = static_cast<std::int16_t>(size);
    area.SizeEditSurfaces(size);
    area.SizePanelSurfaces(size);
    state.picImage.fill(kBlack);
    state.picMask.fill(kWhite);
    state.picImage.SetPixelV(0, 0, kRed);
    state.picMask.SetPixelV(0, 0, kBlack);
    state.picMask.SetPixelV(1, 0, kBlack);
    area.ComposeCurrentIcon();
  }
  void room(int width, int height) {
    state.screen.dispContainerWidth = width;
    state.screen.dispContainerHeight = height;
  }
};

struct FactorCase {
  int size, normal, enlarged;
};

TEST_F(EditingAreaTest, TheFactorFollowsTheSizeTheRoomAndTheOption) {
  for (const FactorCase& c : {FactorCase{16, 12, 15}, {24, 12, 15}, {32, 12, 15}, {48, 8, 10}}) {
    room(400, 400);
    area.ChooseMagnify(c.size);
    EXPECT_EQ(state.gMagnification, c.normal) << c.size;
    room(520, 520);
    area.ChooseMagnify(c.size);
    EXPECT_EQ(state.gMagnification, c.enlarged) << c.size;
    state.options.useEnlargedEditingArea = false;
    area.ChooseMagnify(c.size);
    EXPECT_EQ(state.gMagnification, c.normal) << c.size;
    state.options.useEnlargedEditingArea = true;
  }
}

TEST_F(EditingAreaTest, ARoomOf519PixelsOnEitherSideKeepsTheNormalFactor) {
  room(519, 600);
  area.ChooseMagnify(32);
  EXPECT_EQ(state.gMagnification, 12);
  room(600, 519);
  area.ChooseMagnify(48);
  EXPECT_EQ(state.gMagnification, 8);
}

TEST_F(EditingAreaTest, ComposingShowsTheGroundThroughTransparentPixels) {
  makeIcon(16);
  EXPECT_EQ(state.PicIcon.GetPixel(0, 0), kRed);
  EXPECT_EQ(state.PicIcon.GetPixel(1, 0), kBlack);
  EXPECT_EQ(state.PicIcon.GetPixel(2, 0), kGround);
  EXPECT_TRUE(state.PicIcon.hasPicture());
}

TEST_F(EditingAreaTest, AnInvertingPixelInvertsTheGround) {
  makeIcon(16);
  state.picImage.SetPixelV(5, 5, kWhite);
  area.ComposeCurrentIcon();
  EXPECT_EQ(state.PicIcon.GetPixel(5, 5), kWhite ^ kGround);
}

TEST_F(EditingAreaTest, UpdatingThePanelCopiesImageMaskAndComposite) {
  state.mCurContainer = 3;
  makeIcon(24);
  area.UpdatePanelFromCurrent();
  EXPECT_EQ(state.picPanelImage[3].GetPixel(0, 0), kRed);
  EXPECT_EQ(state.picPanelMask[3].GetPixel(0, 0), kBlack);
  EXPECT_EQ(state.picPanelIcon[3].GetPixel(2, 2), kGround);
  EXPECT_EQ(state.picPanelIcon[3].width(), 24);
  EXPECT_EQ(state.picPanelIcon[2].width(), 0);
}

TEST_F(EditingAreaTest, LightLinesStandAtEveryMultipleOfTheFactorInside) {
  makeIcon(16);
  options.SetGrid(0);
  const Surface& grid = state.PicGrid;
  EXPECT_EQ(grid.width(), 192);
  EXPECT_EQ(grid.height(), 192);
  EXPECT_EQ(grid.GetPixel(0, 0), kWhite);
  EXPECT_EQ(grid.GetPixel(12, 5), 0x606060);
  EXPECT_EQ(grid.GetPixel(5, 180), 0x606060);
  EXPECT_EQ(grid.GetPixel(11, 5), kWhite);
  EXPECT_EQ(grid.GetPixel(191, 5), kWhite);
  // 15 lines of 192 pixels in each direction, less the crossings counted twice.
  EXPECT_EQ(countPixels(grid, 0x606060), 2 * 15 * 192 - 15 * 15);
}

TEST_F(EditingAreaTest, DarkLinesAreBlack) {
  makeIcon(16);
  options.SetGrid(1);
  EXPECT_EQ(state.PicGrid.GetPixel(12, 5), kBlack);
}

TEST_F(EditingAreaTest, ADottedGridSetsTheInnerIntersectionsOnly) {
  makeIcon(16);
  options.SetGrid(2);
  EXPECT_EQ(countPixels(state.PicGrid, 0x800000), 15 * 15);
  for (int i = 0; i < 192; ++i) {
    EXPECT_EQ(state.PicGrid.GetPixel(i, 0), kWhite);
    EXPECT_EQ(state.PicGrid.GetPixel(0, i), kWhite);
    EXPECT_EQ(state.PicGrid.GetPixel(191, i), kWhite);
  }
}

TEST_F(EditingAreaTest, WithNoGridPicGridStaysWhiteAndNothingIsLaidOver) {
  makeIcon(16);
  options.SetGrid(6);
  EXPECT_EQ(countPixels(state.PicGrid, kWhite), 192 * 192);
  EXPECT_EQ(state.picDisp.GetPixel(0, 0), kRed);
  EXPECT_EQ(state.picDisp.GetPixel(12, 0), kBlack);
  EXPECT_EQ(state.picDisp.GetPixel(24, 24), kGround);
}

TEST_F(EditingAreaTest, APlainGridShowsTheGroundThroughATransparentPixel) {
  makeIcon(16);
  options.SetGrid(0);
  EXPECT_EQ(state.picDisp.GetPixel(12 * 4 + 3, 12 * 4 + 3), kGround);
  EXPECT_EQ(state.picDisp.GetPixel(12 * 4, 12 * 4 + 3), kGround & 0x606060);
}

TEST_F(EditingAreaTest, APatternFillsAnAreaThatGotAnotherSizeWhileItWasBuilt) {
  makeIcon(32);
  state.gGridColor = gridColorOf(3);
  pump.inside = [this] { options.setRoom(520, 520); };
  area.BuildGrid();
  area.MagnifyIcon();
  EXPECT_EQ(state.picDisp.width(), 480);
  const Surface& cell = patternCell(0);
  for (const int x : {383, 386, 478})
    EXPECT_EQ(state.picDisp.GetPixel(x, 478), cell.GetPixel(x % cell.width(), 478 % cell.height())) << x;
}

TEST_F(EditingAreaTest, APatternedGridShowsThePatternThroughATransparentPixel) {
  makeIcon(16);
  for (int grid : {3, 4, 5}) {
    options.SetGrid(grid);
    const Surface& cell = patternCell(grid - 3);
    const int x = 12 * 4 + 3;
    const int y = 12 * 7 + 5;
    EXPECT_EQ(state.picDisp.GetPixel(x, y), cell.GetPixel(x % cell.width(), y % cell.height())) << grid;
    EXPECT_EQ(state.picDisp.GetPixel(3, 3), kRed) << grid;
    EXPECT_EQ(state.PicGrid.GetPixel(12, 3), 0x606060) << grid;
  }
}

TEST_F(EditingAreaTest, TheGridIsNotBuiltWhileNoIconIsPresent) {
  makeIcon(16);
  options.SetGrid(0);
  state.current().present = false;
  options.SetGrid(1);
  EXPECT_EQ(state.PicGrid.GetPixel(12, 5), 0x606060);
  EXPECT_EQ(state.gGridColor, 0);
}

TEST_F(EditingAreaTest, GridColoursFollowTheirEntries) {
  const Color expected[] = {0x606060, 0, 0x800000, -1, -2, -3, 0xC0C0C0};
  for (int i = 0; i < kGridCount; ++i) EXPECT_EQ(gridColorOf(i), expected[i]);
}

TEST_F(EditingAreaTest, TheWholeIconFillsTheEditingArea) {
  makeIcon(48);
  options.SetGrid(6);
  state.picImage.SetPixelV(47, 47, 0x00FF00);
  state.picMask.SetPixelV(47, 47, kBlack);
  area.ComposeCurrentIcon();
  area.MagnifyIcon();
  EXPECT_EQ(state.picDisp.width(), 384);
  EXPECT_EQ(state.picDisp.GetPixel(376, 376), 0x00FF00);
  EXPECT_EQ(state.picDisp.GetPixel(383, 383), 0x00FF00);
  EXPECT_EQ(state.picDisp.GetPixel(375, 376), kGround);
}

TEST_F(EditingAreaTest, MagnifyingDropsWhatWasDrawnOverTheEditingArea) {
  makeIcon(32);
  options.SetGrid(6);
  FillBox(state.picDisp, 100, 100, 120, 120, 0x00FF00);
  area.MagnifyIcon();
  EXPECT_EQ(state.picDisp.GetPixel(110, 110), kGround);
}

TEST_F(EditingAreaTest, ShowingAnIconMarksItPresentAndClearsTheTools) {
  makeIcon(32);
  state.current().present = false;
  area.ShowCurrentIcon();
  EXPECT_TRUE(state.current().present);
  EXPECT_EQ(editor.count("clearAllTools"), 1);
  EXPECT_TRUE(state.screen.fraTools[1]);
}

TEST_F(EditingAreaTest, TheStatusBarTellsOfTheRecord) {
  makeIcon(32);
  state.current().path = "/a/b.ico";
  state.current().fromMultiIconFile = true;
  state.current().hasAlpha = true;
  state.screen.progressPercent = 40;
  area.RefreshStatusBar();
  const auto& panels = state.screen.lblStatusPanel;
  EXPECT_EQ(panels[0], "/a/b.ico");
  EXPECT_EQ(panels[1], "");
  EXPECT_EQ(panels[2], "MIF");
  EXPECT_EQ(panels[3], "32 x 32");
  EXPECT_EQ(panels[4], "Alpha");
  EXPECT_TRUE(state.screen.imgAlphaOnStatusPanel);
  EXPECT_EQ(state.screen.progressPercent, -1);
}

TEST_F(EditingAreaTest, TheIconStaysInViewWhileTheStatusBarIsRefreshed) {
  makeIcon(32);
  area.MagnifyIcon();
  const Surface before = state.picDisp;
  area.RefreshStatusBar();
  EXPECT_TRUE(std::ranges::equal(state.picDisp.pixels(), before.pixels()));
  state.picDisp.clearDrawing();
  EXPECT_TRUE(std::ranges::equal(state.picDisp.pixels(), before.pixels()));
}

TEST_F(EditingAreaTest, ADifferentBitCountInTheHeaderShowsTheAsterisk) {
  makeIcon(32);
  state.current().bitCount = 4;
  state.current().bihBitCount = 8;
  area.RefreshStatusBar();
  EXPECT_EQ(state.screen.lblStatusPanel[1], "*");
}

TEST_F(EditingAreaTest, ADifferentColourCountInTheHeaderShowsTheAsterisk) {
  makeIcon(32);
  state.current().dirColors = 256;
  state.current().bihColors = kTrueColor;
  area.RefreshStatusBar();
  EXPECT_EQ(state.screen.lblStatusPanel[1], "*");
}

TEST_F(EditingAreaTest, ThePathStaysAsItIsWhileTheAnimatedCursorPanelIsVisible) {
  makeIcon(32);
  state.current().path = "/a/b.ico";
  state.screen.lblStatusPanel[0] = "frame 3";
  state.screen.aniContainerVisible = true;
  area.RefreshStatusBar();
  EXPECT_EQ(state.screen.lblStatusPanel[0], "frame 3");
}

TEST_F(EditingAreaTest, AnOpenToolActionEndsInARefreshAndTheHistoryStays) {
  makeIcon(32);
  state.mPendingPaint = true;
  area.RefreshStatusBar();
  EXPECT_FALSE(state.mPendingPaint);
  EXPECT_EQ(editor.count("clearRegion"), 1);
  EXPECT_EQ(editor.count("clearUndoHistory"), 0);
}

TEST_F(EditingAreaTest, ClearingTheStatusBarEmptiesAllPanels) {
  makeIcon(32);
  area.RefreshStatusBar();
  area.ClearStatusBar();
  for (const std::string& text : state.screen.lblStatusPanel) EXPECT_EQ(text, "");
  EXPECT_FALSE(state.screen.imgAlphaOnStatusPanel);
}

TEST_F(EditingAreaTest, MoreRoomEnlargesTheIconAndLessShrinksItAgain) {
  makeIcon(32);
  options.SetGrid(6);
  options.setRoom(520, 520);
  EXPECT_EQ(state.gMagnification, 15);
  EXPECT_EQ(state.picDisp.width(), 480);
  EXPECT_EQ(state.picDisp.GetPixel(14, 14), kRed);
  options.setRoom(519, 520);
  EXPECT_EQ(state.picDisp.width(), 384);
}

TEST_F(EditingAreaTest, WithoutAnIconTheRoomIsThatOfOneOf32) {
  options.setRoom(600, 600);
  EXPECT_EQ(state.picDisp.width(), 480);
  state.options.useEnlargedEditingArea = false;
  options.ApplyEnlargedOption();
  EXPECT_EQ(state.picDisp.width(), 384);
}

TEST_F(EditingAreaTest, TheRoomIsIgnoredWhileTheFormLoads) {
  state.mInLoad = true;
  options.setRoom(900, 900);
  EXPECT_EQ(state.screen.dispContainerWidth, 400);
}

TEST_F(EditingAreaTest, ANewFactorEndsTheRegionTool) {
  makeIcon(32);
  editor.tool = kRegion;
  options.setRoom(520, 520);
  EXPECT_EQ(editor.count("clearRegion"), 1);
  EXPECT_EQ(editor.count("clearAllTools"), 1);
}

TEST_F(EditingAreaTest, ANewGridCommitsAnOpenToolAction) {
  makeIcon(32);
  state.current().modified = true;
  Color gridAtTheEnd = kNoColor;
  editor.atCall("clearRegion", [&] { gridAtTheEnd = state.gGridColor; });
  options.SetGrid(1);
  EXPECT_EQ(editor.count("clearRegion"), 0) << "nothing was open";
  state.mPendingPaint = true;
  options.SetGrid(2);
  EXPECT_FALSE(state.mPendingPaint);
  EXPECT_EQ(gridAtTheEnd, gridColorOf(1)) << "the action ends before the grid changes";
  EXPECT_EQ(state.picPanelImage[0].GetPixel(0, 0), kRed);
  EXPECT_EQ(editor.count("clearUndoHistory"), 0);
}

}  // namespace
}  // namespace gp
