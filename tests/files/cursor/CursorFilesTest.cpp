#include "files/CursorBuilder.h"
#include "files/FilesFixture.h"

#include <filesystem>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kInvalid = "\nInvalid cursor file";
constexpr const char* kFailed = "Failed to load this cursor";
constexpr const char* kStrange = "\nIncoming icon is a True Color icon but not of 24 BPP or 32 BPP.\n";
constexpr const char* kAlphaReminder =
    "Reminder:  The original cursor is with Alpha Channel.  To view the icon with\n"
    "alpha effects, or to edit the alpha values, invoke the Alpha Channel screen.\n\n"
    "(To remove Reminder, untick the related Option submenu)";
constexpr const char* kReadOnly =
    "File is read-only\n\nYou may save it under a different file name or reset the file attributes.";
constexpr int kFlashMilliseconds = 900;

class CursorFilesTest : public FilesTest {
 protected:
  CursorFiles& cursor = files.cursorFiles;

  bool openCursor(const std::string& path) {
    bool ok = true;
    cursor.doOpenCursorFile(path, ok);
    return ok;
  }
  std::string write(const CursorFile& file, const std::string& name = "given.cur") {
    return folder.write(name, build(file));
  }
  // Opens a cursor of 16 colours.
  std::string givenCursor(int hotspotX, int hotspotY) {
    const std::string path = write(cursorOf(anyPicture(32, 4), hotspotX, hotspotY));
    EXPECT_TRUE(openCursor(path));
    editor.calls.clear();
    return path;
  }
  // The cursor of givenCursor() is still there, with its changes and its Undo history.
  void expectFormerCursor(const std::string& path) {
    EXPECT_TRUE(record().used && record().present && record().isCursor && record().modified);
    EXPECT_EQ(record().path.trimmed(), path);
    EXPECT_TRUE(samePixels(state.picImage, decode(build(entryOf(anyPicture(32, 4)))).image));
    EXPECT_TRUE(panelIsUpToDate());
    EXPECT_TRUE(state.screen.fraTools[1]);
    EXPECT_EQ(state.screen.lblStatusPanel[0], path);
    EXPECT_EQ(rooms.drawing.history.undoCount(), 1);
    EXPECT_FALSE(state.screen.hourglass);
  }
  std::pair<int, int> spot() const { return {cursor.hotspotX(), cursor.hotspotY()}; }
};

// Opening.

TEST_F(CursorFilesTest, ACursorOpensWithItsPixelsAndItsHotSpot) {
  const Picture p = anyPicture(32, 4);
  const std::string path = write(cursorOf(p, 12, 31));
  record().modified = record().neverSaved = true;
  EXPECT_TRUE(openCursor(path));
  EXPECT_TRUE(record().used && record().present && record().isCursor);
  EXPECT_EQ(record().sourceLabel.trimmed(), "CUR file");
  EXPECT_EQ(record().path.trimmed(), path);
  EXPECT_EQ(record().dirColors, 16);
  EXPECT_EQ(record().bitCount, 4);
  EXPECT_EQ(record().hotspotX, 12);
  EXPECT_EQ(record().hotspotY, 31);
  EXPECT_FALSE(record().isDiscrepant() || record().hasAlpha || state.IsIconChanged());
  EXPECT_TRUE(samePixels(state.picImage, decode(build(entryOf(p))).image));
  EXPECT_TRUE(samePixels(state.picPanelMask[0], decode(build(entryOf(p))).mask));
}

TEST_F(CursorFilesTest, OpeningEndsTheRegionShowsChoosesTheChartAndBeginsUndoButEntersNoHistory) {
  EXPECT_TRUE(openCursor(write(cursorOf(anyPicture(32, 4)))));
  EXPECT_EQ(callsBesidesEnabling(), (std::vector<std::string>{"clearRegion", "clearAllTools", "chooseColorChart",
                                                              "clearUndoHistory", "recordUndo"}));
  EXPECT_GE(editor.count("UpdateCommands"), 1);
  EXPECT_EQ(rooms.drawing.history.undoCount(), 1);
}

