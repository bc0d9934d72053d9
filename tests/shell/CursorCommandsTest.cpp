// Cursors in the whole program: opening them, the panel for the hot spot, and what a user can do while the hot spot
// blinks.
#include "document/PanelNumbers.h"
#include "files/CursorBuilder.h"
#include "support/ShellFixture.h"

#include <algorithm>

namespace gp::test {
namespace {

constexpr int kOpenCursor = 9, kSaveAsCursor = 18, kReveal = 11, kRevealPopUp = 7;
constexpr int kBlinkMilliseconds = 900, kPhaseMilliseconds = 150;
constexpr const char* kInvalid = "\nInvalid cursor file";

bool samePixels(const Surface& a, const Surface& b) {
  return a.width() == b.width() && a.height() == b.height() && std::ranges::equal(a.pixels(), b.pixels());
}

class CursorCommandsTest : public ShellFixture {
 protected:
  // All Surfaces on which a mark could remain.
  struct Pixels {
    Surface image, mask, icon, disp;
    std::array<Surface, kContainerCount> panelImages, panelMasks, panelIcons;
  };

  std::string write(const std::string& name, const CursorFile& cursor) {
    const Bytes bytes = build(cursor);
    return folder.write(name, std::string(bytes.begin(), bytes.end()));
  }
  std::string writeCursor(int hotspotX, int hotspotY, int bits = 4, const std::string& name = "given.cur") {
    return write(name, cursorOf(anyPicture(32, bits), hotspotX, hotspotY));
  }
  void startWithCursor(int hotspotX, int hotspotY, int bits = 4) { start(writeCursor(hotspotX, hotspotY, bits)); }
  void startWithPanel(int hotspotX = 3, int hotspotY = 4) {
    startWithCursor(hotspotX, hotspotY);
    click("mnuFileSub", kSaveAsCursor);
    pump.waitedMilliseconds = 0;
  }
  CursorFiles& cursors() { return shell.files().cursorFiles; }
  std::pair<int, int> spot() { return {cursors().hotspotX(), cursors().hotspotY()}; }
  void clickAt(int x, int y) {
    shell.drawing().tools.press(at(x, y));
    shell.drawing().tools.release(at(x, y));
  }
  // Lets the user act as soon as a hot spot blinks.
  void duringBlink(std::function<void()> action) {
    pump.inside = [this, action] {
      if (cursors().mark().isFlashing())
        action();
      else
        duringBlink(action);
    };
  }
  Pixels pixels() const {
    return {state.picImage,      state.picMask,      state.PicIcon,     state.picDisp,
            state.picPanelImage, state.picPanelMask, state.picPanelIcon};
  }
  void expectPixels(const Pixels& expected) const {
    EXPECT_TRUE(samePixels(state.picImage, expected.image));
    EXPECT_TRUE(samePixels(state.picMask, expected.mask));
    EXPECT_TRUE(samePixels(state.PicIcon, expected.icon));
    EXPECT_TRUE(samePixels(state.picDisp, expected.disp));
    for (std::size_t i = 0; i < kContainerCount; ++i) {
      EXPECT_TRUE(samePixels(state.picPanelImage[i], expected.panelImages[i])) << i;
      EXPECT_TRUE(samePixels(state.picPanelMask[i], expected.panelMasks[i])) << i;
      EXPECT_TRUE(samePixels(state.picPanelIcon[i], expected.panelIcons[i])) << i;
    }
  }
};

// Opening.

TEST_F(CursorCommandsTest, TheCursorOfTheCommandLineOpensAndChoosesItsChart) {
  start("\"" + writeCursor(7, 9, 8, "my hand.Cur") + "\"");
  const std::string path = folder.file("my hand.Cur");
  EXPECT_TRUE(state.current().present && state.current().isCursor);
  EXPECT_EQ(state.current().hotspotX, 7);
  EXPECT_EQ(state.current().hotspotY, 9);
  EXPECT_EQ(state.process.mCommandFile, path);
  EXPECT_EQ(status(StatusPanel::Path), path);
  EXPECT_EQ(status(StatusPanel::Discrepancy), "");
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart256);
  EXPECT_EQ(shell.fileHistory().count(), 0) << "cursors enter no history";
  EXPECT_EQ(std::filesystem::current_path(), directory.before());
}

TEST_F(CursorCommandsTest, ABadCursorOnTheCommandLineIsReportedAndTheProgramStartsEmpty) {
  const std::string path = writeCursor(32, 0);
  boxes.expectTold(path + kInvalid, BoxIcon::Exclamation);
  start(path);
  EXPECT_FALSE(state.current().used);
  EXPECT_EQ(std::filesystem::current_path(), std::filesystem::path(folder.path()));
}

TEST_F(CursorCommandsTest, TheOpenCommandOffersToSaveAndOpensInPlaceOfTheIcon) {
  start();
  click("mnuFileSub", 4);
  paint(40, 40);
  dialogs.paths = {writeCursor(1, 2, 1)};
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::No);
  click("mnuFileSub", kOpenCursor);
  EXPECT_EQ(status(StatusPanel::Path), folder.file("given.cur"));
  EXPECT_EQ(status(StatusPanel::Size), "32 x 32");
  EXPECT_EQ(state.process.mCommandFile, folder.file("given.cur"));
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart256) << "the two colours are none of the sixteen";
  EXPECT_FALSE(state.IsIconChanged());
}

