#include "files/FilesFixture.h"

#include <filesystem>

namespace gp::test {
namespace {

constexpr const char* kInvalid =
    "\n\nInvalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.\n"
    "Please try to use Open Bitmap File menu instead.";
constexpr const char* kFailed = "\nFailed to load this file";
constexpr const char* kAlphaReminder =
    "\nReminder:  The incoming icon is with Alpha Channel.  To view the icon with\n"
    "alpha effects, or to edit the alpha values, invoke the Alpha Channel screen.\n\n"
    "(To remove Reminder, untick the related Option submenu)";
constexpr const char* kHeaderReminder =
    "\nReminder:  Header entries in the original file are discrepant.  (i) To permanently\n"
    "correct the entries when the current image itself is OK, run Save icon function\n"
    "of this program (until then, you see an asterisk in the Status Bar).  (ii) To view\n"
    "the original header entries, run Enquiry - Original Header Entry (you will be able\n"
    "to salvage the file basing on bitmap header entry instead, irrespective of the\n"
    "actual color depth.)\n\n"
    "(To remove Reminder, untick the related Option submenu)";

using IconOpeningTest = FilesTest;

TEST_F(IconOpeningTest, AnOldIconWithoutBitCountLoadsByItsColorCountWithoutAsterisk) {
  EXPECT_TRUE(open(folder.write("old.ico", build(entryOf(anyPicture(32, 4), 16, 0)))));
  EXPECT_EQ(record().bitCount, 4);
  EXPECT_EQ(record().dirColors, 16);
  EXPECT_FALSE(record().isDiscrepant());
}

TEST_F(IconOpeningTest, AnOldIconWithoutAnyDepthLoadsAs256ColorsWithoutAsterisk) {
  EXPECT_TRUE(open(folder.write("old.ico", build(entryOf(anyPicture(32, 8), 0, 0)))));
  EXPECT_EQ(record().bitCount, 8);
  EXPECT_EQ(record().dirColors, 256);
  EXPECT_FALSE(record().isDiscrepant());
}

TEST_F(IconOpeningTest, AZeroDirectoryOverTrueColorLoadsAs256ColorsWithAsteriskAndReminder) {
  boxes.expectTold(kHeaderReminder, BoxIcon::Information);
  EXPECT_TRUE(open(folder.write("lie.ico", build(entryOf(anyPicture(32, 24), 0, 0)))));
  EXPECT_EQ(record().dirColors, 256);
  EXPECT_EQ(record().bitCount, 8);
  EXPECT_EQ(record().bihColors, -1);
  EXPECT_EQ(record().bihBitCount, 24);
  EXPECT_TRUE(record().isDiscrepant());
}

TEST_F(IconOpeningTest, AColorCountOf255OpensAs16ColorsOfEightBits) {
  EXPECT_TRUE(open(folder.write("c255.ico", build(entryOf(anyPicture(32, 8), 255, 8)))));
  EXPECT_EQ(record().dirColors, 16);
  EXPECT_EQ(record().bitCount, 8);
}

// Files that the probe refuses although they hold icons.

std::string offerOf(int icons) {
  return kInvalid + ("\n\nIt holds " + std::to_string(icons) + " icons of these sizes all the same. Show them?");
}
constexpr const char* kOfferOfOne = "\n\nIt holds 1 icon of these sizes all the same. Show it?";

class OfferedIcons : public FilesTest {
 protected:
  Entry large = sized(anyEntry(48, 24), 0), other = sized(anyEntry(48, 4), 64);
  const IcoFile twoSizes = file({anyEntry(16, 4), anyEntry(48, 8)});

