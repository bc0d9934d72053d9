#include "shell/FormPlacement.h"
#include "shell/Shell.h"
#include "support/ShellFixture.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace gp {
namespace {

using test::plainIconFile;
using ShellTest = test::ShellFixture;

constexpr int kUndoAll = 0, kUndo = 1, kRedo = 2;  // of mnuEditSub

TEST_F(ShellTest, TheProgramStartsEmptyWithContainerOneAndTheSmallChart) {
  start();
  EXPECT_EQ(state.mCurContainer, 0);
  EXPECT_FALSE(state.current().used);
  for (int i = 0; i < kContainerCount; ++i) EXPECT_EQ(state.mIconRecs[static_cast<std::size_t>(i)].seq, i);
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart16);
  EXPECT_EQ(state.screen.fraTools[0], true);
  EXPECT_EQ(state.screen.fraTools[1], false);
  EXPECT_EQ(state.mCurrentColor, kWhite);
  EXPECT_EQ(state.picDisp.width(), 384);
  EXPECT_EQ(state.picDisp.GetPixel(0, 0), kGround);
  EXPECT_EQ(form.now.width, kFormWidth);
  EXPECT_EQ(form.now.height, kFormHeight);
}

TEST_F(ShellTest, TheFileOfTheCommandLineOpensWithItsChart) {
  start("\"" + folder.write("my icon.Ico", plainIconFile(32, 3)) + "\"");
  EXPECT_TRUE(state.current().present);
  EXPECT_EQ(state.current().path.trimmed(), folder.file("my icon.Ico"));
  EXPECT_EQ(state.process.mCommandFile, folder.file("my icon.Ico"));
  EXPECT_EQ(status(StatusPanel::Size), "32 x 32");
  EXPECT_EQ(state.PicIcon.GetPixel(0, 0), rgb(252, 3, 48));
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart256) << "its colour is none of the sixteen";
}

TEST_F(ShellTest, AFileThatIsNotThereIsReportedAndTheProgramStartsEmpty) {
  boxes.expectTold(folder.file("none.ico") + "\nFile not found.", BoxIcon::Exclamation);
  start(folder.file("none.ico"));
  EXPECT_FALSE(state.current().used);
}

TEST_F(ShellTest, TheProgramsFolderIsCurrentUnlessAnIconWasOpened) {
  const std::string icon = folder.write("a.ico", plainIconFile(16, 1));
  shell.formLoad();
  shell.formActivate(icon);
  EXPECT_EQ(std::filesystem::current_path(), directory.before());
  Shell second(state, shell.ports(), display, test::foldersIn(folder.path()));
  second.formLoad();
  second.formActivate("");
  EXPECT_EQ(std::filesystem::current_path(), std::filesystem::path(folder.path()));
}

TEST_F(ShellTest, AnUnknownEndingStartsEmptyInSilence) {
  start(folder.write("a.png"));
  EXPECT_FALSE(state.current().used);
}

TEST_F(ShellTest, OnlyTheFirstActivateOpensAFile) {
  start();
  shell.formActivate(folder.write("a.ico", plainIconFile(16, 1)));
  EXPECT_FALSE(state.current().used);
}

TEST_F(ShellTest, ClosingWithNoContainerUsedAsksNothing) {
  start();
  EXPECT_TRUE(shell.queryUnload());
}

TEST_F(ShellTest, ClosingWithChangesAsksAndNoKeepsTheProgramRunning) {
  start();
  click("mnuFileSub", 2);
  paint(1, 1);
  const std::string question = "The following is not saved yet: \n\nIcon Seq 1    Untitled\n\nProceed to exit still?\n";
  boxes.expectAsked(question, BoxAnswer::No);
  EXPECT_FALSE(shell.queryUnload());
  EXPECT_EQ(folder.read("Glimmerpane.ini").find("Width"), std::string::npos) << "nothing is written";
  boxes.expectAsked(question, BoxAnswer::Yes);
  EXPECT_TRUE(shell.queryUnload());
}