// The panel.

TEST_F(CursorCommandsTest, SaveAsCursorOpensThePanelAndShowsTheSpotOnce) {
  startWithCursor(7, 30);
  shell.drawing().tools.selectTool(kPaint);
  click("mnuFileSub", kSaveAsCursor);
  EXPECT_EQ(state.screen.mActivePanel, kCursorPanel);
  EXPECT_EQ(spot(), std::pair(7, 30));
  EXPECT_EQ(shell.selectedTool(), 0);
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(CursorCommandsTest, IconsOfOtherSizesCannotReachThePanel) {
  start();
  EXPECT_FALSE(enabled("mnuFileSub", kSaveAsCursor)) << "nothing to save";
  for (const int newIcon : {3, 4, 5}) {
    shell.document().iconsPanel.SwitchContainer(newIcon);
    click("mnuFileSub", newIcon);
    EXPECT_FALSE(enabled("mnuFileSub", kSaveAsCursor)) << state.current().size;
    boxes.expectTold("For cursor of 32x32 only", BoxIcon::None);
    click("mnuFileSub", kSaveAsCursor);
    EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  }
  shell.document().iconsPanel.SwitchContainer(2);
  click("mnuFileSub", 2);
  EXPECT_TRUE(enabled("mnuFileSub", kSaveAsCursor));
}

TEST_F(CursorCommandsTest, AClickOnTheEditingAreaSetsTheListsAndBlinks) {
  startWithPanel();
  const Pixels before = pixels();
  clickAt(20, 31);
  EXPECT_EQ(spot(), std::pair(20, 31));
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
  EXPECT_FALSE(state.current().modified);
  expectPixels(before);
}

TEST_F(CursorCommandsTest, TheSpotBlinksOnTheEditingArea) {
  startWithPanel();
  const int m = state.gMagnification;
  const auto middle = [&](int x, int y) { return state.picDisp.GetPixel(x * m + m / 2, y * m + m / 2); };
  const Color before = middle(20, 31);
  std::vector<Color> seen;
  std::function<void()> look = [&] {
    seen.push_back(middle(20, 31));
    if (seen.size() < 6) pump.inside = look;
  };
  duringBlink(look);
  clickAt(20, 31);
  const Color red = 0x0000FF;
  EXPECT_EQ(seen, (std::vector<Color>{red, kWhite, red, kWhite, red, kWhite}));
  EXPECT_EQ(middle(20, 31), before);
}

TEST_F(CursorCommandsTest, AClickOutsideTheIconSetsNothing) {
  startWithPanel();
  for (const auto& [x, y] : {std::pair{-2, 5}, {5, -2}, {32, 5}, {5, 32}, {1000, 1000}}) clickAt(x, y);
  EXPECT_EQ(spot(), std::pair(3, 4));
  EXPECT_EQ(pump.waitedMilliseconds, 0);
}

TEST_F(CursorCommandsTest, AClickWhileASpotBlinksIsIgnored) {
  startWithPanel();
  duringBlink([this] { clickAt(8, 8); });
  clickAt(20, 3);
  EXPECT_EQ(spot(), std::pair(20, 3));
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
  clickAt(8, 8);
  EXPECT_EQ(spot(), std::pair(8, 8)) << "afterwards it counts again";
}

TEST_F(CursorCommandsTest, WithoutThePanelAClickSetsNoHotSpot) {
  startWithCursor(3, 4);
  clickAt(20, 3);
  EXPECT_EQ(spot(), std::pair(0, 0));
  EXPECT_EQ(pump.waitedMilliseconds, 0);
}

TEST_F(CursorCommandsTest, AnotherCursorUnderThePanelIsSavedWithItsOwnHotSpot) {
  startWithPanel();
  clickAt(20, 31);
  dialogs.paths = {writeCursor(9, 8, 8, "other.cur")};
  click("mnuFileSub", kOpenCursor);
  EXPECT_EQ(state.screen.mActivePanel, kCursorPanel);
  EXPECT_EQ(spot(), std::pair(9, 8));
  dialogs.paths = {folder.file("saved.cur")};
  shell.cmdProceed();
  const std::string file = folder.read("saved.cur");
  ASSERT_GT(file.size(), 22U);
  EXPECT_EQ(file.substr(10, 4), std::string({9, 0, 8, 0}));
}

TEST_F(CursorCommandsTest, AnIconUnderThePanelStartsTheListsAtZeroAndAClickCountsAgain) {
  startWithPanel();
  const Bytes bytes = build(entryOf(anyPicture(32, 8)));
  dialogs.paths = {folder.write("other.ico", std::string(bytes.begin(), bytes.end()))};
  click("mnuFileSub", 7);
  EXPECT_EQ(state.screen.mActivePanel, kCursorPanel);
  EXPECT_EQ(spot(), std::pair(0, 0));
  clickAt(20, 31);
  EXPECT_EQ(spot(), std::pair(20, 31));
}

TEST_F(CursorCommandsTest, ACursorCopiedFromAnotherContainerUnderThePanelBringsItsHotSpot) {
  startWithCursor(3, 4);
  shell.document().iconsPanel.SwitchContainer(1);
  dialogs.paths = {writeCursor(9, 8, 4, "other.cur")};
  click("mnuFileSub", kOpenCursor);
  click("mnuFileSub", kSaveAsCursor);
  EXPECT_EQ(spot(), std::pair(9, 8));
  boxes.expectAsked("Copy from Container 1 to current container.  Proceed?", BoxAnswer::Yes);
  click("mnuEditSubCopyFromContainer", 0);
  EXPECT_EQ(state.screen.mActivePanel, kCursorPanel);
  EXPECT_EQ(spot(), std::pair(3, 4));
}

// Actions that end the blinking.

TEST_F(CursorCommandsTest, ClosingThePanelEndsABlinkEarly) {
  startWithPanel();
  const Pixels before = pixels();
  duringBlink([this] { shell.cmdCancel(); });
  clickAt(20, 3);
  EXPECT_EQ(pump.waitedMilliseconds, kPhaseMilliseconds);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  expectPixels(before);
}

TEST_F(CursorCommandsTest, ClosingTheProgramEndsABlinkEarly) {
  startWithPanel();
  const Pixels before = pixels();
  duringBlink([this] { EXPECT_TRUE(shell.queryUnload()); });
  clickAt(20, 3);
  EXPECT_EQ(pump.waitedMilliseconds, kPhaseMilliseconds);
  expectPixels(before);
}

TEST_F(CursorCommandsTest, ARefusalToCloseTheProgramLetsItBlinkOn) {
  startWithPanel();
  state.current().modified = true;
  boxes.expectAsked(
      "The following is not saved yet: \n\nIcon Seq 1    " + folder.file("given.cur") + "\n\nProceed to exit still?\n",
      BoxAnswer::No);
  duringBlink([this] { EXPECT_FALSE(shell.queryUnload()); });
  clickAt(20, 3);
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
}

TEST_F(CursorCommandsTest, ASwitchToAnotherContainerLeavesNoMarkAnywhere) {
  startWithCursor(3, 4);
  shell.document().iconsPanel.SwitchContainer(1);
  click("mnuFileSub", 2);
  state.current().neverSaved = false;
  const Pixels second = pixels();
  shell.document().iconsPanel.SwitchContainer(0);
  click("mnuFileSub", kSaveAsCursor);
  const Pixels first = pixels();
  pump.waitedMilliseconds = 0;
  duringBlink([this] { shell.document().iconsPanel.SwitchContainer(1); });
  clickAt(20, 3);
  EXPECT_EQ(pump.waitedMilliseconds, kPhaseMilliseconds);
  EXPECT_EQ(state.mCurContainer, 1);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  expectPixels(second);
  shell.document().iconsPanel.SwitchContainer(0);
  expectPixels(first);
}

TEST_F(CursorCommandsTest, ASwitchToAnEmptyContainerLeavesItEmpty) {
  startWithPanel();
  duringBlink([this] { shell.document().iconsPanel.SwitchContainer(5); });
  clickAt(20, 3);
  EXPECT_FALSE(state.current().present);
  EXPECT_EQ(state.picDisp.width(), 32 * state.gMagnification);
  EXPECT_TRUE(std::ranges::all_of(
      state.picDisp.pixels(), [](std::uint32_t pixel) { return static_cast<Color>(pixel & kColorBits) == kGround; }));
}

TEST_F(CursorCommandsTest, AnotherIconInTheSameContainerCarriesNoMark) {
  startWithPanel();
  const Bytes bytes = build(entryOf(anyPicture(32, 8)));
  const std::string other = folder.write("other.ico", std::string(bytes.begin(), bytes.end()));
  bool ok = false;
  shell.files().iconFiles.doOpenIconFile(other, false, ok);
  const Pixels expected = pixels();
  dialogs.paths = {folder.file("given.cur"), other};
  click("mnuFileSub", kOpenCursor);
  click("mnuFileSub", kSaveAsCursor);
  pump.waitedMilliseconds = 0;
  duringBlink([this] { click("mnuFileSub", 7); });
  clickAt(20, 3);
  EXPECT_EQ(state.current().path.trimmed(), other);
  EXPECT_EQ(pump.waitedMilliseconds, kPhaseMilliseconds);
  expectPixels(expected);
}

TEST_F(CursorCommandsTest, ASmallerNewIconDuringABlinkCarriesNoMark) {
  startWithPanel();
  duringBlink([this] { click("mnuFileSub", 3); });
  clickAt(20, 3);
  EXPECT_EQ(state.picImage.width(), 16);
  EXPECT_TRUE(samePixels(state.picImage, Surface(16, 16, kBlack)));
  EXPECT_TRUE(samePixels(state.picMask, Surface(16, 16, kWhite)));
  EXPECT_TRUE(samePixels(state.PicIcon, Surface(16, 16, kGround)));
  EXPECT_EQ(state.picDisp.width(), 16 * state.gMagnification);
}

// Actions that do not end it, and must not be affected by it.

TEST_F(CursorCommandsTest, WhatIsPaintedDuringABlinkStaysAndCanBeUndone) {
  startWithCursor(3, 4);
  const Color before = state.picImage.GetPixel(3, 4);
  shell.drawing().tools.selectTool(kPaint);
  shell.colour().selection.setCurrentColor(0x00FF00);
  duringBlink([this] { paint(3, 4); });
  click("mnuEnquiryCurrent", kReveal);
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
  EXPECT_EQ(state.picImage.GetPixel(3, 4), 0x00FF00);
  EXPECT_EQ(state.PicIcon.GetPixel(3, 4), 0x00FF00);
  click("mnuEditSub", 1);
  EXPECT_EQ(state.picImage.GetPixel(3, 4), before);
}

TEST_F(CursorCommandsTest, AnUndoDuringABlinkHolds) {
  startWithCursor(3, 4);
  const Surface before = state.picImage;
  shell.drawing().tools.selectTool(kPaint);
  shell.colour().selection.setCurrentColor(0x00FF00);
  paint(3, 4);
  duringBlink([this] { click("mnuEditSub", 1); });
  click("mnuEnquiryCurrent", kReveal);
  EXPECT_TRUE(samePixels(state.picImage, before));
}

TEST_F(CursorCommandsTest, ACopyToAContainerDuringABlinkCarriesNoMark) {
  startWithCursor(3, 4);
  const Surface image = state.picImage, mask = state.picMask;
  boxes.expectAsked("Copy current icon to Container 2.  Proceed?\n", BoxAnswer::Yes);
  duringBlink([this] { click("mnuEditSubCopyToContainer", 1); });
  click("mnuEnquiryCurrent", kReveal);
  EXPECT_TRUE(state.mIconRecs[1].used);
  EXPECT_TRUE(samePixels(state.picPanelImage[1], image));
  EXPECT_TRUE(samePixels(state.picPanelMask[1], mask));
}

TEST_F(CursorCommandsTest, TheColorPickerSeesTheIconNotTheMark) {
  startWithCursor(3, 4);
  const Color color = state.PicIcon.GetPixel(3, 4);
  click("mnuTools", 2);
  duringBlink([this] { clickAt(3, 4); });
  click("mnuEnquiryCurrent", kReveal);
  EXPECT_EQ(state.mCurrentColor, color);
}

TEST_F(CursorCommandsTest, AnotherMagnificationDuringABlinkIsKept) {
  startWithCursor(3, 4);
  shell.formResize(600, 600);
  const Surface large = state.picDisp;
  shell.formResize(400, 400);
  duringBlink([this] { shell.formResize(600, 600); });
  click("mnuEnquiryCurrent", kReveal);
  EXPECT_EQ(pump.waitedMilliseconds, kBlinkMilliseconds);
  EXPECT_TRUE(samePixels(state.picDisp, large));
}

// Revealing.

TEST_F(CursorCommandsTest, TheOriginalHotSpotIsRevealedFromBothMenusForCursorsOnly) {
  startWithCursor(3, 4);
  EXPECT_TRUE(enabled("mnuEnquiryCurrent", kReveal) && enabled("mnuPopUpSub", kRevealPopUp));
  click("mnuEnquiryCurrent", kReveal);
  click("mnuPopUpSub", kRevealPopUp);
  EXPECT_EQ(pump.waitedMilliseconds, 2 * kBlinkMilliseconds);
  shell.document().iconsPanel.SwitchContainer(1);
  click("mnuFileSub", 2);
  EXPECT_FALSE(enabled("mnuEnquiryCurrent", kReveal) || enabled("mnuPopUpSub", kRevealPopUp));
}

// Saving.

TEST_F(CursorCommandsTest, ProceedSavesWithTheValuesOfTheListsAndTheIconStaysWhatItWas) {
  const Bytes icon = build(entryOf(anyPicture(32, 4)));
  start(folder.write("former.ico", std::string(icon.begin(), icon.end())));
  shell.drawing().tools.selectTool(kPaint);
  paint(1, 1);
  click("mnuFileSub", kSaveAsCursor);
  EXPECT_EQ(spot(), std::pair(0, 0));
  clickAt(20, 31);
  cursors().setHotspotX(30);
  dialogs.paths = {folder.file("saved.cur")};
  shell.files().iconSaver.doSaveAs(SaveMode::Cursor);
  const std::string file = folder.read("saved.cur");
  ASSERT_GT(file.size(), 22U);
  EXPECT_EQ(file[2], 2);
  EXPECT_EQ(file[10], 30);
  EXPECT_EQ(file[12], 31);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_EQ(status(StatusPanel::Path), folder.file("former.ico"));
  EXPECT_EQ(state.current().sourceLabel.trimmed(), "ICO file");
  EXPECT_FALSE(state.current().isCursor);
  EXPECT_TRUE(state.current().modified);
}

TEST_F(CursorCommandsTest, ProceedDuringABlinkEndsItAndSavesNoMark) {
  startWithPanel();
  const Surface image = state.picImage, mask = state.picMask;
  dialogs.paths = {folder.file("saved.cur")};
  duringBlink([this] { shell.files().iconSaver.doSaveAs(SaveMode::Cursor); });
  clickAt(20, 3);
  EXPECT_EQ(pump.waitedMilliseconds, kPhaseMilliseconds);
  bool ok = false;
  cursors().doOpenCursorFile(folder.file("saved.cur"), ok);
  ASSERT_TRUE(ok);
  EXPECT_EQ(state.current().hotspotX, 20);
  EXPECT_TRUE(samePixels(state.picImage, image) && samePixels(state.picMask, mask));
}

TEST_F(CursorCommandsTest, SaveAsBitmapDuringABlinkSavesNoMark) {
  startWithCursor(3, 4);
  const auto saveBitmap = [this](const char* name) {
    dialogs.paths = {folder.file(name)};
    boxes.expectAsked("Background color used will be the currently selected color.\nOK?\n", BoxAnswer::Yes);
    click("mnuFileSub", 19);
  };
  saveBitmap("before.bmp");
  duringBlink([&] { saveBitmap("during.bmp"); });
  click("mnuEnquiryCurrent", kReveal);
  EXPECT_FALSE(folder.read("before.bmp").empty());
  EXPECT_EQ(folder.read("during.bmp"), folder.read("before.bmp"));
}

}  // namespace
}  // namespace gp::test
