#include "drawing/RegionFixture.h"

#include <functional>

namespace gp {
namespace {

using test::Rows;

class ClipboardTest : public test::RegionFixture {};

Rows rowsOfPicture(const Surface& picture) {
  Rows rows(static_cast<std::size_t>(picture.height()));
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      rows[static_cast<std::size_t>(y)] += picture.GetPixel(x, y) == kGround         ? 's'
                                           : picture.GetPixel(x, y) == test::kColorA ? 'a'
                                           : picture.GetPixel(x, y) == test::kColorB ? 'b'
                                                                                     : '?';
  return rows;
}

// A picture whose pixels would not fit into memory.
ClipboardImage claimed(int width, int height) {
  return {width, height, Surface(std::min(width, 48), std::min(height, 48), test::kColorA)};
}

TEST_F(ClipboardTest, CopyGivesTheRegionWithSilverWhereItIsTransparent) {
  makeIcon(16, {"a.b", "bba"});
  mark(0, 0, 2, 1);
  commands.doCopyRegion();
  EXPECT_EQ(rowsOfPicture(clipboard.held->corner), (Rows{"asb", "bba"}));
  EXPECT_EQ(clipboard.clears, 1);
  EXPECT_EQ(icon(), (Rows{"a.b", "bba"}));
}

TEST_F(ClipboardTest, CopyWithoutARegionGivesTheWholeIcon) {
  makeIcon(16, {"ab"});
  commands.doCopyRegion();
  EXPECT_EQ(clipboard.held->width, 16);
  EXPECT_EQ(rowsOfPicture(clipboard.held->corner).front(), "ab" + std::string(14, 's'));
}

TEST_F(ClipboardTest, ClearingTheClipboardEmptiesIt) {
  clipboard.hold(picture({"a"}));
  commands.clearClipboard();
  EXPECT_FALSE(clipboard.held);
  EXPECT_EQ(editor.count("UpdateCommands"), 1);
}

TEST_F(ClipboardTest, CutBlanksTheRegionAndRecordsAStep) {
  makeIcon(16, {"aaa", "aaa", "aaa"});
  mark(1, 1, 2, 2);
  commands.doCutRegion(false);
  EXPECT_EQ(icon(), (Rows{"aaa", "a", "a"}));
  EXPECT_FALSE(clipboard.held);
  EXPECT_EQ(history.undoCount(), 2);
  EXPECT_TRUE(state.current().modified);
  undo.doUndo();
  EXPECT_EQ(icon(), Rows(3, "aaa"));
  expectAgreement();
}

TEST_F(ClipboardTest, CutAndCopyKeepsTheContentInTheClipboard) {
  makeIcon(16, {"ab", "ab"});
  mark(0, 0, 1, 0);
  commands.doCutRegion(true);
  EXPECT_EQ(rowsOfPicture(clipboard.held->corner), Rows{"ab"});
  EXPECT_EQ(icon(), (Rows{"", "ab"}));
  expectAgreement();
}

TEST_F(ClipboardTest, CutOfABoxWithoutSidesSaysSo) {
  makeIcon(16, {"a"});
  boxes.expectTold("No picture region yet", BoxIcon::None);
  commands.doCutRegion(false);
  EXPECT_EQ(icon(), Rows{"a"});
}

TEST_F(ClipboardTest, CutBringsTheColourPanelForward) {
  makeIcon(16, {"ab", "ab"});
  mark(0, 0, 1, 1);
  state.screen.mActivePanel = 5;
  commands.doCutRegion(false);
  EXPECT_EQ(state.screen.mActivePanel, 0);
}

TEST_F(ClipboardTest, CutOfAPastedStillFloatingRegionRestoresThePictureBeneathAndLeavesNoSnapshot) {
  const Rows beneath = {"aaaaa", "aaaaa"};
  makeIcon(16, beneath);
  clipboard.hold(picture({"bbb", "bbb", "bbb"}));
  commands.doPaste(false);
  moveRegion(1, 0);
  EXPECT_EQ(icon(), (Rows{"abbba", "abbba", ".bbb"}));
  const int steps = history.undoCount();
  commands.doCutRegion(false);
  EXPECT_EQ(icon(), beneath);
  EXPECT_EQ(history.undoCount(), steps);
  EXPECT_TRUE(state.current().modified);
  expectAgreement();
}

TEST_F(ClipboardTest, APastedPictureFloatsAtTheTopLeftWithSilverTransparent) {
  makeIcon(16, {"aaaa", "aaaa"});
  clipboard.hold(picture({"bs", "sb", "kc"}));
  commands.doPaste(false);
  EXPECT_EQ(icon(), (Rows{"baaa", "abaa", "kc"}));
  EXPECT_TRUE(regions.isFloating());
  EXPECT_TRUE(state.mRegionExists);
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(tools.selectedTool(), kRegion);
  EXPECT_EQ(label(), "Region: Start [1, 1]   W=2 H=3");
  EXPECT_EQ(regions.pointerAt(5, 5), RegionPointer::Custom);
  expectAgreement();
}

TEST_F(ClipboardTest, AfterPasteOpaqueSilverStaysWhileTheRegionIsDragged) {
  makeIcon(16, Rows(6, "aaaaaa"));
  clipboard.hold(picture({"ssss", "sbbs", "sbbs", "ssss"}));
  commands.doPaste(true);
  moveRegion(1, 1);
  EXPECT_EQ(icon(), (Rows{"aaaaaa", "assssa", "asbbsa", "asbbsa", "assssa", "aaaaaa"}));
  commands.doPaste(false);
  EXPECT_FALSE(regions.isPasteOpaque());
}

TEST_F(ClipboardTest, ARegionDrawnAfterPasteOpaqueIsAnOrdinaryOne) {
  makeIcon(16, Rows(1, "a"));
  clipboard.hold(picture({"ss", "ss"}));
  commands.doPaste(true);
  press(cells(10), cells(10));
  release(cells(10), cells(10));
  mark(8, 8, 12, 12);
  EXPECT_FALSE(regions.isPasteOpaque());
  EXPECT_FALSE(regions.isFloating());
  EXPECT_FALSE(state.mPendingPaint);
}

TEST_F(ClipboardTest, APasteStartsAFreshHistory) {
  makeIcon(16, {"a"});
  paintPixel(1, 0, 'b');
  clipboard.hold(picture({"cc"}));
  commands.doPaste(false);
  EXPECT_EQ(history.undoCount(), 1);
  press(cells(10), cells(10));
  undo.doUndo();
  EXPECT_EQ(icon(), Rows{"ab"});
}

TEST_F(ClipboardTest, APasteInAnEmptyContainerOf20x20AnsweredWithYesGivesAnIconOf24x24) {
  clipboard.held = claimed(20, 20);
  boxes.expectAsked("Image size is of 20x20, not of 16x16, 24x24, 32x32 or 48x48.\n\nCreate to fit in?",
                    BoxAnswer::Yes);
  commands.doPaste(false);
  EXPECT_EQ(state.current().size, 24);
  EXPECT_TRUE(state.current().present);
  EXPECT_EQ(state.current().sourceLabel.trimmed(), "New icon");
  EXPECT_EQ(state.current().path.trimmed(), "Untitled");
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(state.picImage.width(), 24);
  EXPECT_EQ(icon(), Rows(20, std::string(20, 'a')));
  EXPECT_TRUE(regions.isFloating());
  expectAgreement();
}

TEST_F(ClipboardTest, APasteInAnEmptyContainerAnsweredWithNoLeavesItEmpty) {
  clipboard.held = claimed(20, 20);
  boxes.expectAsked("Image size is of 20x20, not of 16x16, 24x24, 32x32 or 48x48.\n\nCreate to fit in?", BoxAnswer::No);
  commands.doPaste(false);
  EXPECT_FALSE(state.current().used);
  EXPECT_FALSE(state.mRegionExists);
}

TEST_F(ClipboardTest, APasteInAnEmptyContainerOfAnIconsSizeAsksNothing) {
  clipboard.held = claimed(16, 16);
  commands.doPaste(false);
  EXPECT_EQ(state.current().size, 16);
  EXPECT_EQ(icon(), Rows(16, std::string(16, 'a')));
}

TEST_F(ClipboardTest, ALargePictureMakesTheLargestIconInAnEmptyContainer) {
  clipboard.held = claimed(64, 10);
  boxes.expectAsked("Image size is of 64x10, not of 16x16, 24x24, 32x32 or 48x48.\n\nCreate to fit in?",
                    BoxAnswer::Yes);
  commands.doPaste(false);
  EXPECT_EQ(state.current().size, 48);
  EXPECT_EQ(icon(), Rows(10, std::string(48, 'a')));
}

TEST_F(ClipboardTest, APictureTooLargeForTheIconIsCutAfterYesAndRefusedAfterNo) {
  const std::string question = "Image size is of 20x9; too large for current icon.\n\nChange to fit in?";
  makeIcon(16, {"b"});
  clipboard.held = claimed(20, 9);
  boxes.expectAsked(question, BoxAnswer::No);
  commands.doPaste(false);
  EXPECT_EQ(icon(), Rows{"b"});
  EXPECT_FALSE(state.mRegionExists);
  boxes.expectAsked(question, BoxAnswer::Yes);
  commands.doPaste(false);
  EXPECT_EQ(icon(), Rows(9, std::string(16, 'a')));
  EXPECT_EQ(boxInPixels(), (Rows{"0,0", "15,8"}));
  expectAgreement();
}

TEST_F(ClipboardTest, APictureOf20000x20000IsReportedByItsSizeAndNeverHeldWhole) {
  makeIcon(32);
  clipboard.held = claimed(20000, 20000);
  boxes.expectAsked("Image size is of 20000x20000; too large for current icon.\n\nChange to fit in?", BoxAnswer::Yes);
  commands.doPaste(false);
  EXPECT_EQ(clipboard.largestLimit, 48);
  EXPECT_EQ(regions.content().width(), 32);
  EXPECT_EQ(icon(), Rows(32, std::string(32, 'a')));
}

TEST_F(ClipboardTest, APictureOfOnePixelIsPastedAsOne) {
  makeIcon(16);
  clipboard.hold(picture({"b"}));
  commands.doPaste(false);
  EXPECT_EQ(icon(), Rows{"b"});
  EXPECT_EQ(label(), "Region: Start [1, 1]   W=1 H=1");
  expectAgreement();
}

TEST_F(ClipboardTest, WithoutAPictureThePasteSaysSo) {
  makeIcon(16, {"a"});
  boxes.expectTold("No image in clipboard yet", BoxIcon::None);
  commands.doPaste(false);
  EXPECT_EQ(icon(), Rows{"a"});
}

TEST_F(ClipboardTest, APictureWithdrawnOrWithoutExtentLosesNeitherIconNorHistory) {
  makeIcon(16, {"a"});
  paintPixel(1, 0, 'b');
  clipboard.hold(picture({"c"}));
  clipboard.isWithdrawn = true;
  boxes.expectTold("No image in clipboard yet", BoxIcon::None);
  commands.doPaste(false);
  clipboard.isWithdrawn = false;
  for (const ClipboardImage& strange :
       {ClipboardImage{0, 0, Surface()}, ClipboardImage{-5, 7, Surface(3, 3)}, ClipboardImage{10, 10, Surface()}}) {
    clipboard.held = strange;
    boxes.expectTold("No image in clipboard yet", BoxIcon::None);
    commands.doPaste(false);
  }
  EXPECT_EQ(history.undoCount(), 2);
  EXPECT_EQ(icon(), Rows{"ab"});
  expectAgreement();
}

TEST_F(ClipboardTest, APictureMeantForOneIconDoesNotGoIntoAnotherThatComesUpMeanwhile) {
  makeIcon(16, {"b"});
  panel.SwitchContainer(1);
  makeIcon(16, {"c"});
  clipboard.hold(picture({"aa"}));
  pump.inside = [this] { panel.SwitchContainer(0); };
  commands.doPaste(false);
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_EQ(icon(), Rows{"b"});
  EXPECT_FALSE(state.mRegionExists);
  expectAgreement();
  panel.SwitchContainer(1);
  EXPECT_EQ(icon(), Rows{"c"});
}

TEST_F(ClipboardTest, APictureForANewIconThatWasLeftAtOnceDoesNotGoIntoAnother) {
  clipboard.held = claimed(16, 16);
  // The step recorded before, and both pumps of the arrival.
  for (const int waits : {0, 1, 2}) {
    state.mCurContainer = 0;
    makeIcon(16, {"b"});
    state.mCurContainer = 1;
    ClearContainer(state);
    panel.SwitchContainer(1);
    int left = waits;
    std::function<void()> leave = [&] {
      if (left-- > 0)
        pump.inside = leave;
      else
        panel.SwitchContainer(0);
    };
    pump.inside = leave;
    commands.doPaste(false);
    EXPECT_EQ(state.mCurContainer, 0) << waits;
    EXPECT_EQ(icon(), Rows{"b"}) << waits;
    EXPECT_FALSE(state.mRegionExists) << waits;
    expectAgreement();
  }
}

TEST_F(ClipboardTest, APastedPictureMovesOverWhatIsThereAndPutsItBack) {
  for (const bool option : {false, true}) {
    state.options.updateOnlyEditingArea = option;
    makeIcon(16, Rows(2, "aaaaaa"));
    clipboard.hold(picture({"bbbb", "bbbb", "bbbb", "bbbb"}));
    commands.doPaste(false);
    moveRegion(1, 0);
    EXPECT_EQ(icon(), (Rows{"abbbba", "abbbba", ".bbbb", ".bbbb"}));
    expectAgreement();
  }
}

TEST_F(ClipboardTest, CopyAndPasteBringTheRegionBackAsItWas) {
  makeIcon(16, {"a.b", "bba"});
  mark(0, 0, 2, 1);
  commands.doCutRegion(true);
  EXPECT_EQ(icon(), Rows{});
  commands.doPaste(false);
  EXPECT_EQ(icon(), (Rows{"a.b", "bba"}));
}

}  // namespace
}  // namespace gp