TEST_F(ShellTest, ClosingWritesPlaceOptionsAndLastFolder) {
  start();
  form.now = {150, 300, 12000, 9000, true, false};
  click("mnuOptionsSub", 11);
  EXPECT_TRUE(shell.queryUnload());
  const std::string ini = folder.read("Glimmerpane.ini");
  for (const char* line : {"Left=150", "Top=300", "Width=12000", "Height=9000", "WinState=-1", "PromptToSave=-1"})
    EXPECT_NE(ini.find(line), std::string::npos) << line;
  EXPECT_NE(ini.find("LastFolder=" + folder.path()), std::string::npos);
}

TEST_F(ShellTest, AMinimisedFormLeavesTheStoredPlace) {
  start();
  form.now = {150, 300, 12000, 9000, false, true};
  EXPECT_TRUE(shell.queryUnload());
  EXPECT_EQ(folder.read("Glimmerpane.ini").find("Left="), std::string::npos);
}

TEST_F(ShellTest, ClosingBeforeTheOptionsWereReadKeepsThem) {
  folder.write("Glimmerpane.ini", "[Options]\nGridLines=3\n");
  shell.formLoad();
  EXPECT_TRUE(shell.queryUnload());
  EXPECT_NE(folder.read("Glimmerpane.ini").find("GridLines=3"), std::string::npos);
}

TEST_F(ShellTest, SettingsOfTheLastSessionStandAgain) {
  folder.write("Glimmerpane.ini",
               "[Options]\nGridLines=6\nDisplayPixelRGB=-1\nOptedStartScreen=2\n"
               "[Screen Pos]\nLeft=150\nTop=300\nWidth=15000\nHeight=12000\nWinState=0\n");
  start();
  EXPECT_EQ(state.gGridColor, kNoGrid);
  EXPECT_TRUE(state.screen.pixelRgbVisible);
  EXPECT_EQ(form.now.left, 150);
  EXPECT_EQ(form.now.top, 300);
  EXPECT_EQ(form.now.width, 15000);
  EXPECT_EQ(form.now.height, 12000);
}

TEST_F(ShellTest, TheFolderOfTheLastSessionIsReadAtStartIfItIsStillThere) {
  std::filesystem::create_directory(folder.file("icons"));
  folder.write("Glimmerpane.ini", "[Last Folder]\nLastFolder=" + folder.file("icons") + "\n");
  shell.formLoad();
  EXPECT_EQ(state.process.mLastFolder, folder.file("icons"));
  folder.write("Glimmerpane.ini", "[Last Folder]\nLastFolder=" + folder.file("gone") + "\n");
  shell.formLoad();
  EXPECT_EQ(state.process.mLastFolder, folder.path()) << "the program's folder";
}

TEST_F(ShellTest, TheDefaultStartScreenKeepsTheDefaultSize) {
  folder.write("Glimmerpane.ini", "[Screen Pos]\nLeft=150\nTop=300\nWidth=15000\nHeight=12000\nWinState=-1\n");
  start();
  EXPECT_EQ(form.now.width, kFormWidth);
  EXPECT_EQ(form.maximizes, 0);
}

TEST_F(ShellTest, AMaximisedLastSessionMaximisesWithThatOption) {
  folder.write("Glimmerpane.ini",
               "[Options]\nOptedStartScreen=1\n[Screen Pos]\nLeft=1\nTop=1\nWidth=1\nHeight=1\nWinState=-1\n");
  start();
  EXPECT_EQ(form.maximizes, 1);
}

TEST_F(ShellTest, OpenedFilesEnterTheHistoryAndOpenFromIt) {
  start();
  dialogs.paths = {folder.write("a.ico", plainIconFile(32, 1)), folder.write("b.ico", plainIconFile(16, 2))};
  click("mnuFileSub", 7);
  click("mnuFileSub", 7);
  EXPECT_EQ(captionOf(*findCommand("mnuFileHistory", 1), shell).substr(0, 3), "&1 ");
  EXPECT_TRUE(isVisible(*findCommand("mnuFileHistory", 0), shell));
  EXPECT_TRUE(isVisible(*findCommand("mnuFileHistory", 2), shell));
  EXPECT_FALSE(isVisible(*findCommand("mnuFileHistory", 3), shell));
  click("mnuFileHistory", 2);
  EXPECT_EQ(state.current().path.trimmed(), folder.file("a.ico"));
  EXPECT_EQ(state.current().size, 32);
}

