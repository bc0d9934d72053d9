// Showing, listing and selecting. The buttons are tested in other files.
#include "document/CurrentIcon.h"
#include "files/BrowserFixture.h"

namespace gp::test {
namespace {

constexpr const char* kNotShown = "Ref 2\nUnable to get this one";

const std::vector<Entry>& threeIcons() {
  static const std::vector<Entry> kEntries{anyEntry(16, 4), anyEntry(32, 8), anyEntry(48, 32)};
  return kEntries;
}
Entry otherSize(int size = 64) { return anyEntry(size, 8); }

// Opening.

TEST_F(BrowserTest, TheEditFaceComesUpForTheCurrentContainer) {
  browse(threeIcons());
  EXPECT_EQ(browser->face(), BrowserFace::Edit);
  EXPECT_STREQ(browser->caption(), "Edit Icon In Multi-Icon File");
  EXPECT_EQ(browser->containerItem(), 2);
  EXPECT_EQ(browser->file(), path);
  EXPECT_EQ(exchange.gMultiIconResult, "");
  EXPECT_FALSE(browser->showsReposition());
  EXPECT_EQ(unloads, 0);
  EXPECT_GE(changes, 1);
}

TEST_F(BrowserTest, TheAddFaceHasItsCaptionAndNothingSelected) {
  browse(threeIcons(), true);
  EXPECT_EQ(browser->face(), BrowserFace::Add);
  EXPECT_STREQ(browser->caption(), "Add Icon To Existing Icon File");
  EXPECT_EQ(browser->lisIcons().size(), 3u);
  EXPECT_EQ(browser->selectedIcon(), -1);
  EXPECT_EQ(browser->picIconInFile().width(), 0);
}

TEST_F(BrowserTest, TheContainerSelectorIsHiddenWithoutAContainer) {
  browse(threeIcons());
  for (const char* text : {"", "6", "-1"}) {
    exchange.gMultiIconResult = text;
    EXPECT_EQ(show().containerItem(), -1) << text;
    browser->setContainer(3);
    EXPECT_EQ(browser->containerItem(), -1) << text;
  }
}

TEST_F(BrowserTest, OnlyTheSixContainersCanBeChosen) {
  browse(threeIcons());
  browser->setContainer(5);
  browser->setContainer(6);
  browser->setContainer(-1);
  EXPECT_EQ(browser->containerItem(), 5);
}

TEST_F(BrowserTest, LongPathsAreShortenedForDisplay) {
  browse(threeIcons());
  exchange.gMultiIconFile = "/home/ana/pictures/icons/tools.ico";
  EXPECT_EQ(browser->fileText(), "/home/...../tools.ico");
  EXPECT_EQ(browser->file(), "/home/ana/pictures/icons/tools.ico");
}

TEST_F(BrowserTest, AFileThatCannotBeReadUnloadsWithoutAWord) {
  exchange.gMultiIconFile = folder.path("absent.ico");
  exchange.gMultiIconResult = "0";
  show();
  EXPECT_TRUE(listsNothingAndUnloaded());
  EXPECT_EQ(exchange.gMultiIconResult, "");
}

// Listing.

TEST_F(BrowserTest, ListsStandardAndOtherSizesInFileOrder) {
  browse({anyEntry(16, 4), otherSize(), anyEntry(32, 24), entryOf(anyPicture(48, 1))});
  EXPECT_EQ(browser->lisIcons(),
            (Items{"Ref 1  \t4 BPP\t16-Color\t   16 x  16", "Ref 3  \t24 BPP\tTrue-Color\t   32 x  32",
                   "Ref 4  \t1 BPP\t2-Color\t   48 x  48"}));
  EXPECT_EQ(browser->lisOtherIcons(), (Items{"Ref 2  \t8 BPP\t256-Color\t  64 x 64"}));
  EXPECT_STREQ(browser->remark(), "");
}

TEST_F(BrowserTest, A64x64EntryCannotBeSelectedAndKeepsItsRef) {
  browse({otherSize(), anyEntry(16, 4), anyEntry(32, 4)});
  EXPECT_EQ(browser->lisOtherIcons(), (Items{"Ref 1  \t8 BPP\t256-Color\t  64 x 64"}));
  EXPECT_EQ(browser->lisIcons().front(), "Ref 2  \t4 BPP\t16-Color\t   16 x  16");
  browser->cmdEdit();
  EXPECT_EQ(exchange.gMultiIconResult, "3/02/32/32/16/4/16/4");
}

TEST_F(BrowserTest, TheFootnoteStandsWhereAnEntryHasNoBits) {
  browse({anyEntry(16, 4), entryOf(anyPicture(32, 4), 16, 0)});
  EXPECT_STREQ(browser->remark(), "* Remarks: Listed BPP as per original file only");
  EXPECT_EQ(browser->lisIcons().at(1), "Ref 2  \t0 BPP*\t16-Color\t   32 x  32");
}

TEST_F(BrowserTest, OtherSizesAreOpenWhereThereAreAny) {
  EXPECT_FALSE(browse(threeIcons()).otherSizesShown());
  EXPECT_TRUE(browse({anyEntry(16, 4), otherSize()}).otherSizesShown());
  browser->setOtherSizesShown(false);
  EXPECT_FALSE(browser->otherSizesShown());
  browser->setOtherSizesShown(true);
  EXPECT_TRUE(browser->otherSizesShown());
}

TEST_F(BrowserTest, AFileOfOneEntryOpensWithNothingToSplitRemoveOrReposition) {
  browse({anyEntry(32, 4)});
  EXPECT_EQ(browser->selectedIcon(), 0);
  EXPECT_TRUE(browser->canLoad());
  EXPECT_FALSE(browser->hasSeveralIcons());
}

TEST_F(BrowserTest, AFileOfOtherSizesOnlyShowsThemAndDisablesAllButtons) {
  browse({otherSize(64), otherSize(20)});
  EXPECT_TRUE(browser->lisIcons().empty());
  EXPECT_EQ(browser->lisOtherIcons().size(), 2u);
  EXPECT_TRUE(browser->otherSizesShown());
  EXPECT_EQ(browser->selectedIcon(), -1);
  EXPECT_FALSE(browser->canLoad());
  EXPECT_FALSE(browser->hasSeveralIcons());
}

TEST_F(BrowserTest, TwoStandardEntriesEnableAllButtons) {
  browse({anyEntry(16, 4), anyEntry(32, 4)});
  EXPECT_TRUE(browser->canLoad());
  EXPECT_TRUE(browser->hasSeveralIcons());
}

TEST_F(BrowserTest, OtherSizesDoNotCountForTheButtons) {
  browse({anyEntry(16, 4), otherSize(), otherSize(20)});
  EXPECT_TRUE(browser->canLoad());
  EXPECT_FALSE(browser->hasSeveralIcons());
}

// Selecting.

TEST_F(BrowserTest, TheFirst32x32EntryIsSelectedAndPreviewed) {
  const Bytes file = build(iconFile({anyEntry(16, 8), anyEntry(32, 4), anyEntry(32, 24)}));
  browse(file);
  EXPECT_EQ(browser->selectedIcon(), 1);
  EXPECT_TRUE(previews(file, 1));
}

TEST_F(BrowserTest, ALater32x32EntryOf8BitsIsSelectedInstead) {
  browse({anyEntry(32, 4), anyEntry(32, 24), anyEntry(32, 8), anyEntry(48, 8)});
  EXPECT_EQ(browser->selectedIcon(), 2);
}

TEST_F(BrowserTest, ItemsAreCountedInTheListNotInTheFile) {
  browse({otherSize(), anyEntry(16, 4), otherSize(), anyEntry(32, 4)});
  EXPECT_EQ(browser->selectedIcon(), 1);
}

TEST_F(BrowserTest, AClickPreviewsTheEntry) {
  const Bytes file = build(iconFile({anyEntry(32, 4), otherSize(), anyEntry(48, 24)}));
  browse(file);
  changes = 0;
  browser->clickIcon(1);
  EXPECT_EQ(browser->selectedIcon(), 1);
  EXPECT_TRUE(previews(file, 2));
  EXPECT_GE(changes, 1);
}

TEST_F(BrowserTest, ClicksBesideTheListAreIgnored) {
  browse(threeIcons());
  changes = 0;
  for (const int item : {-1, 3, 99}) browser->clickIcon(item);
  EXPECT_EQ(browser->selectedIcon(), 1);
  EXPECT_EQ(changes, 0);
}

TEST_F(BrowserTest, ClicksThatTheBrowsersOwnSelectionCausesAreIgnored) {
  browse(threeIcons());
  display.onChanged = [this](DisplayPart part) {
    if (part == DisplayPart::ModalForm) browser->clickIcon(0);
  };
  browser->clickIcon(2);
  EXPECT_EQ(browser->selectedIcon(), 2);
}

TEST_F(BrowserTest, AnEntryThatCannotBeShownLeavesTheEarlierOneSelected) {
  const Bytes file = build(iconFile({anyEntry(32, 4), pngEntry(48), anyEntry(16, 4)}));
  browse(file);
  boxes.expectTold(kNotShown, BoxIcon::None);
  changes = 0;
  browser->clickIcon(1);
  EXPECT_EQ(browser->selectedIcon(), 0);
  EXPECT_TRUE(previews(file, 0));
  EXPECT_GE(changes, 1);  // the list reverts its selection
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(BrowserTest, AFirstEntryThatCannotBeShownLeavesNothingSelected) {
  boxes.expectTold(kNotShown, BoxIcon::None);
  browse({anyEntry(16, 4), pngEntry(32)});
  EXPECT_EQ(browser->selectedIcon(), -1);
  EXPECT_EQ(browser->picIconInFile().width(), 0);
  browser->cmdEdit();
  EXPECT_EQ(exchange.gMultiIconResult, "");
  EXPECT_EQ(unloads, 0);
}

TEST_F(BrowserTest, ThePointerIsAnHourglassWhileAnEntryIsRead) {
  browse(threeIcons());
  display.parts.clear();
  browser->clickIcon(0);
  EXPECT_EQ(display.parts, (std::vector{DisplayPart::Pointer, DisplayPart::Pointer, DisplayPart::ModalForm}));
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(BrowserTest, EntriesOf32BitsArePreviewedWithAlpha) {
  Picture p = anyPicture(32, 32);
  p.color = [](int, int) { return Rgb{255, 100, 0, 128}; };
  p.transparent = [](int x, int) { return x == 1; };
  browse({entryOf(p)});
  EXPECT_EQ(browser->picIconInFile().GetPixel(0, 0), rgb(223, 146, 96));
  EXPECT_EQ(browser->picIconInFile().GetPixel(1, 0), kGround);
}

TEST_F(BrowserTest, TheAlphaValuesOfTheCurrentIconStandWhileEntriesAreLookedAtAndLoaded) {
  given(entryOf(anyPicture(32, 32)));
  const AlphaMatrix alpha = currentIcon(state).alpha;
  ASSERT_TRUE(alpha.isOfSize(32));
  browse({anyEntry(48, 32), anyEntry(32, 4), anyEntry(16, 32)});
  for (const int item : {0, 1, 2}) {
    browser->clickIcon(item);
    EXPECT_EQ(currentIcon(state).alpha, alpha) << item;
  }
  browser->cmdReposition();
  browser->cmdRepositionAbort();
  browser->cmdEdit();
  EXPECT_EQ(currentIcon(state).alpha, alpha) << "the caller decides about the chosen icon";
}

TEST_F(BrowserTest, RefsAbove99CannotBeSelected) {
  std::vector<Entry> entries(120, anyEntry(16, 1));
  entries[9] = anyEntry(16, 24);
  const Bytes file = build(iconFile(entries));
  for (const bool addFace : {false, true}) {
    browse(file, addFace);
    browser->clickIcon(98);
    EXPECT_EQ(browser->selectedIcon(), 98);
    for (const int item : {99, 119}) {
      boxes.expectTold("Ref " + std::to_string(item + 1) + "\nUnable to get this one", BoxIcon::None);
      browser->clickIcon(item);
      EXPECT_EQ(browser->selectedIcon(), 98);
      EXPECT_TRUE(previews(file, 98)) << "not entry 10, which Ref 100 reads as";
    }
  }
  browser->cmdClose();
  EXPECT_TRUE(boxes.done());
}

TEST_F(BrowserTest, TheFirstSelectionIsOneThatCanBeSelected) {
  std::vector<Entry> entries(120, anyEntry(16, 1));
  entries[40] = anyEntry(32, 4);
  entries[110] = anyEntry(32, 8);
  browse(entries);
  EXPECT_EQ(browser->selectedIcon(), 40);
}

TEST_F(BrowserTest, WhereOnlyRefsAbove99AreListedNothingIsSelected) {
  std::vector<Entry> entries(101, otherSize());
  entries[99] = entries[100] = anyEntry(32, 8);
  boxes.expectTold("Ref 100\nUnable to get this one", BoxIcon::None);
  browse(entries);
  EXPECT_EQ(browser->lisIcons().size(), 2U);
  EXPECT_EQ(browser->selectedIcon(), -1);
  browser->cmdEdit(), browser->cmdLoad(), browser->cmdSaveSingle(), browser->cmdSplitSave(), browser->cmdRemove();
  EXPECT_EQ(exchange.gMultiIconResult, "");
  EXPECT_EQ(unloads, 0);
  EXPECT_TRUE(dialogs.requests.empty());
}

}  // namespace
}  // namespace gp::test
