// Files that pass every check until their image is decoded. Whichever way they are opened, the icon that is there stays
// as it was, with its changes and its Undo history.
#include "files/CursorBuilder.h"
#include "shell/ShellSnapshot.h"
#include "support/ShellFixture.h"

#include <algorithm>

namespace gp::test {
namespace {

constexpr const char* kSaveQuestion = "Save current icon to file?";
constexpr const char* kFailed = "\nFailed to load this file";
constexpr const char* kStrange = "\nIncoming icon is a True Color icon but not of 24 BPP or 32 BPP.\n";
constexpr int kOpenIcon = 7, kOpenCursor = 9, kUndo = 1;
const Bytes kPngStart{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};

Bytes pngIcon() {
  Entry entry = anyEntry(32, 32);
  entry.image = kPngStart;
  return build(entry);
}
Bytes iconOfThreeBits() { return build(entryOf(anyPicture(32, 8), 0, 3)); }
Bytes iconOf16Bits() { return build(entryOf(anyPicture(32, 32), 0, 16)); }

class FailedOpening : public ShellFixture {
 protected:
  std::string write(const std::string& name, const Bytes& bytes) {
    return folder.write(name, std::string(bytes.begin(), bytes.end()));
  }
  // Two containers with icons; the first one is current and has an unsaved change.
  void given() {
    start();
    bool ok = false;
    shell.document().iconsPanel.SwitchContainer(1);
    shell.files().iconFiles.doOpenIconFile(write("other.ico", build(anyEntry(48, 8))), true, ok);
    shell.document().iconsPanel.SwitchContainer(0);
    shell.files().iconFiles.doOpenIconFile(write("good.ico", build(anyEntry(24, 4))), true, ok);
    shell.drawing().tools.selectTool(kPaint);
    shell.colour().selection.setCurrentColor(0x00FF00);
    paint(3, 4);
    ASSERT_TRUE(state.IsIconChanged());
    ASSERT_EQ(state.picImage.GetPixel(3, 4), 0x00FF00);
  }
  void expectSaveQuestion() { boxes.expect(kSaveQuestion, BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::No); }
  Snapshot snapshot() { return SnapshotMaker(shell, clipboard, folder).make(); }
  std::vector<std::string> changesSince(const Snapshot& before) {
    std::vector<std::string> names = differences(before, snapshot());
    std::erase(names, "process");  // the folder of the last dialog
    return names;
  }
  // The step before the opening can still be undone.
  void expectUndo() {
    click("mnuEditSub", kUndo);
    EXPECT_NE(state.picImage.GetPixel(3, 4), 0x00FF00);
    EXPECT_EQ(shell.drawing().history.redoCount(), 1);
  }

  using Names = std::vector<std::string>;
};

TEST_F(FailedOpening, NoRoadLosesTheIconThatIsThere) {
  given();
  struct Case {
    Bytes bytes;
    const char* text;
    BoxIcon icon;
  };
  for (const Case& c : {Case{pngIcon(), kFailed, BoxIcon::Exclamation},
                        {iconOfThreeBits(), kFailed, BoxIcon::Exclamation},
                        {iconOf16Bits(), kStrange, BoxIcon::Information}}) {
    const std::string bad = write("bad.ico", c.bytes);
    const Snapshot before = snapshot();

    expectSaveQuestion();
    boxes.expectTold(bad + c.text, c.icon);
    dialogs.paths = {bad};
    click("mnuFileSub", kOpenIcon);
    EXPECT_EQ(changesSince(before), Names{}) << "the menu";

    boxes.expectTold(bad + c.text, c.icon);
    bool ok = true;
    shell.files().iconFiles.doOpenIconFile(bad, false, ok);  // as for a command line
    EXPECT_FALSE(ok);
    EXPECT_EQ(changesSince(before), Names{}) << "without the browser";

    shell.document().iconsPanel.PanelDrop(0, {bad});
    EXPECT_EQ(changesSince(before), Names{}) << "a drop";
    EXPECT_TRUE(boxes.done());
  }
  expectUndo();
}

TEST_F(FailedOpening, AFileOfTheHistoryThatCannotBeDecodedAnyMoreLosesNothing) {
  given();
  const std::string bad = write("other.ico", pngIcon());
  const Snapshot before = snapshot();
  ASSERT_EQ(shell.fileHistory().path(2), bad);
  expectSaveQuestion();
  boxes.expectTold(bad + kFailed, BoxIcon::Exclamation);
  click("mnuFileHistory", 2);
  EXPECT_EQ(changesSince(before), Names{});
  expectUndo();
}

TEST_F(FailedOpening, ADropOnAnotherContainerLeavesBothContainersAsTheyWere) {
  given();
  const std::string bad = write("bad.ico", pngIcon());
  const Snapshot before = snapshot();
  for (const int container : {1, 2}) shell.document().iconsPanel.PanelDrop(container, {bad});
  // The first container has taken the changes that are on the Editing Area.
  EXPECT_EQ(changesSince(before), (Names{"picPanelIcon 0", "picPanelImage 0"}));
  EXPECT_TRUE(std::ranges::equal(state.picPanelImage[0].pixels(), state.picImage.pixels()));
  expectUndo();
}

TEST_F(FailedOpening, ADropOnAnotherContainerKeepsANewIcon) {
  start();
  click("mnuFileSub", 2);
  const Snapshot before = snapshot();
  write("bad.ico", pngIcon());
  shell.document().iconsPanel.PanelDrop(3, {folder.file("bad.ico")});
  EXPECT_EQ(changesSince(before), Names{"file bad.ico"});
}

TEST_F(FailedOpening, ACursorThatCannotBeDecodedLosesNothing) {
  given();
  CursorFile png, odd = cursorOf(anyPicture(32, 32));
  png.image = kPngStart;
  odd.picture.headerBits = 16;
  const std::string pngPath = write("png.cur", build(png)), oddPath = write("odd.cur", build(odd));
  const Snapshot before = snapshot();
  for (const std::string& path : {pngPath, oddPath}) {
    expectSaveQuestion();
    if (path == pngPath)
      boxes.expectTold("Failed to load this cursor", BoxIcon::Exclamation);
    else
      boxes.expectTold(path + kStrange, BoxIcon::Information);
    dialogs.paths = {path};
    click("mnuFileSub", kOpenCursor);
    EXPECT_EQ(changesSince(before), Names{}) << path;
  }
  expectUndo();
}

TEST_F(FailedOpening, AnEmptyContainerStaysEmpty) {
  start();
  const std::string bad = write("bad.ico", pngIcon());
  const Snapshot before = snapshot();
  boxes.expectTold(bad + kFailed, BoxIcon::Exclamation);
  dialogs.paths = {bad};
  click("mnuFileSub", kOpenIcon);
  EXPECT_EQ(changesSince(before), Names{});
  EXPECT_FALSE(state.current().used);
  EXPECT_FALSE(state.screen.fraTools[1]) << "there is nothing to draw on";
}

}  // namespace
}  // namespace gp::test