TEST_F(ShellTest, AFileOfTheHistoryThatIsGoneIsReportedAndItsEntryStays) {
  start();
  dialogs.paths = {folder.write("a.ico", plainIconFile(32, 1))};
  click("mnuFileSub", 7);
  std::filesystem::remove(folder.file("a.ico"));
  boxes.expectTold(folder.file("a.ico") + "\nFile not found.", BoxIcon::Exclamation);
  click("mnuFileHistory", 1);
  EXPECT_TRUE(isVisible(*findCommand("mnuFileHistory", 1), shell));
}

TEST_F(ShellTest, AChangedIconIsOfferedForSavingBeforeAFileOfTheHistory) {
  start();
  dialogs.paths = {folder.write("a.ico", plainIconFile(32, 1))};
  click("mnuFileSub", 7);
  shell.drawing().tools.selectTool(kErase);
  paint(2, 2);
  boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
  click("mnuFileHistory", 1);
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(state.picMask.GetPixel(2, 2), kWhite);
}

TEST_F(ShellTest, APaintedIconIsSavedAndOpensAgainWithTheSamePixels) {
  start();
  click("mnuFileSub", 5);
  shell.colour().selection.setCurrentColor(0x0000FF);
  paint(0, 0);
  paint(23, 23);
  dialogs.paths = {folder.file("new.ico")};
  click("mnuFileSub", 13);
  EXPECT_FALSE(state.current().modified);
  EXPECT_EQ(status(StatusPanel::Path), folder.file("new.ico"));
  const Surface image = state.picImage;
  const Surface mask = state.picMask;
  shell.document().iconsPanel.SwitchContainer(1);
  dialogs.paths = {folder.file("new.ico")};
  click("mnuFileSub", 7);
  EXPECT_TRUE(std::ranges::equal(state.picImage.pixels(), image.pixels()));
  EXPECT_TRUE(std::ranges::equal(state.picMask.pixels(), mask.pixels()));
  EXPECT_EQ(state.current().dirColors, 16);
}

TEST_F(ShellTest, ABadFileLeavesTheOtherContainersUntouched) {
  start();
  dialogs.paths = {folder.write("a.ico", plainIconFile(32, 1))};
  click("mnuFileSub", 7);
  const Surface before = state.picPanelImage[0];
  shell.document().iconsPanel.SwitchContainer(1);
  bool ok = true;
  shell.doOpenIconFileQuietly(folder.write("bad.ico", "not an icon at all"), ok);
  EXPECT_FALSE(ok);
  EXPECT_TRUE(state.mIconRecs[0].present);
  EXPECT_TRUE(std::ranges::equal(state.picPanelImage[0].pixels(), before.pixels()));
}

TEST_F(ShellTest, AnIconDroppedOnAnotherContainerShowsThere) {
  start();
  click("mnuFileSub", 2);
  shell.document().iconsPanel.PanelDrop(3, {folder.write("d.ico", plainIconFile(48, 5))});
  EXPECT_EQ(state.mCurContainer, 3);
  EXPECT_EQ(state.picDisp.width(), 384);
  EXPECT_EQ(state.current().size, 48);
  shell.document().iconsPanel.SwitchContainer(0);
  EXPECT_EQ(state.current().path.trimmed(), "Untitled");
}

TEST_F(ShellTest, HelpSaysThatTheManualIsMissingUntilThereIsOne) {
  start();
  boxes.expectTold("GPHelp.chm missing in current folder.", BoxIcon::Exclamation);
  click("mnuHelpSub", 0);
  folder.write("GPHelp.chm");
  click("mnuHelpSub", 0);
  EXPECT_EQ(processes.calls, std::vector<std::string>{"open " + folder.file("GPHelp.chm")});
}

