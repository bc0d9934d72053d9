// Removing and repositioning in the browser. Files are compared byte by byte with those that the builder lays out.
#include "files/BrowserFixture.h"
#include "support/FullDisk.h"

namespace gp::test {
namespace {

constexpr const char* kNotUpdated = "Failed to update the file for this icon.";

class BrowserRearrangingTest : public BrowserTest {
 protected:
  Entry a = anyEntry(16, 4), b = anyEntry(32, 8), c = anyEntry(48, 24), other = anyEntry(64, 8);

  Bytes laidOut(std::vector<Entry> entries) const { return build(iconFile(std::move(entries))); }
  void expectRemovalAsked(BoxAnswer answer) {
    boxes.expectAsked("Permanently remove the selected icon from the multi-icon file.\n" + path +
                          "\n\nSure to remove this icon permanently?\n\n",
                      answer);
  }
  void remove(int item) {
    browser->clickIcon(item);
    expectRemovalAsked(BoxAnswer::Yes);
    browser->cmdRemove();
  }
  void expectProceedAsked(BoxAnswer answer) {
    boxes.expectAsked(path + "\nProceed to save re-positioned sequence of icons in file?\n", answer);
  }
  void expectChangeTold() {
    boxes.expectTold(path + "\n\nThis file has been changed meanwhile.\nNothing has been written to it.",
                     BoxIcon::None);
  }
  // Reverses a file of three entries in the pane.
  void reverse() {
    browser->cmdReposition();
    browser->cmdShiftDown(), browser->cmdShiftDown();
    browser->clickRepositionIcon(0);
    browser->cmdShiftDown();
  }
  std::uint32_t offsetOf(int entry) const { return parseIconDirectory(bytesOf(path)).entry(entry).imageOffset; }
};

// Removing.

TEST_F(BrowserRearrangingTest, RemovingTheFirstOfThreeLowersTheOtherOffsetsByItsSizeAnd16) {
  browse({a, b, c});
  const std::uint32_t second = offsetOf(1), third = offsetOf(2);
  const auto less = static_cast<std::uint32_t>(a.image.size() + 16);
  remove(0);
  EXPECT_EQ(offsetOf(0), second - less);
  EXPECT_EQ(offsetOf(1), third - less);
  EXPECT_EQ(bytesOf(path), laidOut({b, c}));
}

TEST_F(BrowserRearrangingTest, RemovingLeavesAllOtherEntriesAsTheyWere) {
  browse({a, b, other, c});
  remove(1);
  EXPECT_EQ(bytesOf(path), laidOut({a, other, c}));
  browse({a, b, c});
  remove(2);
  EXPECT_EQ(bytesOf(path), laidOut({a, b}));
}

TEST_F(BrowserRearrangingTest, RemovingGoesByTheRefNotByThePlaceInTheList) {
  browse({other, a, other, b});
  remove(0);
  EXPECT_EQ(bytesOf(path), laidOut({other, other, b}));
  EXPECT_EQ(browser->lisIcons(), (Items{"Ref 3  \t8 BPP\t256-Color\t   32 x  32"}));
}

TEST_F(BrowserRearrangingTest, TheSamePlaceIsSelectedAfterwardsOrTheLast) {
  browse({a, b, c, anyEntry(24, 4)});
  remove(1);
  EXPECT_EQ(browser->selectedIcon(), 1);
  EXPECT_TRUE(previews(bytesOf(path), 1));
  remove(2);
  EXPECT_EQ(browser->selectedIcon(), 1);
  remove(0);
  EXPECT_EQ(browser->selectedIcon(), 0);
  EXPECT_FALSE(browser->hasSeveralIcons());
  EXPECT_EQ(bytesOf(path), laidOut({c}));
}

TEST_F(BrowserRearrangingTest, NothingIsSelectedWhenOnlyOtherSizesAreLeft) {
  browse({a, other});
  remove(0);
  EXPECT_EQ(browser->selectedIcon(), -1);
  EXPECT_EQ(browser->picIconInFile().width(), 0);
  EXPECT_EQ(bytesOf(path), laidOut({other}));
}

TEST_F(BrowserRearrangingTest, TheAddPositionsFollowARemoval) {
  browse({a, b, c}, true);
  EXPECT_EQ(browser->addPositionCount(), 4);
  remove(0);
  EXPECT_EQ(browser->addPositionCount(), 3);
  EXPECT_EQ(browser->addPosition(), 2);
}

TEST_F(BrowserRearrangingTest, ScatteredImagesAreLaidOutInOrder) {
  Entry swappedA = a, swappedB = b;
  swappedA.offset = static_cast<std::uint32_t>(6 + 3 * 16 + a.image.size());
  swappedA.bytesInRes = static_cast<std::uint32_t>(b.image.size());
  swappedB.offset = 6 + 3 * 16;
  swappedB.bytesInRes = static_cast<std::uint32_t>(a.image.size());
  browse({swappedA, swappedB, c});
  browser->clickIcon(2);
  expectRemovalAsked(BoxAnswer::Yes);
  browser->cmdRemove();
  Entry expectedA = a, expectedB = b;
  std::swap(expectedA.image, expectedB.image);
  EXPECT_EQ(bytesOf(path), laidOut({expectedA, expectedB}));
}

TEST_F(BrowserRearrangingTest, WithoutYesNothingIsRemoved) {
  browse({a, b, c});
  expectRemovalAsked(BoxAnswer::No);
  browser->cmdRemove();
  EXPECT_EQ(bytesOf(path), laidOut({a, b, c}));
  EXPECT_EQ(browser->lisIcons().size(), 3u);
}

TEST_F(BrowserRearrangingTest, TheLastIconStays) {
  browse({a});
  exchange.gFileInPanel = true;
  boxes.expectTold("Not allowed to delete the last icon in file", BoxIcon::None);
  browser->cmdRemove();
  EXPECT_EQ(bytesOf(path), laidOut({a}));
}

TEST_F(BrowserRearrangingTest, AFileInAContainerKeepsItsEntries) {
  browse({a, b});
  exchange.gFileInPanel = true;
  boxes.expectTold(
      "As currently there is at least an icon from this file loaded in Icons Panel, \nhence no deletion is allowed.",
      BoxIcon::None);
  browser->cmdRemove();
  EXPECT_EQ(bytesOf(path), laidOut({a, b}));
}

TEST_F(BrowserRearrangingTest, NothingIsRemovedWithoutASelection) {
  browse({a, b}, true);
  browser->cmdRemove();
  EXPECT_EQ(bytesOf(path), laidOut({a, b}));
}

TEST_F(BrowserRearrangingTest, OfAFileOf120EntriesTheOneThatIsSelectedIsRemoved) {
  std::vector<Entry> entries(120, anyEntry(16, 1));
  entries[9] = anyEntry(16, 8);
  entries[109] = anyEntry(16, 24);
  browse(entries);
  browser->clickIcon(50);
  boxes.expectTold("Ref 110\nUnable to get this one", BoxIcon::None);
  browser->clickIcon(109);
  remove(50);
  entries.erase(entries.begin() + 50);
  EXPECT_EQ(bytesOf(path), laidOut(entries));
}

TEST_F(BrowserRearrangingTest, AFileOf100EntriesIsNotReordered) {
  const Bytes file = laidOut(std::vector<Entry>(100, anyEntry(16, 1)));
  browse(file);
  boxes.expectTold("Ref 100\nUnable to get this one", BoxIcon::None);
  browser->cmdReposition();
  EXPECT_FALSE(browser->showsReposition());
  browser->cmdRepositionProceed();
  EXPECT_EQ(bytesOf(path), file);
  browse(std::vector<Entry>(99, anyEntry(16, 1)));
  browser->cmdReposition();
  EXPECT_TRUE(browser->showsReposition());
}

TEST_F(BrowserRearrangingTest, EntryNinetyNineIsRemovedAndNoOther) {
  std::vector<Entry> entries(99, anyEntry(16, 1));
  entries[8] = entries[97] = anyEntry(16, 4);
  entries[98] = anyEntry(16, 8);
  browse(entries);
  remove(98);
  entries.pop_back();
  EXPECT_EQ(bytesOf(path), laidOut(entries));
}

TEST_F(BrowserRearrangingTest, AFileThatTurnedReadOnlyIsReportedAndListedAsItIs) {
  const Bytes file = laidOut({a, b, c});
  browse(file);
  browser->clickIcon(2);
  makeReadOnly(path);
  expectRemovalAsked(BoxAnswer::Yes);
  boxes.expectTold(kNotUpdated, BoxIcon::None);
  browser->cmdRemove();
  EXPECT_EQ(bytesOf(path), file);
  EXPECT_EQ(browser->lisIcons().size(), 3u);
  EXPECT_EQ(browser->selectedIcon(), 2);
  EXPECT_TRUE(previews(file, 2));
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(BrowserRearrangingTest, AFolderInThePlaceOfTheFileIsReportedAsAChangeAndTheImagesStayListed) {
  browse({a, b, c});
  std::filesystem::remove(path);
  std::filesystem::create_directory(path);
  expectRemovalAsked(BoxAnswer::Yes);
  expectChangeTold();
  browser->cmdRemove();
  EXPECT_EQ(browser->lisIcons().size(), 3U);
  EXPECT_EQ(unloads, 0);
}

// Repositioning.

TEST_F(BrowserRearrangingTest, ThePaneListsAllEntriesPaddedInFileOrder) {
  const Bytes file = laidOut({a, other, c});
  browse(file);
  browser->cmdReposition();
  EXPECT_TRUE(browser->showsReposition());
  EXPECT_FALSE(browser->otherSizesShown());
  EXPECT_EQ(browser->reposition().lisReposition(),
            (Items{"Ref 1  \t4 BPP\t16-Color\t   16 x  16", "Ref 2  \t8 BPP\t256-Color\t   64 x  64",
                   "Ref 3  \t24 BPP\tTrue-Color\t   48 x  48"}));
  EXPECT_EQ(browser->reposition().selected(), 0);
  const Decoded first = decode(file, 0);
  EXPECT_TRUE(samePixels(browser->picReposition(), onGround(first.image, first.mask)));
}

TEST_F(BrowserRearrangingTest, AClickOnThePanePreviewsThere) {
  const Bytes file = laidOut({a, b, c});
  browse(file);
  browser->cmdReposition();
  browser->clickRepositionIcon(2);
  EXPECT_EQ(browser->reposition().selected(), 2);
  const Decoded third = decode(file, 2);
  EXPECT_TRUE(samePixels(browser->picReposition(), onGround(third.image, third.mask)));
  EXPECT_TRUE(previews(file, 1));  // the other list keeps its selection
  for (const int item : {-1, 3}) browser->clickRepositionIcon(item);
  EXPECT_EQ(browser->reposition().selected(), 2);
}

TEST_F(BrowserRearrangingTest, AnEntryThatCannotBeShownLeavesTheEarlierOneSelectedOnThePane) {
  browse({a, pngEntry(48), b});
  browser->cmdReposition();
  browser->clickRepositionIcon(2);
  boxes.expectTold("Ref 2\nUnable to get this one", BoxIcon::None);
  browser->clickRepositionIcon(1);
  EXPECT_EQ(browser->reposition().selected(), 2);
  EXPECT_EQ(browser->picReposition().width(), 32);
}

TEST_F(BrowserRearrangingTest, AFirstEntryThatCannotBeShownCanStillBeMoved) {
  const Entry png = pngEntry(48);
  browse({png, a, b});
  browser->cmdReposition();
  EXPECT_EQ(browser->reposition().selected(), 0);
  EXPECT_EQ(browser->picReposition().width(), 0);
  browser->cmdShiftDown();
  expectProceedAsked(BoxAnswer::Yes);
  boxes.expectTold("Repositioned icons sequence in " + path + "\n", BoxIcon::None);
  browser->cmdRepositionProceed();
  EXPECT_EQ(bytesOf(path), laidOut({a, png, b}));
}

TEST_F(BrowserRearrangingTest, EntriesOfOtherSizesAreShownOnThePaneAndCanBeMoved) {
  browse({a, b, other});
  browser->cmdReposition();
  browser->clickRepositionIcon(2);
  EXPECT_EQ(browser->reposition().selected(), 2);
  EXPECT_EQ(browser->picReposition().width(), 64);
  browser->cmdShiftUp();
  browser->cmdShiftUp();
  expectProceedAsked(BoxAnswer::Yes);
  boxes.expectTold("Repositioned icons sequence in " + path + "\n", BoxIcon::None);
  browser->cmdRepositionProceed();
  EXPECT_EQ(bytesOf(path), laidOut({other, a, b}));
}

TEST_F(BrowserRearrangingTest, ClicksOnAPaneThatIsClosedAreIgnored) {
  browse({a, b});
  browser->cmdReposition();
  browser->cmdRepositionAbort();
  browser->clickRepositionIcon(1);
  EXPECT_EQ(browser->reposition().selected(), 0);
  EXPECT_EQ(browser->picReposition().width(), 16);
}

TEST_F(BrowserRearrangingTest, AReversedFileIsLaidOutAfresh) {
  browse({a, b, c});
  reverse();
  EXPECT_EQ(browser->reposition().order(), (std::vector{2, 1, 0}));
  expectProceedAsked(BoxAnswer::Yes);
  boxes.expectTold("Repositioned icons sequence in " + path + "\n", BoxIcon::None);
  browser->cmdRepositionProceed();
  EXPECT_EQ(bytesOf(path), laidOut({c, b, a}));
  EXPECT_FALSE(browser->showsReposition());
  EXPECT_EQ(browser->lisIcons().front(), "Ref 1  \t24 BPP\tTrue-Color\t   48 x  48");
  EXPECT_EQ(browser->selectedIcon(), 1);
  EXPECT_TRUE(previews(bytesOf(path), 1));
}

TEST_F(BrowserRearrangingTest, OtherSizesComeBackAfterThePane) {
  browse({a, other, b});
  browser->cmdReposition();
  browser->cmdRepositionAbort();
  EXPECT_TRUE(browser->otherSizesShown());
  browser->cmdReposition();
  browser->cmdShiftDown();
  expectProceedAsked(BoxAnswer::Yes);
  boxes.expectTold("Repositioned icons sequence in " + path + "\n", BoxIcon::None);
  browser->cmdRepositionProceed();
  EXPECT_TRUE(browser->otherSizesShown());
  EXPECT_EQ(bytesOf(path), laidOut({other, a, b}));
}

TEST_F(BrowserRearrangingTest, AnUnchangedSequenceIsNotWritten) {
  browse({a, b, c});
  makeReadOnly(path);
  browser->cmdReposition();
  browser->cmdShiftDown();
  browser->cmdShiftUp();
  boxes.expectTold("There is no change in original sequence.", BoxIcon::None);
  browser->cmdRepositionProceed();
  EXPECT_TRUE(browser->showsReposition());
}

TEST_F(BrowserRearrangingTest, NoKeepsThePaneOpen) {
  browse({a, b, c});
  reverse();
  expectProceedAsked(BoxAnswer::No);
  browser->cmdRepositionProceed();
  EXPECT_TRUE(browser->showsReposition());
  EXPECT_EQ(browser->reposition().order(), (std::vector{2, 1, 0}));
  EXPECT_EQ(bytesOf(path), laidOut({a, b, c}));
}

TEST_F(BrowserRearrangingTest, AbortTouchesNoFile) {
  browse({a, b, c});
  reverse();
  browser->cmdRepositionAbort();
  EXPECT_FALSE(browser->showsReposition());
  EXPECT_EQ(bytesOf(path), laidOut({a, b, c}));
  EXPECT_EQ(browser->lisIcons().size(), 3u);
}

// The alpha values of the picture that the pane showed last must not be used for the entry that is loaded.
TEST_F(BrowserRearrangingTest, AnAbortedPaneLeavesTheSelectedIconsAlpha) {
  Picture half = anyPicture(32, 32), other32 = anyPicture(32, 32);
  half.color = [](int, int) { return Rgb{1, 2, 3, 128}; };
  other32.color = [](int, int) { return Rgb{1, 2, 3, 7}; };
  browse({entryOf(half), entryOf(other32)});
  browser->cmdReposition();
  browser->clickRepositionIcon(1);
  browser->cmdRepositionAbort();
  browser->cmdEdit();
  EXPECT_EQ(exchange.gMultiIconResult, "3/00/32/32/-1/32/-1/32");
  EXPECT_EQ(exchange.chosenIcon.alpha, AlphaMatrix(32, 32, 128));
}

TEST_F(BrowserRearrangingTest, RepositioningIsRefusedForOneIconAndForAFileInAContainer) {
  browse({a});
  boxes.expectTold("Only a single icon in file", BoxIcon::None);
  browser->cmdReposition();
  browse({a, b});
  exchange.gFileInPanel = true;
  boxes.expectTold(
      "As currently there is at least an icon from this file loaded in Icons Panel, \nhence no reposition is allowed.",
      BoxIcon::None);
  browser->cmdReposition();
  EXPECT_FALSE(browser->showsReposition());
}

TEST_F(BrowserRearrangingTest, ShiftingRequiresASelection) {
  browse({a, b});
  boxes.expectTold("No title selected yet", BoxIcon::None);
  browser->cmdShiftUp();
  boxes.expectTold("No title selected yet", BoxIcon::None);
  browser->cmdShiftDown();
  browser->cmdRepositionProceed();  // an empty list: no effect
}

TEST_F(BrowserRearrangingTest, AFileThatTurnedReadOnlyIsError1) {
  const Bytes file = laidOut({a, b, c});
  browse(file);
  reverse();
  makeReadOnly(path);
  expectProceedAsked(BoxAnswer::Yes);
  boxes.expectTold("Error-1 encountered in writing file.", BoxIcon::None);
  browser->cmdRepositionProceed();
  EXPECT_EQ(bytesOf(path), file);
  EXPECT_FALSE(browser->showsReposition());
  EXPECT_EQ(browser->lisIcons().front(), "Ref 1  \t4 BPP\t16-Color\t   16 x  16");
}

TEST_F(BrowserRearrangingTest, AWriteThatFailsIsError3AndTheFormerFileIsListed) {
  const Bytes file = laidOut({a, b, c});
  browse(file);
  reverse();
  expectProceedAsked(BoxAnswer::Yes);
  boxes.expectTold("Error-3 encountered in writing file.", BoxIcon::None);
  boxes.expectTold("Failed to reposition icons sequence in " + path + "\n", BoxIcon::None);
  const FullDisk full(1000);
  browser->cmdRepositionProceed();
  EXPECT_EQ(bytesOf(path), file);
  EXPECT_EQ(browser->lisIcons().size(), 3u);
  EXPECT_EQ(unloads, 0);
}

// Entries that state too few bytes.

TEST_F(BrowserRearrangingTest, ImagesThatStateTooFewBytesAreWrittenWhole) {
  Entry shortA = a, emptyC = c;
  shortA.bytesInRes = 50;
  emptyC.bytesInRes = 0;
  browse({shortA, b, emptyC});
  remove(1);
  EXPECT_EQ(bytesOf(path), laidOut({a, c}));
  browse({shortA, b, emptyC});
  reverse();
  expectProceedAsked(BoxAnswer::Yes);
  boxes.expectTold("Repositioned icons sequence in " + path + "\n", BoxIcon::None);
  browser->cmdRepositionProceed();
  EXPECT_EQ(bytesOf(path), laidOut({c, b, a}));
}

// Files that another program changes.

TEST_F(BrowserRearrangingTest, AFileThatVanishedOnThePaneIsNotWrittenAndItsImagesStayListed) {
  browse({a, b, c});
  reverse();
  std::filesystem::remove(path);
  expectProceedAsked(BoxAnswer::Yes);
  expectChangeTold();
  browser->cmdRepositionProceed();
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_TRUE(browser->showsReposition());
  browser->cmdRepositionAbort();
  EXPECT_EQ(browser->lisIcons().size(), 3U);
  dialogs.paths = {folder.path("rescued.ico")};
  browser->clickIcon(1);
  browser->cmdSaveSingle();
  EXPECT_EQ(bytesOf(folder.path("rescued.ico")), build(b));
}

TEST_F(BrowserRearrangingTest, AnEntryThatAnotherProgramAddedStaysAndIsListed) {
  const Bytes changed = laidOut({anyEntry(24, 4), a, b, c});
  browse({a, b, c});
  folder.write("tools.ico", changed);
  browser->clickIcon(0);
  expectRemovalAsked(BoxAnswer::Yes);
  expectChangeTold();
  browser->cmdRemove();
  EXPECT_EQ(bytesOf(path), changed);
  EXPECT_EQ(browser->lisIcons().size(), 4U);

  browse({a, b, c});
  reverse();
  folder.write("tools.ico", changed);
  expectProceedAsked(BoxAnswer::Yes);
  expectChangeTold();
  browser->cmdRepositionProceed();
  EXPECT_EQ(bytesOf(path), changed);
  EXPECT_FALSE(browser->showsReposition());
  EXPECT_EQ(browser->lisIcons().size(), 4U);
}

TEST_F(BrowserRearrangingTest, APictureThatAnotherProgramChangedIsNotRemoved) {
  browse({a, b, c});
  Bytes changed = laidOut({a, b, c});
  changed.back() ^= 0xFF;
  folder.write("tools.ico", changed);
  browser->clickIcon(2);
  expectRemovalAsked(BoxAnswer::Yes);
  expectChangeTold();
  browser->cmdRemove();
  EXPECT_EQ(bytesOf(path), changed);
}

TEST_F(BrowserRearrangingTest, AfterTheMessageTheFileAsItIsNowCanBeChanged) {
  browse({a, b});
  folder.write("tools.ico", laidOut({a, b, c}));
  browser->clickIcon(0);
  expectRemovalAsked(BoxAnswer::Yes);
  expectChangeTold();
  browser->cmdRemove();
  remove(0);
  EXPECT_EQ(bytesOf(path), laidOut({b, c}));
}

}  // namespace
}  // namespace gp::test
