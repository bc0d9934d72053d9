// The commands on icon files, started from the menu: the body that a row calls, what is committed before it, and how
// unsaved work is handled.
#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "files/CursorBuilder.h"
#include "files/Decoding.h"
#include "files/browser/MultiIconExchange.h"
#include "support/ShellFixture.h"

#include <set>

namespace gp::test {
namespace {

constexpr int kNewIcon32 = 2, kOpenIcon = 7, kOpenCursor = 9, kSave = 12, kSaveAs = 13, kReplace = 15, kAddTo = 16,
              kSaveAsCursor = 18, kSaveAsBitmap = 19, kSaveMask = 20;
constexpr const char* kSaveQuestion = "Save current icon to file?";
constexpr const char* kBitmapQuestion = "Background color used will be the currently selected color.\nOK?\n";

class FileDispatchTest : public ShellFixture {
 protected:
  std::string write(const std::string& name, const Bytes& bytes) {
    return folder.write(name, std::string(bytes.begin(), bytes.end()));
  }
  bool openQuietly(const std::string& path) {
    bool ok = false;
    shell.doOpenIconFileQuietly(path, ok);
    return ok;
  }
  std::string givenMultiIcon() {
    const std::string path = write("multi.ico", build(IcoFile{{anyEntry(32, 4), anyEntry(16, 4)}, 0, 1, {}}));
    EXPECT_TRUE(openQuietly(path));
    EXPECT_TRUE(state.current().fromMultiIconFile);
    return path;
  }
  // A white square of 4x4 floats at the top left of the icon and is not yet in its container.
  void floatSquare() {
    clipboard.hold(Surface(4, 4, kWhite));
    click("mnuEditSub", 8);
    ASSERT_TRUE(state.mRegionExists && state.mPendingPaint);
    ASSERT_FALSE(isSquareInContainer());
  }
  bool isSquareInContainer() const {
    const auto container = static_cast<std::size_t>(state.mCurContainer);
    return state.picPanelImage[container].GetPixel(3, 3) == kWhite &&
           state.picPanelMask[container].GetPixel(3, 3) == kBlack;
  }
  std::string path() const { return state.current().path.trimmed(); }
};

// Commits.

TEST_F(FileDispatchTest, TheseCommandsCommitWhatIsOpenAndNoOthersDo) {
  const std::set<std::string> expected{
      "mnuFileSub(2)",        "mnuFileSub(3)",        "mnuFileSub(4)",          "mnuFileSub(5)",
      "mnuFileSub(7)",        "mnuFileSub(9)",        "mnuFileSub(12)",         "mnuFileSub(13)",
      "mnuFileSub(15)",       "mnuFileSub(16)",       "mnuFileSub(18)",         "mnuFileSub(19)",
      "mnuFileSub(20)",       "mnuFileHistory(1)",    "mnuFileHistory(2)",      "mnuFileHistory(3)",
      "mnuFileHistory(4)",    "mnuFileHistory(5)",    "mnuFileHistory(6)",      "mnuPopUpSub(0)",
      "mnuPopUpSub(3)",       "mnuEnquiryCurrent(9)", "mnuANIFileCreateOrEdit", "mnuANIFileHistory(1)",
      "mnuANIFileHistory(2)", "mnuANIFileHistory(3)", "mnuFileSub(8)",          "mnuPopUpSub(1)",
      "mnuExtractSub(0)",     "mnuExtractSub(1)",     "mnuExtractSub(2)",       "mnuExtractSub(3)",
      "mnuExtractSub(4)",     "mnuExtractSub(5)",     "mnuExtractSub(7)"};
  std::set<std::string> committing;
  for (const Command& row : commandTable())
    if (row.commits == Commits::Yes) committing.insert(objectNameOf(row.control, row.index));
  EXPECT_EQ(committing, expected);
}

TEST_F(FileDispatchTest, AFloatingRegionGoesToItsContainerBeforeACommandOnFiles) {
  start();
  for (const int index : {kOpenIcon, kOpenCursor, kSave, kSaveAs, kAddTo, kSaveMask}) {
    click("mnuFileSub", kNewIcon32);
    floatSquare();
    if (index == kOpenIcon || index == kOpenCursor)
      boxes.expect(kSaveQuestion, BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::No);
    dialogs.paths = {""};
    dialogs.inside = [&] {
      EXPECT_TRUE(isSquareInContainer()) << index;
      EXPECT_FALSE(state.mPendingPaint || state.mRegionExists) << index;
    };
    click("mnuFileSub", index);
    EXPECT_TRUE(dialogs.paths.empty()) << index;
    state.current().modified = false;  // the next new icon asks no question
  }
}

TEST_F(FileDispatchTest, ARefusedCommandLeavesAFloatingRegionWhereItIs) {
  start();
  click("mnuFileSub", kNewIcon32);
  floatSquare();
  click("mnuFileSub", kReplace);
  click("mnuEnquiryCurrent", 9);
  EXPECT_TRUE(state.mRegionExists && state.mPendingPaint);
  EXPECT_FALSE(isSquareInContainer());
}

// The needs are checked again: committing may have saved the icon to a new file.
TEST_F(FileDispatchTest, AnIconThatCommittingGaveAFileOfItsOwnIsNotSavedIntoTheOther) {
  start();
  const std::string multi = givenMultiIcon();
  const std::string before = folder.read("multi.ico");
  floatSquare();
  state.options.promptToSave = true;
  boxes.expect("Save current icon to file?\n\n(To remove Reminder, untick the related Option submenu)\n",
               BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes);
  boxes.expectTold(
      "Reminder:  The original icon file contains multiple icons.\n\n"
      " If you don't wish to overwrite it, save to a different name.",
      BoxIcon::Information);
  dialogs.paths = {folder.file("own.ico")};
  click("mnuFileSub", kReplace);
  EXPECT_EQ(path(), folder.file("own.ico"));
  EXPECT_EQ(dialogs.requests.size(), 1U);
  EXPECT_EQ(folder.read("multi.ico"), before);
}

// A file that the probe refuses but that holds icons.

TEST_F(FileDispatchTest, TheIconsOfARefusedFileAreOfferedOnEachRoad) {
  const IcoFile icons{{anyEntry(16, 4), anyEntry(48, 8)}, 0, 1, {}};
  const std::string refused = write("two.ico", build(icons));
  const std::string offer = refused +
                            "\n\nInvalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.\n"
                            "Please try to use Open Bitmap File menu instead."
                            "\n\nIt holds 2 icons of these sizes all the same. Show them?";
  const auto expectOffer = [&](int container) {
    boxes.expect(offer, BoxButtons::YesNo, BoxIcon::Exclamation, BoxAnswer::Yes);
    form.onMultiIcon = [this, container, &icons] {
      MultiIconExchange& exchange = shell.files().context().multiIcon;
      EXPECT_EQ(exchange.gMultiIconResult, std::to_string(container));
      exchange.chosenIcon = decode(build(icons), 1);
      exchange.gMultiIconResult = std::to_string(container + 1) + "/01/48/48/256/8/256/8";
    };
  };
  const auto expectLoaded = [&](int container) {
    EXPECT_EQ(state.mCurContainer, container);
    EXPECT_EQ(path(), refused);
    EXPECT_EQ(state.current().multiIconIndex, 1);
    EXPECT_EQ(state.current().size, 48);
    EXPECT_TRUE(boxes.done());
    shell.document().iconsPanel.SwitchContainer(0);
    click("mnuFileSub", kNewIcon32);
  };
  expectOffer(0);
  start(refused);
  expectLoaded(0);
  expectOffer(0);
  dialogs.paths = {refused};
  click("mnuFileSub", kOpenIcon);
  EXPECT_EQ(state.process.mCommandFile, refused);
  expectLoaded(0);
  expectOffer(0);
  click("mnuFileHistory", 1);
  expectLoaded(0);
  for (const int container : {0, 2}) {
    expectOffer(container);
    shell.document().iconsPanel.PanelDrop(container, {refused});
    expectLoaded(container);
  }
  EXPECT_EQ(form.multiIcons, 5);
}

// New Icon.

TEST_F(FileDispatchTest, EachEntryMakesANewIconOfItsSize) {
  start();
  const std::pair<int, int> entries[] = {{2, 32}, {3, 16}, {4, 48}, {5, 24}};
  for (const auto& [index, size] : entries) {
    click("mnuFileSub", index);
    EXPECT_EQ(state.current().size, size);
    EXPECT_EQ(state.picImage.width(), size);
    EXPECT_EQ(path(), "Untitled");
    EXPECT_EQ(shell.selectedTool(), kPaint);
    EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart16);
  }
}

TEST_F(FileDispatchTest, ANewIconOffersToSaveFirstAndCancelKeepsTheOldOne) {
  start();
  EXPECT_TRUE(openQuietly(write("old.ico", build(anyEntry(16, 4)))));
  state.current().modified = true;
  boxes.expect(kSaveQuestion, BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
  click("mnuFileSub", kNewIcon32);
  EXPECT_EQ(path(), folder.file("old.ico"));
  boxes.expect(kSaveQuestion, BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::No);
  click("mnuFileSub", kNewIcon32);
  EXPECT_EQ(path(), "Untitled");
  EXPECT_FALSE(state.current().modified);
}

TEST_F(FileDispatchTest, YesSavesWhatIsOpenOnTheIconToo) {
  start();
  EXPECT_TRUE(openQuietly(write("old.ico", build(anyEntry(32, 24)))));
  floatSquare();
  boxes.expect(kSaveQuestion, BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Yes);
  bool proceed = false;
  shell.AskSaveCurrent("", proceed);
  EXPECT_TRUE(proceed);
  EXPECT_FALSE(state.mPendingPaint);
  EXPECT_TRUE(isSquareInContainer());
  EXPECT_TRUE(openQuietly(folder.file("old.ico")));
  EXPECT_EQ(state.picImage.GetPixel(3, 3), kWhite);
}

// Saving.

TEST_F(FileDispatchTest, EachSaveCommandAsksForItsOwnKindOfFile) {
  start();
  EXPECT_TRUE(openQuietly(write("smile.ico", build(anyEntry(32, 4)))));
  struct Case {
    int index;
    const char* name;
    const char* extension;
  };
  for (const Case& c :
       {Case{kSaveAs, "smile", "ico"}, {kSaveAsBitmap, "smile", "bmp"}, {kSaveMask, "smile_Mask", "bmp"}}) {
    if (c.index == kSaveAsBitmap) boxes.expectAsked(kBitmapQuestion, BoxAnswer::Yes);
    dialogs.paths = {""};
    dialogs.requests.clear();
    click("mnuFileSub", c.index);
    ASSERT_EQ(dialogs.requests.size(), 1U) << c.index;
    EXPECT_EQ(dialogs.requests[0].fileName, c.name);
    EXPECT_EQ(dialogs.requests[0].defaultExtension, c.extension);
  }
  click("mnuFileSub", kSaveAsCursor);
  EXPECT_EQ(state.screen.mActivePanel, kCursorPanel);
}

TEST_F(FileDispatchTest, SaveWritesToItsOwnFile) {
  start();
  EXPECT_TRUE(openQuietly(write("smile.ico", build(anyEntry(32, 24)))));
  shell.drawing().tools.selectTool(kPaint);
  shell.colour().selection.setCurrentColor(0x00FF00);
  paint(3, 4);
  ASSERT_TRUE(state.current().modified);
  click("mnuFileSub", kSave);
  EXPECT_FALSE(state.current().modified);
  EXPECT_TRUE(openQuietly(folder.file("smile.ico")));
  EXPECT_EQ(state.picImage.GetPixel(3, 4), 0x00FF00);
}

TEST_F(FileDispatchTest, WithoutAnIconEverySaveSaysSoWhateverTheContainerHeld) {
  start();
  for (const bool fromMultiIconFile : {false, true}) {
    state.current().fromMultiIconFile = fromMultiIconFile;
    for (const int index : {kSave, kSaveAs, kReplace, kAddTo, kSaveAsCursor, kSaveAsBitmap, kSaveMask}) {
      boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
      click("mnuFileSub", index);
      EXPECT_TRUE(boxes.done()) << index;
    }
  }
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(FileDispatchTest, EachSaveIntoAFileOfSeveralIconsIsForItsOwnKindOfIcon) {
  start();
  EXPECT_TRUE(openQuietly(write("single.ico", build(anyEntry(16, 4)))));
  click("mnuFileSub", kReplace);
  givenMultiIcon();
  click("mnuFileSub", kAddTo);
  EXPECT_TRUE(dialogs.requests.empty());
  EXPECT_FALSE(state.current().modified);
}

// Cursors.

TEST_F(FileDispatchTest, AnIconOfAnotherSizeThatCameUpUnderThePanelIsNotSavedAsACursor) {
  start(write("given.cur", build(cursorOf(anyPicture(32, 4), 31, 31))));
  click("mnuFileSub", kSaveAsCursor);
  for (const int size : {16, 24, 48}) {
    EXPECT_TRUE(openQuietly(write("other.ico", build(anyEntry(size, 4)))));
    boxes.expectTold("For cursor of 32x32 only", BoxIcon::None);
    shell.cmdProceed();
    EXPECT_EQ(state.screen.mActivePanel, kCursorPanel) << size;
  }
  gp::ClearContainer(state);
  boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
  shell.cmdProceed();
  EXPECT_TRUE(dialogs.requests.empty());
}

}  // namespace
}  // namespace gp::test