TEST_F(ShellTest, AboutIsShownAndExitUnloadsTheForm) {
  start();
  click("mnuHelpSub", 1);
  EXPECT_EQ(form.abouts, 1);
  click("mnuFileExit", kNoIndex);
  EXPECT_EQ(form.unloads, 1);
}

TEST_F(ShellTest, TheCompanionIsStartedOutOfTheProgramsFolderOrItIsSaidThatItIsNotThere) {
  start();
  boxes.expectTold("gpsupp1.exe missing in current folder.", BoxIcon::Exclamation);
  click("mnuFileSubCustomSize", kNoIndex);
  folder.write("gpsupp1.exe");
  click("mnuFileSubCustomSize", kNoIndex);
  EXPECT_EQ(processes.calls, std::vector<std::string>{"start " + folder.file("gpsupp1.exe")});
  EXPECT_EQ(form.unloads, 1);
}

TEST_F(ShellTest, ResettingAsksFirstAndThenSetsTheDefaults) {
  start();
  click("mnuOptionsSubGrid", 6);
  click("mnuOptionsSub", 5);
  boxes.expectAsked("Confirm to reset to default settings?", BoxAnswer::No);
  click("mnuOptionsSub", 16);
  EXPECT_EQ(state.options.grid, 6);
  boxes.expectAsked("Confirm to reset to default settings?", BoxAnswer::Yes);
  click("mnuOptionsSub", 16);
  EXPECT_EQ(state.options.grid, 0);
  EXPECT_EQ(state.gGridColor, 0x606060);
  EXPECT_FALSE(state.screen.pixelRgbVisible);
}

TEST_F(ShellTest, TheEnlargedOptionActsAtOnce) {
  start();
  click("mnuFileSub", 2);
  shell.formResize(600, 600);
  EXPECT_EQ(state.gMagnification, 15);
  click("mnuOptionsSub", 3);
  EXPECT_EQ(state.gMagnification, 12);
  EXPECT_EQ(state.picDisp.width(), 384);
}

TEST_F(ShellTest, ResettingEnlargesTheEditingAreaAgain) {
  start(folder.write("a.ico", plainIconFile(32, 1)));
  shell.formResize(520, 520);
  click("mnuOptionsSub", 3);
  EXPECT_EQ(state.picDisp.width(), 384);
  boxes.expectAsked("Confirm to reset to default settings?", BoxAnswer::Yes);
  click("mnuOptionsSub", 16);
  EXPECT_EQ(state.picDisp.width(), 480);
}

TEST_F(ShellTest, ANewIconIsTransparentWithPaintSelected) {
  start();
  click("mnuFileSub", 3);
  EXPECT_EQ(state.current().size, 16);
  EXPECT_EQ(shell.selectedTool(), kPaint);
  EXPECT_EQ(state.PicIcon.GetPixel(8, 8), kGround);
  EXPECT_EQ(status(StatusPanel::Path), "Untitled");
}

TEST_F(ShellTest, AStrokeIsTakenBackAndBroughtBack) {
  start();
  click("mnuFileSub", 2);
  EXPECT_FALSE(enabled("mnuEditSub", 1)) << "a new icon has nothing to undo";
  shell.colour().selection.setCurrentColor(0x0000FF);
  paint(3, 3);
  EXPECT_TRUE(enabled("mnuEditSub", 1));
  EXPECT_FALSE(enabled("mnuEditSub", 2));
  click("mnuEditSub", 1);
  EXPECT_EQ(state.PicIcon.GetPixel(3, 3), kGround);
  EXPECT_FALSE(enabled("mnuEditSub", 1));
  click("mnuEditSub", 2);
  EXPECT_EQ(state.PicIcon.GetPixel(3, 3), 0x0000FF);
  EXPECT_FALSE(enabled("mnuEditSub", 2));
}

