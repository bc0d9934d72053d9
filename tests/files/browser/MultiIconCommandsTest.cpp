#include "document/CurrentIcon.h"
#include "files/MultiIconFixture.h"

#include <filesystem>

namespace gp::test {
namespace {

constexpr const char* kAlphaReminder =
    "\nReminder:  The incoming icon is with Alpha Channel.  To view the icon with\n"
    "alpha effects, or to edit the alpha values, invoke the Alpha Channel screen.\n\n"
    "(To remove Reminder, untick the related Option submenu)";

// 32x32 with 16 colours, 16x16 with 256, 24x24 with alpha.
const IcoFile& mixed() {
  static const IcoFile file =
      fileOf({entryOf(anyPicture(32, 4)), entryOf(anyPicture(16, 8)), entryOf(anyPicture(24, 32))});
  return file;
}
constexpr const char* kFirst = "1/00/32/32/16/4/16/4";
constexpr const char* kSecond = "1/01/16/16/256/8/256/8";
constexpr const char* kThird = "1/02/24/24/-1/32/-1/32";

class MultiIconCommandsTest : public MultiIconTest {
 protected:
  const Bytes bytes = build(mixed());
  const std::string path = folder.write("m.ico", bytes);

  std::string retrieve(bool intoEditingArea = true) {
    std::string result = "before";
    files.multiIcon.MultiIconFileSubRoutine(path, intoEditingArea, result);
    return result;
  }
};

TEST_F(MultiIconCommandsTest, TheBrowserIsToldFileAndContainer) {
  state.mCurContainer = 2;
  exchange.gAddToFile = true;
  exchange.gFileInPanel = true;
  user.push_back([&] {
    EXPECT_EQ(exchange.gMultiIconFile, path);
    EXPECT_EQ(exchange.gMultiIconResult, "2");
    EXPECT_FALSE(exchange.gAddToFile);
    EXPECT_FALSE(exchange.gFileInPanel);
    answers("");
  });
  EXPECT_EQ(retrieve(), "");
}

TEST_F(MultiIconCommandsTest, AFileOfAnyContainerIsReportedAsInThePanelHoweverItIsSpelled) {
  std::filesystem::create_symlink(path, folder.path("link.ico"));
  for (const std::string& own : {path, folder.folder() + "/./m.ico", folder.path("link.ico")}) {
    state.mIconRecs[4].path = own;
    user.push_back([&] {
      EXPECT_TRUE(exchange.gFileInPanel) << own;
      answers("");
    });
    retrieve();
  }
}

TEST_F(MultiIconCommandsTest, ALoadFillsContainerEditingAreaAndRecord) {
  record().isCursor = record().neverSaved = record().modified = true;
  record().hotspotX = record().hotspotY = 4;
  userLoads(bytes, 1, kSecond);
  EXPECT_EQ(retrieve(), kSecond);
  const Decoded entry = decode(bytes, 1);
  EXPECT_TRUE(samePixels(state.picImage, entry.image));
  EXPECT_TRUE(samePixels(state.picMask, entry.mask));
  EXPECT_TRUE(samePixels(state.picPanelImage[0], entry.image));
  EXPECT_TRUE(samePixels(state.picPanelMask[0], entry.mask));
  EXPECT_EQ(state.PicIcon.width(), 16);
  EXPECT_EQ(record().size, 16);
  EXPECT_TRUE(record().used && record().present && record().fromMultiIconFile);
  EXPECT_EQ(record().sourceLabel.trimmed(), "ICO file");
  EXPECT_EQ(record().path.trimmed(), path);
  EXPECT_EQ(record().multiIconIndex, 1);
  EXPECT_EQ(record().dirColors, 256);
  EXPECT_EQ(record().bitCount, 8);
  EXPECT_FALSE(record().isDiscrepant() || record().hasAlpha);
  EXPECT_FALSE(record().isCursor || record().neverSaved || record().modified);
  EXPECT_EQ(record().hotspotX + record().hotspotY, 0);
  EXPECT_EQ(forms.multiIcons, 1);
}

TEST_F(MultiIconCommandsTest, ALoadResetsRegionAndUndoShowsAndEntersTheHistory) {
  userLoads(bytes, 0, kFirst);
  retrieve();
  EXPECT_EQ(callsBesidesEnabling(), (std::vector<std::string>{"clearRegion", "clearAllTools", "chooseColorChart",
                                                              "clearUndoHistory", "recordUndo", "AddHistory " + path}));
  EXPECT_GE(editor.count("UpdateCommands"), 1);
  EXPECT_EQ(rooms.drawing.history.undoCount(), 1);
}

TEST_F(MultiIconCommandsTest, HeaderFieldsThatLieMakeTheRecordDiscrepant) {
  userLoads(bytes, 0, "1/00/32/32/16/4/256/8");
  retrieve();
  EXPECT_TRUE(record().isDiscrepant());
  EXPECT_EQ(record().bihColors, 256);
  EXPECT_EQ(record().bihBitCount, 8);
}

TEST_F(MultiIconCommandsTest, AnIconWithAlphaKeepsItsValues) {
  userLoads(bytes, 2, kThird);
  retrieve();
  EXPECT_TRUE(record().hasAlpha);
  EXPECT_EQ(record().bitCount, 32);
  EXPECT_EQ(state.mAlphaRecs[0], decode(bytes, 2).alpha);
}

TEST_F(MultiIconCommandsTest, AlphaValuesOfAnotherWidthMakeItAnIconOf24Bits) {
  user.push_back([&] {
    leaves(bytes, 2);
    exchange.chosenIcon.alpha = AlphaMatrix(32, 32, 255);
    answers(kThird);
  });
  retrieve();
  EXPECT_FALSE(record().hasAlpha);
  EXPECT_EQ(record().bitCount, 24);
  EXPECT_EQ(state.mAlphaRecs[0], AlphaMatrix());
  EXPECT_EQ(currentIcon(state).alpha, AlphaMatrix());
}

TEST_F(MultiIconCommandsTest, ALoadIntoAnotherContainerSwitchesThereWithoutLosingAnything) {
  given(entryOf(anyPicture(48, 4)));
  const Surface first = state.picImage;
  userLoads(bytes, 2, "4/02/24/24/-1/32/-1/32");
  EXPECT_EQ(retrieve(), "4/02/24/24/-1/32/-1/32");
  EXPECT_EQ(state.mCurContainer, 3);
  EXPECT_TRUE(samePixels(state.picImage, decode(bytes, 2).image));
  EXPECT_TRUE(samePixels(state.picMask, decode(bytes, 2).mask));
  EXPECT_EQ(state.mAlphaRecs[3], decode(bytes, 2).alpha);
  EXPECT_TRUE(samePixels(state.picPanelImage[0], first));
  EXPECT_EQ(state.mIconRecs[0].path.trimmed(), folder.path("given.ico"));
}

TEST_F(MultiIconCommandsTest, LoadBringsTheBrowserBackAndTheSecondLoadMayGoElsewhere) {
  userLoads(bytes, 1, kSecond, true);
  user.push_back([&] {
    EXPECT_EQ(exchange.gMultiIconResult, "0");
    EXPECT_TRUE(exchange.gFileInPanel) << "the first load put it there";
    leaves(bytes, 0);
    answers("6/00/32/32/16/4/16/4");
  });
  EXPECT_EQ(retrieve(), "6/00/32/32/16/4/16/4");
  EXPECT_EQ(forms.multiIcons, 2);
  EXPECT_EQ(state.mIconRecs[0].multiIconIndex, 1);
  EXPECT_EQ(state.mIconRecs[5].multiIconIndex, 0);
  EXPECT_TRUE(samePixels(state.picPanelImage[0], decode(bytes, 1).image));
  EXPECT_TRUE(samePixels(state.picPanelImage[5], decode(bytes, 0).image));
}

TEST_F(MultiIconCommandsTest, ClosingAfterALoadStillTellsThatLoad) {
  userLoads(bytes, 1, kSecond, true);
  EXPECT_EQ(retrieve(), kSecond);
  EXPECT_EQ(forms.multiIcons, 2);
}

TEST_F(MultiIconCommandsTest, ClosingAtOnceChangesNothing) {
  given(entryOf(anyPicture(32, 32)));
  const IconContainerRec before = record();
  const AlphaMatrix alpha = currentIcon(state).alpha;
  const unsigned serial = state.iconSerial;
  user.push_back([&] {
    leaves(bytes, 2);
    answers("");
  });
  EXPECT_EQ(retrieve(), "");
  EXPECT_EQ(record().path, before.path);
  EXPECT_EQ(currentIcon(state).alpha, alpha) << "looking at entries leaves the Current Icon's alpha values";
  EXPECT_EQ(state.iconSerial, serial);
  EXPECT_EQ(editor.calls, std::vector<std::string>{});
}

TEST_F(MultiIconCommandsTest, MalformedAnswersLoadNothing) {
  for (const std::string answer :
       {"0", "1/00/32/32/16/4/16", "1/00/32/32/16/4/16/4/4", "1/00/32/32/16/4/16/", "1/00/32/32/16/4/16/x",
        "1//32/32/16/4/16/4", "0/00/32/32/16/4/16/4", "7/00/32/32/16/4/16/4", "1/-1/32/32/16/4/16/4",
        "1/00/32/32/16/4/16/4 ", "1/99999/32/32/16/4/16/4", "/", "////////"}) {
    userLoads(bytes, 0, answer, true);
    EXPECT_EQ(retrieve(), "") << answer;
    EXPECT_FALSE(record().used) << answer;
  }
}

TEST_F(MultiIconCommandsTest, SizesThatAreNotOfferedAreReportedAndLeave) {
  for (const std::string answer : {"1/00/64/64/16/4/16/4", "1/00/32/0/16/4/16/4", "1/00/16/32/16/4/16/4"}) {
    boxes.expectTold("Retrieval failed", BoxIcon::Exclamation);
    userLoads(bytes, 0, answer, true);
    EXPECT_EQ(retrieve(), "");
    EXPECT_FALSE(record().used);
  }
  EXPECT_EQ(forms.multiIcons, 3);
}

TEST_F(MultiIconCommandsTest, AContainerThatIsNotLeftKeepsItsIconAndTheBrowserComesBack) {
  const std::string own = given(entryOf(anyPicture(16, 4)));
  record().modified = true;
  state.options.promptToSave = true;
  editor.askSaveProceeds = false;
  userLoads(bytes, 0, "2/00/32/32/16/4/16/4", true);
  EXPECT_EQ(retrieve(), "");
  EXPECT_EQ(forms.multiIcons, 2);
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_EQ(record().path.trimmed(), own);
  EXPECT_FALSE(state.mIconRecs[1].used);
}

TEST_F(MultiIconCommandsTest, UnsavedWorkInAnotherContainerIsAskedForBeforeItIsOverwritten) {
  state.mCurContainer = 1;
  const std::string unsaved = given(entryOf(anyPicture(16, 4)));
  record().modified = true;
  state.mCurContainer = 0;
  editor.askSaveProceeds = false;
  userLoads(bytes, 0, "2/00/32/32/16/4/16/4", true);
  EXPECT_EQ(retrieve(), "");
  EXPECT_EQ(editor.count("AskSaveCurrent "), 1);
  EXPECT_EQ(state.mIconRecs[1].path.trimmed(), unsaved);
  state.mCurContainer = 0;
  editor.askSaveProceeds = true;
  userLoads(bytes, 0, "2/00/32/32/16/4/16/4");
  EXPECT_EQ(retrieve(), "2/00/32/32/16/4/16/4");
  EXPECT_EQ(state.mIconRecs[1].path.trimmed(), path);
}

TEST_F(MultiIconCommandsTest, TheFirstContainerHasBeenAskedForByTheCaller) {
  given(entryOf(anyPicture(16, 4)));
  record().modified = true;
  userLoads(bytes, 0, kFirst);
  EXPECT_EQ(retrieve(), kFirst);
  EXPECT_EQ(editor.count("AskSaveCurrent "), 0);
}

TEST_F(MultiIconCommandsTest, OutsideTheEditingAreaOnlyTheContainerGetsTheIcon) {
  const unsigned serial = state.iconSerial;
  userLoads(bytes, 1, kSecond);
  EXPECT_EQ(retrieve(false), kSecond);
  EXPECT_TRUE(record().used);
  EXPECT_FALSE(record().present);
  EXPECT_TRUE(samePixels(state.picPanelImage[0], decode(bytes, 1).image));
  EXPECT_TRUE(samePixels(state.picPanelMask[0], decode(bytes, 1).mask));
  EXPECT_EQ(state.picPanelIcon[0].GetPixel(0, 0), kGround ^ decode(bytes, 1).image.GetPixel(0, 0)) << "transparent";
  EXPECT_EQ(state.picPanelIcon[0].GetPixel(1, 0), decode(bytes, 1).image.GetPixel(1, 0)) << "opaque";
  EXPECT_EQ(state.iconSerial, serial) << "the Editing Area shows what it did";
  EXPECT_FALSE(state.screen.fraTools[1]);
  EXPECT_EQ(editor.count("recordUndo"), 0);
  EXPECT_EQ(editor.count("AddHistory " + path), 1);
}

TEST_F(MultiIconCommandsTest, OpeningAFileOfSeveralIconsShowsTheBrowserAndReminds) {
  boxes.expectTold(kAlphaReminder, BoxIcon::Information);
  userLoads(bytes, 2, kThird);
  EXPECT_TRUE(open(path));
  EXPECT_EQ(record().multiIconIndex, 2);
  EXPECT_EQ(forms.multiIcons, 1);
}

TEST_F(MultiIconCommandsTest, OpeningFailsWithoutAWordWhenTheBrowserIsClosed) {
  EXPECT_FALSE(open(path));
  EXPECT_EQ(forms.multiIcons, 1);
}

TEST_F(MultiIconCommandsTest, TheCommandLineADropAndASingleIconShowNoBrowser) {
  EXPECT_TRUE(open(path, false));
  EXPECT_TRUE(openQuietly(path));
  EXPECT_TRUE(open(folder.write("single.ico", build(entryOf(anyPicture(32, 4))))));
  EXPECT_EQ(forms.multiIcons, 0);
}

TEST_F(MultiIconCommandsTest, OpeningThroughTheBrowserLeavesTheFileAsItIs) {
  userLoads(bytes, 1, kSecond);
  EXPECT_TRUE(open(path));
  EXPECT_EQ(bytesOf(path), bytes);
}

}  // namespace
}  // namespace gp::test