  static IcoFile file(std::vector<Entry> entries) { return {std::move(entries), 0, 1, {}}; }
  // With a side that the directory states, 0 for 256 pixels.
  static Entry sized(Entry entry, int side) {
    entry.width = entry.height = side;
    return entry;
  }
  std::string write(const IcoFile& icons) { return folder.write("offered.ico", build(icons)); }
  void expectOffer(const std::string& text, BoxAnswer answer) {
    boxes.expect(text, BoxButtons::YesNo, BoxIcon::Exclamation, answer);
  }
  // The user loads an entry, where the browser is shown for the proposed container.
  void userLoads(const IcoFile& icons, int index, int proposed, const std::string& answer) {
    forms.onMultiIcon = [=, this] {
      EXPECT_EQ(exchange.gMultiIconFile, folder.path("offered.ico"));
      EXPECT_EQ(exchange.gMultiIconResult, std::to_string(proposed));
      EXPECT_FALSE(exchange.gAddToFile);
      exchange.chosenIcon = decode(build(icons), index);
      exchange.gMultiIconResult = answer;
    };
  }
};

TEST_F(OfferedIcons, AFileWithout32x32OrWithA256x256FirstIsOfferedWithItsNumberOfIcons) {
  const std::pair<IcoFile, int> cases[] = {{twoSizes, 2},
                                           {file({large, anyEntry(32, 4), anyEntry(16, 4), other}), 2},
                                           {file({large, anyEntry(24, 8), anyEntry(32, 8), anyEntry(48, 8)}), 3}};
  for (const auto& [icons, count] : cases) {
    const std::string path = write(icons);
    expectOffer(path + offerOf(count), BoxAnswer::No);
    EXPECT_FALSE(open(path));
    EXPECT_EQ(forms.multiIcons, 0);
    EXPECT_FALSE(record().used);
  }
}

TEST_F(OfferedIcons, OneIconIsOfferedAsOne) {
  for (const IcoFile& icons : {file({large, anyEntry(16, 4)}), file({other, anyEntry(48, 4)})}) {
    const std::string path = write(icons);
    expectOffer(path + kInvalid + kOfferOfOne, BoxAnswer::No);
    EXPECT_FALSE(open(path));
  }
}

TEST_F(OfferedIcons, YesShowsThemAndTheChosenOneIsLoaded) {
  for (const bool useBrowser : {true, false}) {
    const IcoFile icons = file({large, anyEntry(16, 8), anyEntry(32, 4)});
    const std::string path = write(icons);
    expectOffer(path + offerOf(2), BoxAnswer::Yes);
    userLoads(icons, 1, 0, "1/01/16/16/256/8/256/8");
    EXPECT_TRUE(open(path, useBrowser));
    EXPECT_EQ(record().path.trimmed(), path);
    EXPECT_EQ(record().multiIconIndex, 1);
    EXPECT_TRUE(record().fromMultiIconFile);
    EXPECT_TRUE(samePixels(state.picImage, decode(build(icons), 1).image) && panelIsUpToDate());
    EXPECT_EQ(editor.count("AddHistory " + path), useBrowser ? 1 : 2);
  }
}

TEST_F(OfferedIcons, TheRemindersFollow) {
  const IcoFile icons = file({large, anyEntry(32, 32)});
  const std::string path = write(icons);
  expectOffer(path + kInvalid + kOfferOfOne, BoxAnswer::Yes);
  boxes.expectTold(kAlphaReminder, BoxIcon::Information);
  userLoads(icons, 1, 0, "1/01/32/32/-1/32/-1/32");
  EXPECT_TRUE(open(path));
}

TEST_F(OfferedIcons, ClosingTheBrowserKeepsTheIconThatIsThere) {
  const std::string before = given(entryOf(anyPicture(16, 4)));
  record().modified = true;
  const std::string path = write(twoSizes);
  expectOffer(path + offerOf(2), BoxAnswer::Yes);
  EXPECT_FALSE(open(path));
  EXPECT_EQ(forms.multiIcons, 1);
  EXPECT_EQ(record().path.trimmed(), before);
  EXPECT_TRUE(record().modified);
  EXPECT_EQ(editor.calls, std::vector<std::string>{});
}

TEST_F(OfferedIcons, FilesWithoutSuchIconsOrThatTheBrowserCannotListAreNotOffered) {
  Bytes cut = build(twoSizes), cursor = cut;
  cut.resize(cut.size() - 1);
  cursor[2] = 2;
  Entry wide = anyEntry(32, 4);
  wide.width = 16;
  for (const Bytes& bytes : {cut, cursor, build(file({large})), build(file({large, other, wide})), build(other)}) {
    const std::string path = folder.write("bad.ico", bytes);
    boxes.expectTold(path + kInvalid, BoxIcon::Exclamation);
    EXPECT_FALSE(open(path));
  }
  EXPECT_EQ(forms.multiIcons, 0);
}

TEST_F(OfferedIcons, TheQuietOpeningStaysQuiet) {
  EXPECT_FALSE(openQuietly(write(twoSizes)));
  EXPECT_EQ(forms.multiIcons, 0);
}

TEST_F(OfferedIcons, ADropProposesItsContainerAndSwitchesThereForTheLoad) {
  const std::string before = given(entryOf(anyPicture(16, 4)));
  const Surface image = state.picImage;
  const std::string path = write(twoSizes);
  expectOffer(path + offerOf(2), BoxAnswer::Yes);
  userLoads(twoSizes, 1, 3, "4/01/48/48/256/8/256/8");
  files.iconFiles.offerIconsOfFile(path, 3);
  EXPECT_EQ(state.mCurContainer, 3);
  EXPECT_EQ(record().path.trimmed(), path);
  EXPECT_TRUE(samePixels(state.picImage, decode(build(twoSizes), 1).image) && panelIsUpToDate());
  EXPECT_EQ(state.mIconRecs[0].path.trimmed(), before);
  EXPECT_TRUE(samePixels(state.picPanelImage[0], image));
}

TEST_F(OfferedIcons, ADropOnUnsavedWorkAsksBeforeTheLoad) {
  const std::string before = given(entryOf(anyPicture(16, 4)));
  record().modified = true;
  editor.askSaveProceeds = false;
  const std::string path = write(twoSizes);
  for (const int current : {0, 1}) {
    state.mCurContainer = current;
    expectOffer(path + offerOf(2), BoxAnswer::Yes);
    userLoads(twoSizes, 1, 0, "1/01/48/48/256/8/256/8");
    files.iconFiles.offerIconsOfFile(path, 0);
    EXPECT_EQ(editor.count("AskSaveCurrent "), current + 1);
    EXPECT_EQ(state.mIconRecs[0].path.trimmed(), before);
    EXPECT_TRUE(state.mIconRecs[0].modified);
  }
}

TEST_F(OfferedIcons, ADropOfAnyOtherFileThatFailsSaysNothing) {
  for (const Bytes& bytes : {build(entryOf(anyPicture(32, 8), 0, 3)), Bytes{1, 2, 3}, build(file({large}))})
    files.iconFiles.offerIconsOfFile(folder.write("bad.ico", bytes), 0);
  EXPECT_EQ(forms.multiIcons, 0);
}

TEST_F(IconOpeningTest, ThreeSameSizeEntriesOpenTheEightBitOne) {
  const Picture eight = anyPicture(32, 8);
  const Bytes file =
      build(IcoFile{{entryOf(anyPicture(32, 4)), entryOf(eight), entryOf(anyPicture(32, 24))}, 0, 1, {}});
  EXPECT_TRUE(open(folder.write("three.ico", file), false));
  EXPECT_EQ(record().bitCount, 8);
  EXPECT_TRUE(record().fromMultiIconFile);
  EXPECT_EQ(record().multiIconIndex, 1) << "a later save must find the entry that was opened";
  EXPECT_TRUE(samePixels(state.picImage, decode(file, 1).image));
}

TEST_F(IconOpeningTest, AMultiIconFileWithOneUsableEntryStillCountsAsOne) {
  Entry large = entryOf(anyPicture(48, 4));
  large.width = large.height = 64;
  EXPECT_TRUE(open(folder.write("m.ico", build(IcoFile{{entryOf(anyPicture(32, 4)), large}, 0, 1, {}})), false));
  EXPECT_TRUE(record().fromMultiIconFile);
}

TEST_F(IconOpeningTest, ASingleEntryOf16By32IsReportedWithItsSizes) {
  Entry entry = entryOf(anyPicture(32, 4));
  entry.width = 16;
  boxes.expectTold("Width and height are different:   16 by 32\nPlease try to use Open Bitmap File menu instead.",
                   BoxIcon::Exclamation);
  EXPECT_FALSE(open(folder.write("wide.ico", build(entry))));
}

TEST_F(IconOpeningTest, A16BitIconIsReadAndThenRefusedAndTheFormerIconStays) {
  const std::string before = given(entryOf(anyPicture(16, 4)));
  const Surface image = state.picImage;
  const std::string path = folder.write("hi.ico", build(entryOf(anyPicture(32, 32), 0, 16)));
  boxes.expectTold(path + "\nIncoming icon is a True Color icon but not of 24 BPP or 32 BPP.\n", BoxIcon::Information);
  EXPECT_FALSE(open(path));
  EXPECT_EQ(record().path.trimmed(), before);
  EXPECT_TRUE(samePixels(state.picImage, image) && panelIsUpToDate());
  EXPECT_EQ(editor.calls, std::vector<std::string>{});
}

TEST_F(IconOpeningTest, StrangeDepthsAndPngImagesFailToLoadAndTheFormerIconStays) {
  const std::string before = given(entryOf(anyPicture(48, 4)));
  const Surface image = state.picImage;
  record().modified = true;
  Entry png = entryOf(anyPicture(32, 32));
  png.image = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  for (const Entry& entry : {entryOf(anyPicture(32, 8), 0, 3), png}) {
    const std::string path = folder.write("strange.ico", build(entry));
    boxes.expectTold(path + kFailed, BoxIcon::Exclamation);
    EXPECT_FALSE(open(path));
    EXPECT_FALSE(openQuietly(path));
    EXPECT_EQ(record().path.trimmed(), before);
    EXPECT_TRUE(record().modified);
    EXPECT_EQ(record().size, 48);
    EXPECT_TRUE(samePixels(state.picImage, image) && panelIsUpToDate());
    EXPECT_EQ(rooms.drawing.history.undoCount(), 1);
    EXPECT_FALSE(state.screen.hourglass);
  }
}

TEST_F(IconOpeningTest, TheRecordTellsWhereTheIconCameFrom) {
  record().modified = record().neverSaved = record().isCursor = true;
  record().hotspotX = 5;
  record().multiIconIndex = 3;
  const std::string path = folder.write("name with blanks.ico", build(entryOf(anyPicture(24, 8))));
  EXPECT_TRUE(open(path));
  EXPECT_TRUE(record().used);
  EXPECT_TRUE(record().present);
  EXPECT_EQ(record().sourceLabel.trimmed(), "ICO file");
  EXPECT_EQ(record().path.trimmed(), path);
  EXPECT_EQ(record().size, 24);
  EXPECT_FALSE(record().hasAlpha);
  EXPECT_FALSE(record().fromMultiIconFile);
  EXPECT_FALSE(record().isCursor);
  EXPECT_EQ(record().hotspotX, 0);
  EXPECT_EQ(record().multiIconIndex, 0);
  EXPECT_FALSE(state.IsIconChanged());
}

TEST_F(IconOpeningTest, OpeningEndsTheRegionShowsChoosesTheChartAndRecordsInThisOrder) {
  const std::string path = folder.write("a.ico", build(entryOf(anyPicture(48, 8))));
  EXPECT_TRUE(open(path));
  EXPECT_EQ(callsBesidesEnabling(), (std::vector<std::string>{"clearRegion", "clearAllTools", "chooseColorChart",
                                                              "clearUndoHistory", "recordUndo", "AddHistory " + path}));
  EXPECT_EQ(rooms.drawing.history.undoCount(), 1) << "the icon as it was opened is the baseline";
}

TEST_F(IconOpeningTest, OpeningOverAnIconWithStepsAndARegionStartsAgain) {
  given(entryOf(anyPicture(32, 4)));
  rooms.clipboard.hold(Surface(4, 4, kWhite));
  rooms.drawing.clipboardCommands.doPaste(true);
  rooms.drawing.history.recordUndo();
  ASSERT_TRUE(state.mRegionExists && rooms.drawing.history.canUndo());
  const Bytes file = build(entryOf(anyPicture(48, 8)));
  EXPECT_TRUE(open(folder.write("a.ico", file)));
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_FALSE(rooms.drawing.history.canUndo());
  EXPECT_EQ(rooms.drawing.tools.selectedTool(), kNoTool);
  EXPECT_EQ(state.picDisp.width(), 48 * state.gMagnification);
  EXPECT_TRUE(samePixels(state.picImage, decode(file).image));
}

TEST_F(IconOpeningTest, PixelsReachTheEditingAreaAndTheContainer) {
  const Bytes file = build(entryOf(anyPicture(16, 4)));
  EXPECT_TRUE(open(folder.write("a.ico", file)));
  const Decoded d = decode(file);
  EXPECT_TRUE(samePixels(state.picImage, d.image));
  EXPECT_TRUE(samePixels(state.picMask, d.mask));
  EXPECT_TRUE(samePixels(state.picPanelImage[0], d.image));
  EXPECT_TRUE(samePixels(state.picPanelMask[0], d.mask));
  EXPECT_EQ(state.PicIcon.width(), 16);
}

TEST_F(IconOpeningTest, AnIconWithAlphaKeepsItsValuesFlashesTwiceAndReminds) {
  const Bytes file = build(entryOf(anyPicture(32, 32)));
  boxes.expectTold(kAlphaReminder, BoxIcon::Information);
  EXPECT_TRUE(open(folder.write("alpha.ico", file)));
  EXPECT_EQ(record().bitCount, 32);
  EXPECT_TRUE(record().hasAlpha);
  EXPECT_EQ(state.mAlphaRecs[0], decode(file).alpha);
  EXPECT_EQ(pump.waitedMilliseconds, 400);
  EXPECT_TRUE(state.screen.imgAlphaOnStatusPanel);
}

TEST_F(IconOpeningTest, TheAlphaReminderCanBeTurnedOff) {
  state.options.flagMessageIfAlpha = false;
  EXPECT_TRUE(open(folder.write("alpha.ico", build(entryOf(anyPicture(32, 32))))));
  EXPECT_EQ(pump.waitedMilliseconds, 0);
}

TEST_F(IconOpeningTest, A24BitIconHasNoAlpha) {
  EXPECT_TRUE(open(folder.write("t.ico", build(entryOf(anyPicture(32, 24))))));
  EXPECT_EQ(record().bitCount, 24);
  EXPECT_EQ(record().dirColors, -1);
  EXPECT_FALSE(record().hasAlpha);
  EXPECT_EQ(state.mAlphaRecs[0], AlphaMatrix());
}

TEST_F(IconOpeningTest, BothRemindersComeAlphaFirst) {
  boxes.expectTold(kAlphaReminder, BoxIcon::Information);
  boxes.expectTold(kHeaderReminder, BoxIcon::Information);
  EXPECT_TRUE(open(folder.write("both.ico", build(entryOf(anyPicture(32, 24), 0, 32)))));
}

TEST_F(IconOpeningTest, TheHeaderReminderCanBeTurnedOff) {
  state.options.alertIfBadHeader = false;
  EXPECT_TRUE(open(folder.write("lie.ico", build(entryOf(anyPicture(32, 24), 0, 0)))));
}

constexpr const char* kLowScreen =
    "The incoming icon is a True Color icon, but your display colors\n"
    "setting in Windows is below High Color basing on that when you\n"
    "started the program.  The icon may not be displayed correctly.\n\n"
    "Proceed still?";

TEST_F(IconOpeningTest, TrueColorOnAScreenOfFewColorsIsAskedForAndNoLeavesEverything) {
  const std::string before = given(entryOf(anyPicture(16, 4)));
  state.process.gScreenBPP = 8;
  boxes.expectAsked(kLowScreen, BoxAnswer::No);
  EXPECT_FALSE(open(folder.write("t.ico", build(entryOf(anyPicture(32, 24))))));
  EXPECT_EQ(record().path.trimmed(), before);
}

TEST_F(IconOpeningTest, TrueColorOnAScreenOfFewColorsOpensOnYes) {
  state.process.gScreenBPP = 8;
  boxes.expectAsked(kLowScreen, BoxAnswer::Yes);
  EXPECT_TRUE(open(folder.write("t.ico", build(entryOf(anyPicture(32, 24))))));
}

TEST_F(IconOpeningTest, APaletteIconIsNotAskedForOnAScreenOfFewColors) {
  state.process.gScreenBPP = 8;
  EXPECT_TRUE(open(folder.write("t.ico", build(entryOf(anyPicture(32, 8))))));
}

TEST_F(IconOpeningTest, TheQuietOpeningSaysNothingAndWritesNoHistory) {
  state.process.gScreenBPP = 8;
  const std::string path = folder.write("q.ico", build(entryOf(anyPicture(32, 24), 0, 32)));
  EXPECT_TRUE(openQuietly(path));
  EXPECT_EQ(editor.count("AddHistory " + path), 0);
  EXPECT_EQ(pump.waitedMilliseconds, 0);
  EXPECT_TRUE(record().present);
  EXPECT_EQ(state.screen.lblStatusPanel[static_cast<std::size_t>(StatusPanel::Size)], "32 x 32");
}

TEST_F(IconOpeningTest, TheQuietOpeningFailsWithoutAWord) {
  Entry wide = entryOf(anyPicture(32, 4));
  wide.width = 16;
  EXPECT_FALSE(openQuietly(folder.write("w.ico", build(wide))));
  EXPECT_FALSE(openQuietly(folder.write("text.ico", {'h', 'e', 'l', 'l', 'o'})));
  EXPECT_FALSE(openQuietly(folder.write("h.ico", build(entryOf(anyPicture(32, 32), 0, 16)))));
  EXPECT_FALSE(openQuietly(folder.write("p.ico", build(entryOf(anyPicture(32, 8), 0, 3)))));
  EXPECT_FALSE(openQuietly(folder.path("missing.ico")));
}

TEST_F(IconOpeningTest, ARefusedFileLeavesTheCurrentContainerAsItWas) {
  const std::string before = given(entryOf(anyPicture(16, 4)));
  const Surface image = state.picImage;
  const unsigned serial = state.iconSerial;
  const std::string bad = folder.write("bad.ico", {0, 0, 1, 0});
  boxes.expectTold(bad + kInvalid, BoxIcon::Exclamation);
  EXPECT_FALSE(open(bad));
  EXPECT_EQ(record().path.trimmed(), before);
  EXPECT_TRUE(record().present);
  EXPECT_EQ(state.iconSerial, serial);
  EXPECT_TRUE(samePixels(state.picImage, image) && panelIsUpToDate());
  EXPECT_EQ(editor.calls, std::vector<std::string>{});
}

TEST_F(IconOpeningTest, AFailedLoadTouchesNoOtherContainer) {
  const std::string before = given(entryOf(anyPicture(16, 32)));
  const Surface image = state.picPanelImage[0];
  const AlphaMatrix alpha = state.mAlphaRecs[0];
  state.mCurContainer = 1;
  EXPECT_FALSE(openQuietly(folder.write("p.ico", build(entryOf(anyPicture(32, 8), 0, 3)))));
  EXPECT_EQ(state.mIconRecs[0].path.trimmed(), before);
  EXPECT_TRUE(state.mIconRecs[0].present);
  EXPECT_TRUE(samePixels(state.picPanelImage[0], image));
  EXPECT_EQ(state.mAlphaRecs[0], alpha);
}

TEST_F(IconOpeningTest, WhatIsNoRegularFileIsRefusedAsInvalid) {
  std::filesystem::create_directory(folder.path("dir.ico"));
  for (const std::string& path :
       {folder.path("dir.ico"), folder.path("missing.ico"), std::string("/dev/zero"), folder.write("empty.ico", {})}) {
    boxes.expectTold(path + kInvalid, BoxIcon::Exclamation);
    EXPECT_FALSE(open(path));
  }
}

TEST_F(IconOpeningTest, UnusualNamesOpen) {
  const Bytes file = build(entryOf(anyPicture(16, 4)));
  for (const std::string& name :
       {std::string("two words.ico"), std::string("it's \"quoted\".ico"), std::string("\xC3\xA4\xC3\xB6.ico"),
        std::string("raw\xFF\xFE.ico"), std::string(250, 'n') + ".ico"}) {
    const std::string path = folder.write(name, file);
    EXPECT_TRUE(open(path)) << name;
  }
}

TEST_F(IconOpeningTest, APathOfMoreThan300CharactersOpensAndItsRecordKeepsItWhole) {
  const std::string deep = folder.path(std::string(200, 'd'));
  std::filesystem::create_directory(deep);
  const std::string path = deep + "/" + std::string(150, 'n') + ".ico";
  const Bytes file = build(entryOf(anyPicture(16, 4)));
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
  EXPECT_TRUE(open(path));
  EXPECT_EQ(record().path.trimmed(), path);
}

TEST_F(IconOpeningTest, TheMenuOpensTheChosenFileAndChoosesTheChart) {
  const std::string path = folder.write("a.ico", build(entryOf(blackAndWhitePicture(16))));
  state.process.mLastFolder = "/somewhere";
  state.screen.colorFrame = ColorFrame::Chart256;
  dialogs.paths = {path};
  files.iconFiles.doMnuFileOpenIcon();
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(dialogs.requests[0].filters, (std::vector<FileFilter>{{"Icon files (*.ico)", "*.ico"}}));
  EXPECT_EQ(dialogs.requests[0].folder, "/somewhere");
  EXPECT_EQ(state.process.mCommandFile, path);
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart16);
  dialogs.paths = {folder.write("true.ico", build(entryOf(anyPicture(16, 24))))};
  files.iconFiles.doMnuFileOpenIcon();
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart256);
}