TEST_F(ShellTest, WhatWasSavedUnderANameCanStillBeUndone) {
  start();
  click("mnuFileSub", 2);
  paint(3, 4);
  dialogs.paths = {folder.file("saved.ico")};
  click("mnuFileSub", 13);
  ASSERT_FALSE(folder.read("saved.ico").empty());
  EXPECT_FALSE(state.IsIconChanged());
  EXPECT_TRUE(enabled("mnuEditSub", 1));
  for (const int command : {kUndo, kRedo, kUndoAll}) {
    click("mnuFileSub", 12);
    ASSERT_FALSE(state.IsIconChanged());
    click("mnuEditSub", command);
    EXPECT_EQ(state.picMask.GetPixel(3, 4), command == kRedo ? kBlack : kWhite);
    EXPECT_TRUE(state.IsIconChanged()) << "the file has the other pixel";
    boxes.expectAsked("The following is not saved yet: \n\nIcon Seq 1    " + folder.file("saved.ico") +
                          "\n\nProceed to exit still?\n",
                      BoxAnswer::No);
    EXPECT_FALSE(shell.queryUnload());
  }
}

TEST_F(ShellTest, AnUndoneStateIsKeptByAContainerSwitchAndAskedAboutByNewOpenAndHistory) {
  start();
  click("mnuFileSub", 2);
  paint(3, 4);
  dialogs.paths = {folder.file("saved.ico")};
  click("mnuFileSub", 13);
  click("mnuEditSub", kUndo);
  for (const auto& [control, index] :
       {std::pair{"mnuFileSub", 2}, {"mnuFileSub", 7}, {"mnuFileSub", 9}, {"mnuFileHistory", 1}}) {
    boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
    click(control, index);
    EXPECT_TRUE(boxes.done()) << control << index;
    EXPECT_EQ(state.picMask.GetPixel(3, 4), kWhite);
  }
  shell.document().iconsPanel.SwitchContainer(1);
  shell.document().iconsPanel.SwitchContainer(0);
  EXPECT_EQ(state.picMask.GetPixel(3, 4), kWhite);
  shell.document().iconsPanel.PanelDrop(2, {folder.file("saved.ico")});
  shell.document().iconsPanel.SwitchContainer(0);
  EXPECT_EQ(state.picMask.GetPixel(3, 4), kWhite) << "a file dropped on another container";
}

TEST_F(ShellTest, AFlippedRegionThatASaveMergedIsUndoneByItself) {
  start();
  click("mnuFileSub", 2);
  paint(3, 4);
  dialogs.paths = {folder.file("saved.ico")};
  click("mnuFileSub", 13);
  click("mnuTools", 14);
  const auto corner = [m = static_cast<float>(state.gMagnification)](int cell) {
    return MouseInput{kLeftButton, 0, static_cast<float>(cell) * m, static_cast<float>(cell) * m};
  };
  shell.drawing().tools.press(corner(2));
  shell.drawing().tools.move(corner(8));
  shell.drawing().tools.release(corner(8));
  click("mnuRotateSubmenu", 0);
  ASSERT_TRUE(state.mPendingPaint);
  ASSERT_EQ(state.picMask.GetPixel(6, 4), kBlack);
  click("mnuFileSub", 12);
  EXPECT_FALSE(state.IsIconChanged());
  EXPECT_FALSE(state.mRegionExists);
  click("mnuEditSub", kUndo);
  EXPECT_EQ(state.picMask.GetPixel(3, 4), kBlack);
  EXPECT_EQ(state.picMask.GetPixel(6, 4), kWhite);
  EXPECT_TRUE(state.IsIconChanged());
  click("mnuEditSub", kUndo);
  EXPECT_EQ(state.picMask.GetPixel(3, 4), kWhite);
  click("mnuEditSub", kRedo);
  click("mnuEditSub", kRedo);
  EXPECT_EQ(state.picMask.GetPixel(6, 4), kBlack);
}

TEST_F(ShellTest, SwitchingContainersStartsTheHistoryAfresh) {
  start();
  click("mnuFileSub", 2);
  paint(3, 3);
  shell.document().iconsPanel.SwitchContainer(1);
  shell.document().iconsPanel.SwitchContainer(0);
  EXPECT_FALSE(enabled("mnuEditSub", 1));
  EXPECT_EQ(state.picMask.GetPixel(3, 3), kBlack) << "the stroke is kept";
}