TEST_F(CursorFilesTest, FilesThatAreNoSuchCursorsAreInvalid) {
  CursorFile outside = cursorOf(anyPicture(32, 4), 32, 0), icon = cursorOf(anyPicture(32, 4)), none = icon,
             several = icon, small = cursorOf(anyPicture(16, 4)), large = icon, empty = icon;
  icon.type = 1;
  none.count = 0;
  several.count = 2;
  several.offset = 38;
  small.width = small.height = 16;
  large.width = large.height = 48;
  empty.width = empty.height = 0;
  const std::string before = givenCursor(1, 2);
  for (const CursorFile& file : {outside, icon, none, several, small, large, empty}) {
    const std::string path = write(file, "bad.cur");
    boxes.expectTold(path + kInvalid, BoxIcon::Exclamation);
    EXPECT_FALSE(openCursor(path));
  }
  boxes.expectTold(folder.path("gone.cur") + kInvalid, BoxIcon::Exclamation);
  EXPECT_FALSE(openCursor(folder.path("gone.cur")));
  EXPECT_EQ(record().path.trimmed(), before) << "the icon that was there stays";
  EXPECT_TRUE(editor.calls.empty());
}

TEST_F(CursorFilesTest, APngPictureFailsToLoadAndTheFormerCursorStays) {
  const std::string before = givenCursor(1, 2);
  record().modified = true;
  CursorFile png;
  png.image = Bytes{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  boxes.expectTold(kFailed, BoxIcon::Exclamation);
  EXPECT_FALSE(openCursor(write(png, "png.cur")));
  expectFormerCursor(before);
}

TEST_F(CursorFilesTest, TrueColorOfOddDepthsIsRefusedAndTheFormerCursorStays) {
  for (const int bits : {0, 2, 16, 65535}) {
    const std::string before = givenCursor(1, 2);
    record().modified = true;
    CursorFile file = cursorOf(anyPicture(32, 32));
    file.picture.headerBits = bits;
    const std::string path = write(file, "odd.cur");
    boxes.expectTold(path + kStrange, BoxIcon::Information);
    EXPECT_FALSE(openCursor(path)) << bits;
    expectFormerCursor(before);
  }
}

TEST_F(CursorFilesTest, AFileCutAnywhereOpensOrIsRefusedWithItsText) {
  const Bytes whole = build(cursorOf(anyPicture(32, 24), 3, 4));
  constexpr std::size_t kOffsetEnds = 19, kBitsBegin = 36, kStep = 37;
  for (std::size_t size = 0; size < whole.size(); size += size < 64 ? 1 : kStep) {
    const std::string path =
        folder.write("cut.cur", Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
    if (size < kOffsetEnds)
      boxes.expectTold(path + kInvalid, BoxIcon::Exclamation);
    else if (size <= kBitsBegin)
      boxes.expectTold(path + kStrange, BoxIcon::Information);
    EXPECT_EQ(openCursor(path), size > kBitsBegin) << size;
    EXPECT_TRUE(boxes.done()) << size;
  }
}

TEST_F(CursorFilesTest, AlphaIsKeptAndRemindedOfWhereTheOptionIsOn) {
  const Picture p = anyPicture(32, 32);
  const std::string path = write(cursorOf(p));
  state.options.flagMessageIfAlpha = true;
  state.options.alertIfBadHeader = true;
  boxes.expectTold(kAlphaReminder, BoxIcon::Information);
  EXPECT_TRUE(openCursor(path));
  EXPECT_EQ(pump.waitedMilliseconds, 400);
  EXPECT_TRUE(record().hasAlpha);
  EXPECT_EQ(record().bitCount, 32);
  EXPECT_EQ(record().bihBitCount, 32);
  EXPECT_EQ(state.mAlphaRecs[0].at(4, 5), p.color(4, 5).a);
  state.options.flagMessageIfAlpha = false;
  EXPECT_TRUE(openCursor(path));
  EXPECT_EQ(pump.waitedMilliseconds, 400);
}

TEST_F(CursorFilesTest, TheOpenCommandAsksOpensAndChoosesTheChart) {
  const std::string path = write(cursorOf(blackAndWhitePicture(32), 1, 2));
  dialogs.paths = {path};
  state.screen.colorFrame = ColorFrame::Chart256;
  cursor.doMnuFileOpenCursor();
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(dialogs.requests[0].filters, (std::vector<FileFilter>{{"Cursor files (*.cur)", "*.cur"}}));
  EXPECT_EQ(state.process.mCommandFile, path);
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart16);
}

TEST_F(CursorFilesTest, TheOpenCommandEndsOnCancelOnRefusalAndOnFailure) {
  givenCursor(1, 2);
  dialogs.paths = {""};
  cursor.doMnuFileOpenCursor();
  record().modified = true;
  editor.askSaveProceeds = false;
  cursor.doMnuFileOpenCursor();
  EXPECT_EQ(dialogs.requests.size(), 1u);
  editor.askSaveProceeds = true;
  const std::string bad = folder.write("bad.cur", {1});
  dialogs.paths = {bad};
  boxes.expectTold(bad + kInvalid, BoxIcon::Exclamation);
  cursor.doMnuFileOpenCursor();
  EXPECT_EQ(state.process.mCommandFile, "");
  EXPECT_EQ(editor.count("chooseColorChart"), 0);
}

// The Panel.

TEST_F(CursorFilesTest, ThePanelOpensWithTheHotSpotOfTheCursorAndShowsItOnce) {
  givenCursor(7, 30);
  saver.saveAsCursor();
  EXPECT_EQ(state.screen.mActivePanel, kCursorPanel);
  EXPECT_EQ(spot(), std::pair(7, 30));
  EXPECT_EQ(pump.waitedMilliseconds, kFlashMilliseconds);
}

TEST_F(CursorFilesTest, ThePanelOpensAtZeroForIconsAndForSpotsOutside) {
  givenCursor(7, 30);
  record().isCursor = false;
  cursor.openPanel();
  EXPECT_EQ(spot(), std::pair(0, 0));
  record().isCursor = true;
  for (const auto& [x, y] : {std::pair{32, 5}, {5, 32}, {-1, 5}, {5, -1}}) {
    record().hotspotX = static_cast<std::int16_t>(x);
    record().hotspotY = static_cast<std::int16_t>(y);
    cursor.openPanel();
    EXPECT_EQ(spot(), std::pair(0, 0)) << x << "," << y;
  }
}

TEST_F(CursorFilesTest, TheListsHoldZeroTo31AndTellTheView) {
  cursor.setHotspotX(31);
  cursor.setHotspotY(17);
  EXPECT_EQ(display.count(DisplayPart::SidePanel), 2);
  for (const int beyond : {-1, 32, 100000}) {
    cursor.setHotspotX(beyond);
    cursor.setHotspotY(beyond);
  }
  EXPECT_EQ(spot(), std::pair(31, 17));
}

// Another icon while the Panel is open.

TEST_F(CursorFilesTest, AnotherCursorUnderThePanelStartsTheListsAtItsOwnHotSpotAndTellsTheView) {
  givenCursor(7, 30);
  cursor.openPanel();
  cursor.setHotspotByClick(2, 29);
  std::vector<std::pair<int, int>> seen;
  display.onChanged = [&](DisplayPart part) {
    if (part == DisplayPart::SidePanel) seen.push_back(spot());
  };
  EXPECT_TRUE(openCursor(write(cursorOf(anyPicture(32, 8), 12, 5), "other.cur")));
  EXPECT_EQ(seen, (std::vector{std::pair(12, 5)}));
  EXPECT_EQ(spot(), std::pair(12, 5));
  dialogs.paths = {folder.path("saved.cur")};
  saver.doSaveAs(SaveMode::Cursor);
  const Bytes file = bytesOf(folder.path("saved.cur"));
  ASSERT_GT(file.size(), 22u);
  EXPECT_EQ(Bytes(file.begin() + 10, file.begin() + 14), (Bytes{12, 0, 5, 0}));
}

TEST_F(CursorFilesTest, TheSameFileOpenedAgainUnderThePanelStartsTheListsAgain) {
  const std::string path = givenCursor(7, 30);
  cursor.openPanel();
  cursor.setHotspotX(2);
  EXPECT_TRUE(openCursor(path));
  EXPECT_EQ(spot(), std::pair(7, 30));
}

TEST_F(CursorFilesTest, AnIconUnderThePanelIsSavedWithTheHotSpotAtZero) {
  givenCursor(7, 30);
  cursor.openPanel();
  EXPECT_TRUE(openQuietly(folder.write("a.ico", build(entryOf(anyPicture(32, 4))))));
  EXPECT_EQ(spot(), std::pair(0, 0));
  dialogs.paths = {folder.path("saved.cur")};
  saver.doSaveAs(SaveMode::Cursor);
  const Bytes file = bytesOf(folder.path("saved.cur"));
  ASSERT_GT(file.size(), 22u);
  EXPECT_EQ(Bytes(file.begin() + 10, file.begin() + 14), (Bytes{0, 0, 0, 0}));
}

// A container can hold values that no file contains.
TEST_F(CursorFilesTest, AHotSpotOutsideOfAnIconThatCameUpUnderThePanelCountsAsZero) {
  givenCursor(7, 30);
  cursor.openPanel();
  for (const auto& [x, y] : {std::pair{32, 5}, {5, 32}, {-1, 5}, {5, -1}}) {
    IconContainerRec outside = record();
    outside.hotspotX = static_cast<std::int16_t>(x);
    outside.hotspotY = static_cast<std::int16_t>(y);
    rooms.document.arrival.arrive(transparentIcon(32), outside);
    EXPECT_EQ(spot(), std::pair(0, 0)) << x << "," << y;
  }
}

TEST_F(CursorFilesTest, AnotherContainerUnderThePanelStartsTheListsAtItsOwnHotSpot) {
  givenCursor(7, 30);
  state.mCurContainer = 1;
  EXPECT_TRUE(openCursor(write(cursorOf(anyPicture(32, 4), 3, 4), "second.cur")));
  cursor.openPanel();
  cursor.setHotspotX(20);
  state.mCurContainer = 0;
  rooms.document.arrival.showCurrentContainer();
  EXPECT_EQ(spot(), std::pair(7, 30));
}

TEST_F(CursorFilesTest, AnotherEntryOfTheSameFileIsAnotherIcon) {
  const IcoFile file{{entryOf(anyPicture(32, 4)), entryOf(anyPicture(32, 8))}, 0, 1, {}};
  const std::string path = folder.write("two.ico", build(file));
  EXPECT_TRUE(openQuietly(path));
  cursor.openPanel();
  cursor.setHotspotX(20);
  forms.onMultiIcon = [&] {
    exchange.chosenIcon = decode(build(file), 0);
    exchange.gMultiIconResult = "1/00/32/32/16/4/16/4";
    exchange.gLoadAndReturn = false;
  };
  EXPECT_TRUE(open(path));
  EXPECT_EQ(state.screen.mActivePanel, kCursorPanel);
  EXPECT_EQ(spot(), std::pair(0, 0));
}

TEST_F(CursorFilesTest, WhatIsChosenForTheIconThatCameUpHolds) {
  givenCursor(7, 30);
  cursor.openPanel();
  EXPECT_TRUE(openQuietly(folder.write("a.ico", build(entryOf(anyPicture(32, 4))))));
  cursor.setHotspotX(20);
  EXPECT_EQ(spot(), std::pair(20, 0));
  cursor.setHotspotY(31);
  EXPECT_EQ(spot(), std::pair(20, 31));
}

TEST_F(CursorFilesTest, TheSpotIsShownOnlyWhileThePanelIsOpen) {
  givenCursor(1, 1);
  cursor.showHotspot();
  EXPECT_EQ(pump.waitedMilliseconds, 0);
  state.screen.mActivePanel = kCursorPanel;
  cursor.showHotspot();
  EXPECT_EQ(pump.waitedMilliseconds, kFlashMilliseconds);
}

TEST_F(CursorFilesTest, AClickTakesTheSpotAndShowsIt) {
  givenCursor(1, 1);
  state.screen.mActivePanel = kCursorPanel;
  cursor.setHotspotByClick(20, 3);
  EXPECT_EQ(spot(), std::pair(20, 3));
  EXPECT_EQ(pump.waitedMilliseconds, kFlashMilliseconds);
  for (const auto& [x, y] : {std::pair{-1, 5}, {32, 5}, {5, 32}}) cursor.setHotspotByClick(x, y);
  EXPECT_EQ(spot(), std::pair(20, 3));
  EXPECT_EQ(pump.waitedMilliseconds, kFlashMilliseconds);
}

TEST_F(CursorFilesTest, AClickWhileASpotIsShownIsIgnored) {
  givenCursor(1, 1);
  pump.inside = [this] { cursor.setHotspotByClick(20, 3); };
  cursor.openPanel();
  EXPECT_EQ(spot(), std::pair(1, 1));
  EXPECT_EQ(pump.waitedMilliseconds, kFlashMilliseconds);
}

TEST_F(CursorFilesTest, TheOriginalHotSpotIsRevealedWhateverTheListsHold) {
  givenCursor(3, 4);
  cursor.setHotspotX(20);
  cursor.revealOriginalHotspot();
  EXPECT_EQ(pump.waitedMilliseconds, kFlashMilliseconds);
  EXPECT_EQ(cursor.hotspotX(), 20);
  record().isCursor = false;
  cursor.revealOriginalHotspot();
  EXPECT_EQ(pump.waitedMilliseconds, kFlashMilliseconds) << "an icon has none";
}

// Saving.

TEST_F(CursorFilesTest, ProceedSavesWithTheHotSpotOfTheLists) {
  givenCursor(7, 30);
  cursor.openPanel();
  cursor.setHotspotX(2);
  cursor.setHotspotY(29);
  const std::string path = folder.path("saved.cur");
  dialogs.paths = {path};
  saver.doSaveAs(SaveMode::Cursor);
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(dialogs.requests[0].filters, (std::vector<FileFilter>{{"cursor files (*.cur)", "*.cur"}}));
  EXPECT_EQ(dialogs.requests[0].defaultExtension, "cur");
  EXPECT_EQ(dialogs.requests[0].fileName, "given");
  EXPECT_EQ(state.screen.mActivePanel, 0) << "the Panel has closed";
  const Bytes file = bytesOf(path);
  ASSERT_GT(file.size(), 22u);
  EXPECT_EQ(Bytes(file.begin(), file.begin() + 14), (Bytes{0, 0, 2, 0, 1, 0, 32, 32, 0, 0, 2, 0, 29, 0}));
}

TEST_F(CursorFilesTest, SavingACursorLeavesTheIconWhatItWas) {
  const std::string source = folder.write("former.ico", build(entryOf(anyPicture(32, 4))));
  EXPECT_TRUE(openQuietly(source));
  record().modified = true;
  state.picImage.fill(0x123456);
  cursor.openPanel();
  state.screen.lblStatusPanel.fill("");
  dialogs.paths = {folder.path("saved.cur")};
  saver.doSaveAs(SaveMode::Cursor);
  EXPECT_EQ(record().path.trimmed(), source);
  EXPECT_EQ(record().sourceLabel.trimmed(), "ICO file");
  EXPECT_FALSE(record().isCursor);
  EXPECT_TRUE(record().modified);
  EXPECT_FALSE(saver.mSaveFailed());
  EXPECT_TRUE(panelIsUpToDate());
  EXPECT_EQ(state.screen.lblStatusPanel[0], source) << "the status bar shows the icon again";
  EXPECT_EQ(editor.count("AddHistory " + folder.path("saved.cur")), 0);
  EXPECT_EQ(saver.lastSavedFile(), folder.path("saved.cur"));
}

TEST_F(CursorFilesTest, AReadOnlyFileIsReported) {
  givenCursor(1, 2);
  state.picImage.fill(0x123456);
  const std::string path = folder.write("kept.cur", {1, 2, 3});
  fs::permissions(path, fs::perms::owner_read);
  dialogs.paths = {path};
  boxes.expectTold(kReadOnly, BoxIcon::Exclamation);
  saver.doSaveAs(SaveMode::Cursor);
  EXPECT_EQ(bytesOf(path), (Bytes{1, 2, 3}));
  EXPECT_TRUE(saver.mSaveFailed());
  EXPECT_FALSE(panelIsUpToDate()) << "nothing was saved";
}

TEST_F(CursorFilesTest, AnyOtherFailureIsReportedInItsOwnSpelling) {
  givenCursor(1, 2);
  dialogs.paths = {folder.path("no/such.cur")};
  boxes.expectTold("Failed to save curosr", BoxIcon::Exclamation);
  saver.doSaveAs(SaveMode::Cursor);
  EXPECT_TRUE(saver.mSaveFailed());
}

TEST_F(CursorFilesTest, ProceedWhileTheSpotIsShownSavesNoMark) {
  const Picture p = anyPicture(32, 4);
  givenCursor(3, 4);
  const std::string path = folder.path("saved.cur");
  dialogs.paths = {path};
  pump.inside = [this] { saver.doSaveAs(SaveMode::Cursor); };
  cursor.openPanel();
  bool ok = false;
  cursor.doOpenCursorFile(path, ok);
  EXPECT_TRUE(ok);
  EXPECT_TRUE(samePixels(state.picImage, decode(build(entryOf(p))).image));
}

TEST_F(CursorFilesTest, ASavedCursorOpensAgainWithTheSamePixelsAndAlpha) {
  state.options.flagMessageIfAlpha = false;
  for (const int bits : {24, 32}) {
    EXPECT_TRUE(openCursor(write(cursorOf(anyPicture(32, bits), 9, 8))));
    const Surface image = state.picImage, mask = state.picMask;
    cursor.openPanel();
    const std::string path = folder.path("again.cur");
    dialogs.paths = {path};
    saver.doSaveAs(SaveMode::Cursor);
    EXPECT_TRUE(openCursor(path));
    EXPECT_EQ(record().bitCount, bits);
    EXPECT_EQ(record().hotspotX, 9);
    EXPECT_TRUE(samePixels(state.picImage, image) && samePixels(state.picMask, mask));
  }
}

}  // namespace
}  // namespace gp::test
