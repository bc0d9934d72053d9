// The answers of the browser: loads on the edit face, positions on the add face.
#include "files/BrowserFixture.h"

namespace gp::test {
namespace {

constexpr const char* kLowScreen =
    "The incoming icon is a True Color icon, but your display colors\n"
    "setting in Windows is below High Color basing on that when you\n"
    "started the program.  The icon may not be displayed correctly.\n"
    "\n"
    "Proceed still?";

const std::vector<Entry>& threeIcons() {
  static const std::vector<Entry> kEntries{anyEntry(16, 4), anyEntry(32, 8), anyEntry(48, 32)};
  return kEntries;
}
Entry otherSize(int size = 64) { return anyEntry(size, 8); }

// Loading.

TEST_F(BrowserTest, LoadAndExitAnswersWhatIsSelected) {
  browse(threeIcons());
  exchange.gLoadAndReturn = true;
  browser->cmdEdit();
  EXPECT_EQ(exchange.gMultiIconResult, "3/01/32/32/256/8/256/8");
  EXPECT_FALSE(exchange.gLoadAndReturn);
  EXPECT_EQ(unloads, 1);
}

TEST_F(BrowserTest, LoadAsksToComeBackAndMayGoToAnotherContainer) {
  browse(threeIcons());
  browser->clickIcon(2);
  browser->setContainer(5);
  browser->cmdLoad();
  EXPECT_EQ(exchange.gMultiIconResult, "6/02/48/48/-1/32/-1/32");
  EXPECT_TRUE(exchange.gLoadAndReturn);

  exchange.gMultiIconResult = "5";
  EXPECT_EQ(show().containerItem(), 5);
  browser->setContainer(0);
  browser->cmdEdit();
  EXPECT_EQ(exchange.gMultiIconResult, "1/01/32/32/256/8/256/8");
}

TEST_F(BrowserTest, IndicesOfTwoDigitsStandAsTheyAre) {
  std::vector<Entry> entries(12, anyEntry(16, 4));
  browse(entries);
  browser->clickIcon(11);
  browser->cmdEdit();
  EXPECT_EQ(exchange.gMultiIconResult, "3/11/16/16/16/4/16/4");
}

TEST_F(BrowserTest, TheAnswerTellsDirectoryAndHeaderApart) {
  Entry entry = entryOf(anyPicture(32, 8));
  entry.image[14] = 24;
  browse({entry});
  browser->cmdEdit();
  EXPECT_EQ(exchange.gMultiIconResult, "3/00/32/32/256/8/-1/24");
}

TEST_F(BrowserTest, TheMainFormGetsPictureAndMask) {
  const Bytes file = build(iconFile(threeIcons()));
  const Decoded expected = decode(file, 2);
  browse(file);
  browser->clickIcon(2);
  browser->cmdEdit();
  EXPECT_TRUE(samePixels(exchange.chosenIcon.image, expected.image));
  EXPECT_TRUE(samePixels(exchange.chosenIcon.mask, expected.mask));
  EXPECT_EQ(exchange.chosenIcon.alpha, expected.alpha);
}

// The bit count that an entry answers for each bit count in the directory.
class BrowserBitsTest : public BrowserTest {
 protected:
  std::string answerOf(int colorCount, int bitCount) {
    browse({entryOf(anyPicture(32, 8), colorCount, bitCount)});
    browser->cmdEdit();
    return exchange.gMultiIconResult;
  }
};

TEST_F(BrowserBitsTest, ABitCountOf0FollowsFromTheColors) {
  EXPECT_EQ(answerOf(2, 0), "3/00/32/32/2/1/2/8");
  EXPECT_EQ(answerOf(16, 0), "3/00/32/32/16/4/16/8");
  EXPECT_EQ(answerOf(0, 0), "3/00/32/32/256/8/256/8");
}

TEST_F(BrowserBitsTest, BitCountsOfPalettesStayAsTheyAre) {
  EXPECT_EQ(answerOf(16, 8), "3/00/32/32/16/8/16/8");
  EXPECT_EQ(answerOf(2, 4), "3/00/32/32/2/4/2/8");
  EXPECT_EQ(answerOf(0, 8), "3/00/32/32/256/8/256/8");
}

TEST_F(BrowserBitsTest, TrueColorBitsWithColorsFollowFromThem) {
  EXPECT_EQ(answerOf(16, 32), "3/00/32/32/16/4/16/8");
  EXPECT_EQ(answerOf(2, 24), "3/00/32/32/2/1/2/8");
}

TEST_F(BrowserBitsTest, StrangeBitsBelow8AreRefused) {
  for (const int bits : {2, 3, 5, 6, 7}) {
    boxes.expectTold("Selected item is below 8 BPP, but not 1, 4 (or 0 if old Win 95 icons)", BoxIcon::None);
    EXPECT_EQ(answerOf(16, bits), "") << bits;
    EXPECT_EQ(unloads, 0);
  }
}

TEST_F(BrowserBitsTest, StrangeBitsAbove8AreRefused) {
  for (const int bits : {9, 16, 33, 48, 65535}) {
    boxes.expectTold("Selected item is of True Color but not 24 BPP or 32 BPP.", BoxIcon::None);
    EXPECT_EQ(answerOf(0, bits), "") << bits;
    EXPECT_EQ(unloads, 0);
  }
}

TEST_F(BrowserTest, TrueColorOnALowScreenIsAskedFor) {
  for (const int bits : {24, 32}) {
    state.process.gScreenBPP = 8;
    browse({anyEntry(32, bits)});
    boxes.expectAsked(kLowScreen, BoxAnswer::No);
    browser->cmdEdit();
    EXPECT_EQ(exchange.gMultiIconResult, "");
    boxes.expectAsked(kLowScreen, BoxAnswer::Yes);
    browser->cmdEdit();
    EXPECT_EQ(exchange.gMultiIconResult.substr(0, 10), "3/00/32/32");
  }
}

TEST_F(BrowserTest, NothingIsAskedOnAScreenOfManyColorsOrForAPalette) {
  state.process.gScreenBPP = 9;
  browse({anyEntry(32, 24)}).cmdEdit();
  EXPECT_NE(exchange.gMultiIconResult, "");
  state.process.gScreenBPP = 8;
  browse({anyEntry(32, 8)}).cmdEdit();
  EXPECT_NE(exchange.gMultiIconResult, "");
}

TEST_F(BrowserTest, TheAddFaceLoadsNothing) {
  browse(threeIcons(), true);
  EXPECT_FALSE(browser->canLoad());
  browser->clickIcon(0);
  browser->cmdEdit();
  browser->cmdLoad();
  EXPECT_EQ(exchange.gMultiIconResult, "");
  EXPECT_EQ(unloads, 0);
}

TEST_F(BrowserTest, ClosingAnswersNothing) {
  browse(threeIcons());
  exchange.gLoadAndReturn = true;
  browser->cmdClose();
  EXPECT_EQ(exchange.gMultiIconResult, "");
  EXPECT_FALSE(exchange.gLoadAndReturn);
  EXPECT_TRUE(listsNothingAndUnloaded());
}

TEST_F(BrowserTest, LookingAtAFileLeavesItAsItWas) {
  const Bytes file = build(iconFile(threeIcons()));
  browse(file);
  for (const int item : {0, 1, 2}) browser->clickIcon(item);
  browser->cmdLoad();
  show().cmdClose();
  EXPECT_EQ(bytesOf(path), file);
}

// Adding.

TEST_F(BrowserTest, AppendingIsProposed) {
  browse({anyEntry(16, 4), otherSize(), anyEntry(32, 4)}, true);
  EXPECT_EQ(browser->addPositionCount(), 4);
  EXPECT_EQ(browser->addPosition(), 3);
  browser->clickIcon(0);
  EXPECT_TRUE(browser->canAdd());
  boxes.expectAsked("Append to position ref 4.   \n\nConfirm?\n", BoxAnswer::Yes);
  browser->cmdSaveAdd(kSaveButton);
  EXPECT_EQ(exchange.gMultiIconResult, "1/4");
  EXPECT_EQ(unloads, 1);
}

TEST_F(BrowserTest, AnyOtherPositionInserts) {
  browse({anyEntry(16, 4), otherSize(), anyEntry(32, 4)}, true);
  browser->setAddPosition(0);
  browser->clickIcon(1);
  boxes.expectAsked("Insert to position ref 1.   \n\nConfirm?\n", BoxAnswer::Yes);
  browser->cmdSaveAdd(kSaveAsButton);
  EXPECT_EQ(exchange.gMultiIconResult, "2/1");
}

TEST_F(BrowserTest, ARefusedAddKeepsTheFormOpen) {
  browse({anyEntry(16, 4), otherSize()}, true);
  browser->setAddPosition(1);
  browser->clickIcon(0);
  boxes.expectAsked("Insert to position ref 2.   \n\nConfirm?\n", BoxAnswer::No);
  browser->cmdSaveAdd(kSaveButton);
  EXPECT_EQ(exchange.gMultiIconResult, "");
  EXPECT_EQ(unloads, 0);
}

TEST_F(BrowserTest, PositionsBeyondTheListAreIgnored) {
  browse(threeIcons(), true);
  for (const int item : {-1, 4}) browser->setAddPosition(item);
  EXPECT_EQ(browser->addPosition(), 3);
}

TEST_F(BrowserTest, AddingRequiresAnItemSelectedOrOtherSizesAlone) {
  browse({anyEntry(16, 4), otherSize()}, true);
  EXPECT_FALSE(browser->canAdd());
  browse(threeIcons(), true);
  EXPECT_FALSE(browser->canAdd());
  EXPECT_STREQ(browser->remark(), "Select an icon, or append");
  browser->cmdSaveAdd(kSaveButton);
  browser->cmdSaveAdd(kSaveAsButton);
  EXPECT_EQ(unloads, 0);
  EXPECT_EQ(exchange.gMultiIconResult, "");
  browser->clickIcon(0);
  EXPECT_TRUE(browser->canAdd());
  EXPECT_STREQ(browser->remark(), "");
  boxes.expectAsked("Append to position ref 4.   \n\nConfirm?\n", BoxAnswer::Yes);
  browser->cmdSaveAdd(kSaveButton);
  EXPECT_EQ(exchange.gMultiIconResult, "1/4");
}

TEST_F(BrowserTest, TheRemarkOnBitsWaitsForTheSelectionToBeMade) {
  browse({anyEntry(16, 4), entryOf(anyPicture(32, 4), 16, 0)}, true);
  EXPECT_STREQ(browser->remark(), "Select an icon, or append");
  browser->clickIcon(0);
  EXPECT_STREQ(browser->remark(), "* Remarks: Listed BPP as per original file only");
}

TEST_F(BrowserTest, OtherSizesAloneCanBeAddedTo) {
  browse({otherSize()}, true);
  EXPECT_TRUE(browser->canAdd());
  EXPECT_STREQ(browser->remark(), "");
  EXPECT_FALSE(browser->hasSeveralIcons());
  boxes.expectAsked("Append to position ref 2.   \n\nConfirm?\n", BoxAnswer::Yes);
  browser->cmdSaveAdd(kSaveButton);
  EXPECT_EQ(exchange.gMultiIconResult, "1/2");
}

}  // namespace
}  // namespace gp::test