TEST_F(ShellTest, UndoDuringAShiftTakesBackTheWholeOfIt) {
  start();
  click("mnuFileSub", 2);
  shell.colour().selection.setCurrentColor(0x0000FF);
  paint(3, 3);
  click("mnuTools", 15);
  ASSERT_EQ(shell.selectedTool(), kShift);
  for (int i = 0; i < 3; ++i) shell.drawing().shift.padRelease(ShiftCell::Right);
  EXPECT_EQ(state.PicIcon.GetPixel(6, 3), 0x0000FF);
  click("mnuEditSub", 1);
  EXPECT_EQ(state.PicIcon.GetPixel(3, 3), 0x0000FF);
  EXPECT_EQ(state.PicIcon.GetPixel(6, 3), kGround);
  EXPECT_EQ(shell.selectedTool(), kNoTool);
}

TEST_F(ShellTest, ARegionIsMarkedMovedAndMergedByTheMouse) {
  start();
  click("mnuFileSub", 2);
  shell.colour().selection.setCurrentColor(0x0000FF);
  paint(2, 2);
  click("mnuTools", 14);
  const auto m = static_cast<float>(state.gMagnification);
  auto mouse = [m](float x, float y, int button = 0) { return MouseInput{button, 0, x * m + 1, y * m + 1}; };
  shell.drawing().tools.press(mouse(1, 1, kLeftButton));
  shell.drawing().tools.move(mouse(4, 4));
  shell.drawing().tools.release(mouse(4, 4, kLeftButton));
  ASSERT_TRUE(state.mRegionExists);
  EXPECT_EQ(state.screen.lblDispXY[2], "Region: Start [2, 2]   W=3 H=3");
  shell.drawing().tools.press(mouse(2, 2, kLeftButton));
  shell.drawing().tools.move(mouse(12, 2));
  shell.drawing().tools.release(mouse(12, 2, kLeftButton));
  EXPECT_EQ(state.PicIcon.GetPixel(12, 2), 0x0000FF);
  EXPECT_EQ(state.PicIcon.GetPixel(2, 2), kGround);
  shell.drawing().tools.press(mouse(25, 25, kLeftButton));
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(state.picMask.GetPixel(12, 2), kBlack);
}

TEST_F(ShellTest, ACopiedIconPastesIntoAnEmptyContainer) {
  start();
  click("mnuFileSub", 5);
  shell.colour().selection.setCurrentColor(0x0000FF);
  paint(2, 2);
  EXPECT_FALSE(enabled("mnuEditSub", 7));
  click("mnuEditSub", 6);
  EXPECT_TRUE(enabled("mnuEditSub", 7));
  shell.document().iconsPanel.SwitchContainer(1);
  click("mnuEditSub", 7);
  EXPECT_EQ(state.current().size, 24);
  EXPECT_EQ(state.PicIcon.GetPixel(2, 2), 0x0000FF);
  EXPECT_EQ(state.picMask.GetPixel(3, 3), kWhite) << "silver arrives as transparent";
}

TEST_F(ShellTest, PasteWithoutAnImageSaysSo) {
  start();
  boxes.expectTold("No image in clipboard yet", BoxIcon::None);
  click("mnuEditSub", 7);
}

TEST_F(ShellTest, EscClosesTheSidePanelAndThenEndsTheRegion) {
  start();
  click("mnuFileSub", 2);
  click("mnuRotateSubmenu", 4);
  ASSERT_EQ(state.screen.mActivePanel, 4);
  shell.escapeKey();
  EXPECT_EQ(state.screen.mActivePanel, 0);
  click("mnuTools", 14);
  shell.drawing().tools.press({kLeftButton, 0, 1, 1});
  shell.drawing().tools.move({0, 0, 40, 40});
  shell.drawing().tools.release({kLeftButton, 0, 40, 40});
  ASSERT_TRUE(state.mRegionExists);
  shell.escapeKey();
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(shell.selectedTool(), kNoTool);
  shell.escapeKey();
  EXPECT_TRUE(state.current().present);
}

}  // namespace
}  // namespace gp