TEST_F(IconOpeningTest, TheMenuDoesNothingOnCancelAndKeepsTheCommandFileAfterAFailure) {
  dialogs.paths = {""};
  files.iconFiles.doMnuFileOpenIcon();
  const std::string bad = folder.write("bad.ico", {1});
  dialogs.paths = {bad};
  boxes.expectTold(bad + kInvalid, BoxIcon::Exclamation);
  files.iconFiles.doMnuFileOpenIcon();
  EXPECT_EQ(state.process.mCommandFile, "");
  EXPECT_EQ(editor.count("chooseColorChart"), 0);
}

TEST_F(IconOpeningTest, TheMenuOffersToSaveFirstAndARefusalEndsIt) {
  given(entryOf(anyPicture(16, 4)));
  record().modified = true;
  editor.askSaveProceeds = false;
  files.iconFiles.doMnuFileOpenIcon();
  EXPECT_EQ(editor.count("AskSaveCurrent "), 1);
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(IconOpeningTest, ReadIconFileToImageChecksTypeIndexAndSize) {
  const std::string path = folder.write("a.ico", build(entryOf(anyPicture(24, 4))));
  const auto reads = [&](int index, bool checkSize, std::optional<ReadSize> size = {}) {
    return IconFiles::ReadIconFileToImage(path, index, checkSize, size).isRead();
  };
  EXPECT_TRUE(reads(0, true));
  EXPECT_TRUE(reads(0, true, ReadSize{24, 24}));
  EXPECT_FALSE(reads(1, true));
  EXPECT_FALSE(reads(-1, true));
  EXPECT_FALSE(reads(0, true, ReadSize{20, 20}));
  EXPECT_TRUE(reads(0, false, ReadSize{20, 20}));
  EXPECT_EQ(IconFiles::ReadIconFileToImage(path, 0, false, ReadSize{20, 20}).icon.width(), 20);
  EXPECT_EQ(IconFiles::ReadIconFileToImage(folder.path("missing"), 0, true).defect, IconDefect::NotReadable);
}

}  // namespace
}  // namespace gp::test
