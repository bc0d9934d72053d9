// Panels, pages, drawing, clicks and keys of the Icons List.
#include "shell/IconsListFixture.h"

#include <algorithm>
#include <filesystem>

namespace gp::test {
namespace {

using testing::ElementsAre;

constexpr const char* kInvalidText = "This one is an invalid icon file or of a size not 16x16, 24x24, 32x32 or 48x48.";

class IconsListTest : public IconsListProgram {
 protected:
  std::vector<std::string> labels() const {
    std::vector<std::string> texts;
    for (const ListCell& cell : list.cells()) texts.push_back(cell.label);
    return texts;
  }
  // Runs an action at the pump with that number, from 0; the drawing pumps before its cells and after each.
  void atPump(int number, std::function<void()> action) {
    pump.inside = [this, number, action] {
      if (number == 0)
        action();
      else
        atPump(number - 1, action);
    };
  }
};

// Panels and pages.

TEST_F(IconsListTest, AFolderIsShownOnItsPanel) {
  const std::string path = writeFolder(13);
  openFolder(path);
  EXPECT_TRUE(isListUp());
  EXPECT_EQ(list.mListSource(), ListSource::Folder);
  EXPECT_EQ(drawnCells(), 13);
  EXPECT_EQ(list.kindLabel(), "Icons In Folder");
  EXPECT_EQ(list.countLabel(), "Icons  13 / 13");
  EXPECT_EQ(list.sourceLabel(), " " + path);
  EXPECT_EQ(list.panelCount(), 1);
  EXPECT_EQ(list.pageCount(), 2);
  EXPECT_TRUE(list.isNextPageVisible());
  EXPECT_FALSE(list.isNextPanelEnabled());
  EXPECT_FALSE(list.offersSaveAll());
  EXPECT_EQ(state.screen.progressPercent, -1);
  EXPECT_FALSE(state.screen.hourglass);
}

TEST_F(IconsListTest, FortyEightIconsAreFourPages) {
  openFolder(writeFolder(48));
  EXPECT_EQ(list.panelCount(), 1);
  EXPECT_EQ(list.pageCount(), 4);
  EXPECT_EQ(list.countLabel(), "Icons  48 / 48");
}

TEST_F(IconsListTest, TwelveIconsAreOnePage) {
  openFolder(writeFolder(12));
  EXPECT_EQ(list.pageCount(), 1);
  EXPECT_FALSE(list.isNextPageVisible());
}

TEST_F(IconsListTest, TheFortyNinthIconIsNeverShown) {
  openFolder(writeFolder(49));
  EXPECT_EQ(list.panelCount(), 1);
  EXPECT_EQ(list.cells().size(), 48U);
  EXPECT_EQ(list.countLabel(), "Icons  49 / 49");
  list.moveMark(ListMove::End);
  EXPECT_EQ(list.markedCell(), 47);
}

TEST_F(IconsListTest, FiftyIconsAreTwoPanels) {
  openFolder(writeFolder(50));
  EXPECT_EQ(list.panelCount(), 2);
  EXPECT_EQ(list.countLabel(), "Icons  48 / 50");
  EXPECT_TRUE(list.isNextPanelEnabled());
  list.cmdNextPanel();
  EXPECT_EQ(list.panelItem(), 1);
  EXPECT_THAT(labels(), ElementsAre("a48", "a49"));
  EXPECT_EQ(list.countLabel(), "Icons  2 / 50");
  EXPECT_TRUE(list.isNextPageVisible());
  list.cmdNextPanel();
  EXPECT_EQ(list.panelItem(), 0);
  list.choosePanel(1);
  EXPECT_EQ(list.panelItem(), 1);
  list.choosePanel(2);
  EXPECT_EQ(list.panelItem(), 1);
}

TEST_F(IconsListTest, PageButtonsMoveTheBar) {
  openFolder(writeFolder(48));
  list.cmdPageRef(2);
  EXPECT_EQ(list.currentPage(), 2);
  EXPECT_EQ(list.scrollValue(), 800);  // a page of the fixture's grid is 400 high
  list.scrollTo(10);
  EXPECT_EQ(list.currentPage(), -1);
  list.cmdNextPage();
  EXPECT_EQ(list.currentPage(), 1);
  EXPECT_EQ(list.scrollValue(), 400);
}

TEST_F(IconsListTest, ThePageBehindTheLastOneIsThatOfTheNextPanel) {
  openFolder(writeFolder(50));
  for (int i = 0; i < 4; ++i) list.cmdNextPage();
  EXPECT_EQ(list.panelItem(), 1);
  EXPECT_THAT(labels(), ElementsAre("a48", "a49"));
  EXPECT_EQ(drawnCells(), 2);
  list.cmdNextPage();
  EXPECT_EQ(list.panelItem(), 0);
}

// Cells.

TEST_F(IconsListTest, ALongNameIsCutToEightCharacters) {
  const std::string path = folder.makeFolder("icons");
  folder.write("icons/12345678.ico", plainIconFile(32, 1));
  folder.write(
      "icons/\xC3\xA4\xC3\xB6\xC3\xBC"
      "456789.ico",
      plainIconFile(32, 1));
  openFolder(path);
  EXPECT_THAT(labels(), ElementsAre("12345678",
                                    "\xC3\xA4\xC3\xB6\xC3\xBC"
                                    "45678.."));
}

TEST_F(IconsListTest, AFileWithSeveralIconsIsMarked) {
  const std::string path = folder.makeFolder("icons");
  folder.write("icons/many.ico", asText(build(IcoFile{{anyEntry(32, 4), anyEntry(16, 4)}, 0, 1, {}})));
  folder.write("icons/one.ico", plainIconFile(16, 3));
  openFolder(path);
  EXPECT_TRUE(list.cells()[0].isMultiIcon);
  EXPECT_FALSE(list.cells()[1].isMultiIcon);
  EXPECT_EQ(list.cells()[1].picture.width(), 16);
  EXPECT_EQ(list.cells()[1].picture.GetPixel(0, 0), colorOf({252, 3, 48}));
}

TEST_F(IconsListTest, ALargeIconIsShownAtThirtyTwo) {
  const std::string path = folder.makeFolder("icons");
  folder.write("icons/large.ico", plainIconFile(48, 3));
  openFolder(path);
  EXPECT_EQ(list.cells()[0].picture.width(), 32);
  EXPECT_EQ(list.cells()[0].side, 48);
}

TEST_F(IconsListTest, TransparentPixelsShowTheGroundAndAlphaIsBlended) {
  const std::string path = folder.makeFolder("icons");
  Picture half = plainPicture(32, {200, 100, 0, 128}, 32);
  half.transparent = [](int x, int) { return x == 1; };
  folder.write("icons/half.ico", asText(build(entryOf(half))));
  openFolder(path);
  const Surface& picture = list.cells()[0].picture;
  EXPECT_EQ(picture.GetPixel(0, 0), colorOf({196, 146, 96}));
  EXPECT_EQ(picture.GetPixel(1, 0), kGround);
}

TEST_F(IconsListTest, AFileThatCannotBeReadIsInvalid) {
  const std::string path = folder.makeFolder("icons");
  folder.write("icons/bad.ico", "no icon");
  folder.write("icons/odd.ico", asText(build(entryOf(plainPicture(20, {1, 2, 3})))));
  folder.write("icons/red.ico", plainIconFile(32, 1));
  openFolder(path);
  EXPECT_FALSE(list.cells()[0].valid);
  EXPECT_FALSE(list.cells()[1].valid);
  EXPECT_TRUE(list.cells()[2].valid);
  for (const int cell : {0, 1}) {
    boxes.expectTold(kInvalidText, BoxIcon::None);
    clickCell(cell);
    EXPECT_EQ(list.markedCell(), -1);
  }
  EXPECT_FALSE(state.current().used);
}

// Clicks.

TEST_F(IconsListTest, AClickBelowTheLastIconDoesNothing) {
  openFolder(writeFolder(2));
  clickCell(0);
  const Color before = stored(0);
  clickCell(2);
  EXPECT_EQ(stored(0), before);
  EXPECT_EQ(list.markedCell(), -1);
  list.click(-1, 5, ListButton::Left);
  list.click(5, 100000, ListButton::Right);
  EXPECT_TRUE(isListUp());
}

TEST_F(IconsListTest, ALeftClickKeepsTheListAndFillsTheContainerOnly) {
  openFolder(writeFolder(3));
  const Color before = shown();
  clickCell(1);
  EXPECT_TRUE(isListUp());
  EXPECT_EQ(list.markedCell(), 1);
  EXPECT_EQ(stored(0), list.cells()[1].picture.GetPixel(0, 0));
  EXPECT_EQ(path(), folder.path() + "/icons/a01.ico");
  EXPECT_TRUE(state.current().present);
  EXPECT_EQ(shown(), before);
  EXPECT_TRUE(shell.document().iconsPanel.displayWaits());
}

TEST_F(IconsListTest, ARightClickLoadsTheIconAndLeavesTheList) {
  openFolder(writeFolder(3));
  const Color color = list.cells()[2].picture.GetPixel(0, 0);
  clickCell(2, ListButton::Right);
  EXPECT_FALSE(isListUp());
  EXPECT_EQ(list.mListSource(), ListSource::None);
  EXPECT_EQ(shown(), color);
  EXPECT_EQ(stored(0), color);
  EXPECT_EQ(path(), folder.path() + "/icons/a02.ico");
  EXPECT_FALSE(shell.document().iconsPanel.displayWaits());
}

TEST_F(IconsListTest, AnIconOfAnotherPanelIsTaken) {
  openFolder(writeFolder(50));
  list.cmdNextPanel();
  clickCell(1);
  EXPECT_EQ(path(), folder.path() + "/icons/a49.ico");
}

TEST_F(IconsListTest, AClickOnAFileThatHasGoneSaysSo) {
  openFolder(writeFolder(2));
  std::filesystem::remove(folder.file("icons/a01.ico"));
  boxes.expectTold(folder.file("icons/a01.ico") + " file missing.\n", BoxIcon::Exclamation);
  clickCell(1);
  EXPECT_FALSE(state.current().used);
  EXPECT_EQ(list.markedCell(), -1);
}

TEST_F(IconsListTest, AClickOnAFileWithSeveralIconsShowsTheBrowser) {
  const std::string path = folder.makeFolder("icons");
  folder.write("icons/many.ico", asText(build(IcoFile{{anyEntry(32, 4), anyEntry(16, 4)}, 0, 1, {}})));
  openFolder(path);
  clickCell(0);  // the user closes the browser
  EXPECT_EQ(form.multiIcons, 1);
  EXPECT_FALSE(state.current().used);
  EXPECT_TRUE(isListUp());
  clickCell(0, ListButton::Right);
  EXPECT_EQ(form.multiIcons, 2);
  EXPECT_TRUE(isListUp());
}

// The keyboard and speech.

TEST_F(IconsListTest, KeysMoveTheMarkAndItIsSpoken) {
  openFolder(writeFolder(20));
  list.moveMark(ListMove::Down);
  EXPECT_EQ(list.markedCell(), 0);
  EXPECT_EQ(list.spokenMark(), "Icon 1 of 20, a00.ico, 32 by 32");
  EXPECT_EQ(display.announced.back(), list.spokenMark());
  list.moveMark(ListMove::Down);
  EXPECT_EQ(list.markedCell(), 3);
  list.moveMark(ListMove::PageDown);
  EXPECT_EQ(list.markedCell(), 15);
  EXPECT_EQ(list.currentPage(), 1);
  EXPECT_EQ(list.scrollValue(), 400);
  list.moveMark(ListMove::Home);
  EXPECT_EQ(list.currentPage(), 0);
}

TEST_F(IconsListTest, KeysReachTheOtherPanels) {
  openFolder(writeFolder(50));
  list.moveMark(ListMove::End);
  EXPECT_EQ(list.panelItem(), 1);
  EXPECT_EQ(list.markedCell(), 1);
  EXPECT_EQ(display.announced.back(), "Icon 50 of 50, a49.ico, 32 by 32");
  list.moveMark(ListMove::Left);
  list.moveMark(ListMove::Left);
  EXPECT_EQ(list.panelItem(), 0);
  EXPECT_EQ(list.markedCell(), 47);
}

TEST_F(IconsListTest, AnInvalidCellIsSpokenAsSuch) {
  const std::string path = folder.makeFolder("icons");
  folder.write("icons/bad.ico", "no icon");
  openFolder(path);
  list.moveMark(ListMove::Home);
  EXPECT_EQ(list.spokenMark(), "Icon 1 of 1, bad.ico, invalid");
  boxes.expectTold(kInvalidText, BoxIcon::None);
  list.takeMarked(ListButton::Left);
}

TEST_F(IconsListTest, EnterTakesTheMarkedIcon) {
  openFolder(writeFolder(3));
  list.takeMarked(ListButton::Left);
  EXPECT_FALSE(state.current().used);
  list.moveMark(ListMove::End);
  list.takeMarked(ListButton::Left);
  EXPECT_EQ(path(), folder.path() + "/icons/a02.ico");
  EXPECT_TRUE(isListUp());
  list.takeMarked(ListButton::Right);
  EXPECT_FALSE(isListUp());
  EXPECT_EQ(shown(), stored(0));
}

// While it draws.

TEST_F(IconsListTest, EscapeStopsTheDrawingAtAnyCell) {
  openFolder(writeFolder(60));
  for (int cells = 0; cells < 12; ++cells) {
    list.choosePanel(0);
    atPump(cells, [&] {
      EXPECT_TRUE(list.isDrawing());
      EXPECT_TRUE(state.screen.hourglass);
      shell.escapeKey();
    });
    list.choosePanel(1);
    EXPECT_EQ(drawnCells(), cells);
    EXPECT_FALSE(list.isDrawing());
    EXPECT_EQ(state.screen.progressPercent, -1);
    EXPECT_TRUE(isListUp());
  }
}

TEST_F(IconsListTest, TheProgressFollowsTheCells) {
  openFolder(writeFolder(52));
  std::vector<int> percents;
  display.onChanged = [&](DisplayPart part) {
    if (part == DisplayPart::StatusBar) percents.push_back(state.screen.progressPercent);
  };
  list.cmdNextPanel();
  EXPECT_THAT(percents, ElementsAre(25, 50, 75, 100, -1));
}

TEST_F(IconsListTest, APanelChosenWhileAnotherIsDrawnTakesItsPlace) {
  openFolder(writeFolder(98));
  atPump(5, [&] { list.choosePanel(2); });
  list.choosePanel(1);
  EXPECT_EQ(list.panelItem(), 2);
  EXPECT_EQ(drawnCells(), 2);
  EXPECT_EQ(labels().front(), "a96");
}

TEST_F(IconsListTest, ClosingWhileItIsDrawnGivesTheListUp) {
  openFolder(writeFolder(60));
  atPump(5, [&] { shell.cmdCancel(); });
  list.choosePanel(1);
  EXPECT_FALSE(isListUp());
  EXPECT_EQ(list.mListSource(), ListSource::None);
  EXPECT_TRUE(list.cells().empty());
  EXPECT_EQ(list.panelCount(), 0);
}

TEST_F(IconsListTest, TheProgramCanEndWhileAListIsDrawn) {
  openFolder(writeFolder(60));
  atPump(5, [&] { EXPECT_TRUE(shell.queryUnload()); });
  list.choosePanel(1);
  EXPECT_FALSE(list.isDrawing());
  EXPECT_EQ(list.mListSource(), ListSource::None);
}

TEST_F(IconsListTest, NothingElseCountsWhileAListIsDrawn) {
  openFolder(writeFolder(60));
  int tried = 0;
  atPump(5, [&] {
    ++tried;
    for (const Command& row : commandTable()) shell.run(row);
    for (const ToolbarButton& button : toolbarTable()) shell.runToolbar(button);
    shell.chooseTool(kPaint);
    shell.chooseColorPicker();
    shell.zoom(ZoomStep::In);
    shell.cmdProceed();
    clickCell(0);
    clickCell(1, ListButton::Right);
    list.takeMarked(ListButton::Left);
    list.cmdInvokeFolderOrFileDialog();
    list.cmdSaveAllExtractToFiles(SavedFrames::Icons);
    paint(1, 1);
    IconsPanel& panel = shell.document().iconsPanel;
    panel.SwitchContainer(3);
    panel.PanelRightClick(3);
    panel.PanelDrop(3, {folder.file("icons/a01.ico")});
    panel.AreaDrop({folder.file("icons/a01.ico")});
    panel.updateFromCurrent();
  });
  list.choosePanel(1);
  EXPECT_EQ(tried, 1);
  EXPECT_EQ(drawnCells(), 12);
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_TRUE(std::ranges::none_of(state.mIconRecs, &IconContainerRec::used));
  EXPECT_TRUE(isListUp());
}

TEST_F(IconsListTest, WhatIsNotDrawnCanStillBeTaken) {
  openFolder(writeFolder(50));
  pump.inside = [&] { shell.escapeKey(); };
  list.cmdNextPanel();
  EXPECT_EQ(drawnCells(), 0);
  EXPECT_FALSE(list.isDrawing());
  clickCell(0);
  EXPECT_EQ(path(), folder.path() + "/icons/a48.ico");
}

}  // namespace
}  // namespace gp::test
