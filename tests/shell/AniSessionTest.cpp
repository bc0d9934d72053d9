// The pane of the animated cursor session, its buttons and its film.
#include "shell/AniFixture.h"

#include <gmock/gmock.h>

namespace gp::test {
namespace {

using testing::ElementsAre;

class AniSessionTest : public AniShellTest {
 protected:
  std::vector<int> enabledButtons() const {
    std::vector<int> numbers;
    for (int i = 0; i < AniSession::kButtonCount; ++i)
      if (session.isEnabled(i)) numbers.push_back(i);
    return numbers;
  }
  // A click in the middle of a frame's cell.
  void clickFrame(int n) {
    session.filmPress();
    session.filmRelease(30, 50 * (n - 1) + 25);
  }
};

// Entering and leaving.

TEST_F(AniSessionTest, EnteringShowsThePaneWithoutFrames) {
  enterSession();
  EXPECT_TRUE(isVisible());
  EXPECT_EQ(session.frames().count(), 0);
  EXPECT_EQ(session.mode(), AniMode::NoFrames);
  EXPECT_EQ(session.frameLabel(), "");
  EXPECT_EQ(session.jiffiesLabel(), "");
  EXPECT_EQ(path(), "");
  EXPECT_TRUE(display.hasChanged(DisplayPart::Panel));
}

TEST_F(AniSessionTest, EnteringAsksAboutAnUnsavedIcon) {
  click("mnuFileSub", 2);
  paint(1, 1);
  expectSaveIconQuestion(BoxAnswer::Cancel);
  enterSession();
  EXPECT_FALSE(isVisible());
  expectSaveIconQuestion(BoxAnswer::No);
  enterSession();
  EXPECT_TRUE(isVisible());
  EXPECT_TRUE(state.current().modified);
}

TEST_F(AniSessionTest, EnteringClosesASidePanel) {
  click("mnuFileSub", 2);
  state.current().neverSaved = false;
  click("mnuRotateSubmenu", 4);
  ASSERT_EQ(state.screen.mActivePanel, kRotatePanel);
  enterSession();
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_TRUE(isVisible());
}

TEST_F(AniSessionTest, EnteringAVisiblePaneGivesItItsNormalSize) {
  openFilm(3);
  press(kMinimizePane);
  enterSession();
  EXPECT_EQ(session.paneSize(), AniPaneSize::Normal);
  EXPECT_EQ(session.frames().count(), 3);
}

TEST_F(AniSessionTest, ButtonsChangeTheSizeOfThePane) {
  enterSession();
  press(kResizePane);
  EXPECT_EQ(session.paneSize(), AniPaneSize::Compact);
  press(kResizePane);
  EXPECT_EQ(session.paneSize(), AniPaneSize::Normal);
  press(kMinimizePane);
  EXPECT_EQ(session.paneSize(), AniPaneSize::Minimized);
  press(kResizePane);
  EXPECT_EQ(session.paneSize(), AniPaneSize::Normal);
  press(kMinimizePane);
  session.restorePane();
  EXPECT_EQ(session.paneSize(), AniPaneSize::Normal);
}

TEST_F(AniSessionTest, AFilmSurvivesClose) {
  const std::string file = openFilm(3);
  press(kGoDown);
  for (const int button : {kClose, kCloseSession}) {
    press(button);
    EXPECT_FALSE(isVisible());
    enterSession();
    EXPECT_THAT(colors(), ElementsAre(1, 2, 3));
    EXPECT_EQ(session.frames().current(), 2);
    EXPECT_EQ(path(), file);
  }
}

TEST_F(AniSessionTest, CloseShowsThePathOfTheContainer) {
  click("mnuFileSub", 2);
  state.current().neverSaved = false;
  openFilm(2);
  press(kClose);
  EXPECT_EQ(path(), "Untitled");
  EXPECT_TRUE(pump.pumps > 0);
}

TEST_F(AniSessionTest, CloseShowsNoPathForAnEmptyContainer) {
  openFilm(2);
  press(kClose);
  EXPECT_EQ(path(), "");
  EXPECT_FALSE(state.screen.fraTools[1]) << "there is nothing to draw on";
}

TEST_F(AniSessionTest, CloseAsksAboutUnsavedFrames) {
  openFilm(2);
  change();
  for (const int button : {kClose, kCloseSession}) {
    boxes.expectAsked(kLossQuestion, BoxAnswer::No);
    press(button);
    EXPECT_TRUE(isVisible());
  }
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  press(kClose);
  EXPECT_FALSE(isVisible());
  EXPECT_TRUE(session.isChanged()) << "the film is kept, and still unsaved";
  EXPECT_THAT(colors(), ElementsAre(2, 1));
}

TEST_F(AniSessionTest, AFilmSurvivesAPanelThatTakesThePlaceOfThePane) {
  click("mnuFileSub", 2);
  state.current().neverSaved = false;
  const std::string file = openFilm(2);
  press(kTestFilm);
  click("mnuRotateSubmenu", 4);
  EXPECT_FALSE(isVisible());
  EXPECT_FALSE(session.test().isRunning());
  EXPECT_EQ(path(), "Untitled");
  shell.cmdCancel();
  EXPECT_FALSE(isVisible());
  enterSession();
  EXPECT_EQ(session.frames().count(), 2);
  EXPECT_EQ(path(), file);
}

// The path on the status bar.

TEST_F(AniSessionTest, ThePathStaysThatOfTheFilmWhileThePaneIsVisible) {
  const std::string file = openFilm(2);
  click("mnuFileSub", 2);
  EXPECT_EQ(path(), file);
  shell.document().iconsPanel.SwitchContainer(1);
  EXPECT_EQ(path(), file) << "an empty container";
  EXPECT_EQ(status(StatusPanel::Size), "");
}

// Enabling.

TEST_F(AniSessionTest, WithoutFramesOnlyFilesAndThePaneAreEnabled) {
  EXPECT_THAT(enabledButtons(), ElementsAre(0, 1, 2, 3, 4, 6));
}

TEST_F(AniSessionTest, OneFrameHasNoNeighbours) {
  openFilm(1);
  EXPECT_THAT(enabledButtons(), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15));
}

TEST_F(AniSessionTest, ShiftAndGoFollowThePlaceOfTheFrame) {
  openFilm(3);
  const auto neighbours = [&] {
    std::vector<int> numbers = enabledButtons();
    std::erase_if(numbers, [](int number) { return number < 16; });
    return numbers;
  };
  EXPECT_THAT(neighbours(), ElementsAre(17, 19));
  press(kGoDown);
  EXPECT_THAT(neighbours(), ElementsAre(16, 17, 18, 19));
  press(kGoDown);
  EXPECT_THAT(neighbours(), ElementsAre(16, 18));
}

TEST_F(AniSessionTest, DisabledButtonsDoNothing) {
  enterSession();
  for (const int button : {7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, -1, 20}) press(button);
  EXPECT_EQ(session.frames().count(), 0);
  EXPECT_FALSE(session.isChanged());
}

TEST_F(AniSessionTest, ThereIsNothingToSaveWithoutFrames) {
  enterSession();
  boxes.expectTold("No frames prepared yet", BoxIcon::None);
  press(kSaveAni);
}

// Creating.

TEST_F(AniSessionTest, CreateMakesOneBlankFrame) {
  enterSession();
  session.setChoices({.jiffies = 12, .hotspotX = 3, .hotspotY = 4, .singly = true});
  press(kCreateAni);
  EXPECT_THAT(colors(), ElementsAre(kWhite));
  EXPECT_EQ(session.frames().frame(1).jiffies, 12);
  EXPECT_EQ(session.frames().frame(1).hotspotX, 0);
  EXPECT_EQ(session.frames().current(), 1);
  EXPECT_EQ(session.mode(), AniMode::Made);
  EXPECT_FALSE(session.isChanged());
  EXPECT_EQ(session.path(), "Untitled");
  EXPECT_EQ(path(), "Untitled");
  EXPECT_EQ(session.frameLabel(), "Frame:  1 / 1");
  EXPECT_EQ(session.jiffiesLabel(), "Jiffies:  12");
  EXPECT_EQ(session.choices().hotspotX, 0);
  EXPECT_EQ(session.choices().hotspotY, 0);
  EXPECT_EQ(session.choices().jiffies, 12);
  EXPECT_TRUE(session.choices().singly);
}

TEST_F(AniSessionTest, CreateAsksAboutUnsavedFrames) {
  openFilm(2);
  change();
  boxes.expectAsked(kLossQuestion, BoxAnswer::No);
  press(kCreateAni);
  EXPECT_EQ(session.frames().count(), 2);
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  press(kCreateAni);
  EXPECT_EQ(session.frames().count(), 1);
  EXPECT_FALSE(session.isChanged());
}

// Frames.

TEST_F(AniSessionTest, AddsBelowAndAbove) {
  openFilm(2);
  press(kAddBelow);
  EXPECT_THAT(colors(), ElementsAre(1, kWhite, 2));
  EXPECT_EQ(session.frames().current(), 2);
  EXPECT_TRUE(session.isChanged());
  press(kGoDown);
  press(kAddAbove);
  EXPECT_THAT(colors(), ElementsAre(1, kWhite, kWhite, 2));
  EXPECT_EQ(session.frames().current(), 3);
  EXPECT_EQ(session.frames().frame(3).jiffies, 2);
  EXPECT_EQ(session.film().picFilm().height(), 200);
}

TEST_F(AniSessionTest, SeventyFramesAreTheMost) {
  openFilm(69);
  press(kAddBelow);
  EXPECT_EQ(session.frames().count(), 70);
  for (const int button : {kAddBelow, kAddAbove}) {
    boxes.expectTold("Maximum 70 frames reached", BoxIcon::None);
    press(button);
    EXPECT_EQ(session.frames().count(), 70);
  }
}

TEST_F(AniSessionTest, RemovesTheCurrentFrame) {
  openFilm(3);
  press(kGoDown), press(kGoDown);
  press(kRemoveFrame);
  EXPECT_THAT(colors(), ElementsAre(1, 2));
  EXPECT_EQ(session.frames().current(), 2);
  EXPECT_TRUE(session.isChanged());
  EXPECT_EQ(session.film().picFilm().height(), 100);
}

TEST_F(AniSessionTest, RemovingTheOnlyFrameResetsTheSession) {
  openFilm(1);
  press(kRemoveFrame);
  EXPECT_EQ(session.frames().count(), 0);
  EXPECT_EQ(session.frames().current(), 0);
  EXPECT_EQ(session.mode(), AniMode::NoFrames);
  EXPECT_FALSE(session.isChanged());
  EXPECT_EQ(session.path(), "");
  EXPECT_EQ(path(), "");
  EXPECT_EQ(session.frameLabel(), "");
  EXPECT_TRUE(isVisible());
  EXPECT_THAT(enabledButtons(), ElementsAre(0, 1, 2, 3, 4, 6));
}

TEST_F(AniSessionTest, ShiftsTheCurrentFrame) {
  openFilm(3);
  press(kShiftFrameDown);
  EXPECT_THAT(colors(), ElementsAre(2, 1, 3));
  EXPECT_EQ(session.frames().current(), 2);
  EXPECT_TRUE(session.isChanged());
  press(kShiftFrameUp);
  EXPECT_THAT(colors(), ElementsAre(1, 2, 3));
  EXPECT_EQ(session.frames().current(), 1);
}

TEST_F(AniSessionTest, GoingChangesNoFrames) {
  openFilm(3);
  press(kGoDown);
  EXPECT_EQ(session.frameLabel(), "Frame:  2 / 3");
  EXPECT_EQ(session.jiffiesLabel(), "Jiffies:  2");
  press(kGoUp);
  EXPECT_EQ(session.frameLabel(), "Frame:  1 / 3");
  EXPECT_FALSE(session.isChanged());
}

TEST_F(AniSessionTest, TheFilmShowsEachChange) {
  openFilm(3);
  for (const int button : {kGoDown, kShiftFrameDown, kAddBelow, kAddAbove, kGoUp, kShiftFrameUp, kRemoveFrame}) {
    press(button);
    AniFilm drawn;
    drawn.redraw(session.frames());
    EXPECT_TRUE(std::ranges::equal(session.film().picFilm().pixels(), drawn.picFilm().pixels())) << button;
  }
}

TEST_F(AniSessionTest, ButtonsScrollTheCurrentFrameIntoView) {
  openFilm(6);
  session.setVisibleHeight(100);
  const std::pair<int, int> rows[] = {{kGoDown, 0},     {kGoDown, 50}, {kShiftFrameDown, 100}, {kAddBelow, 150},
                                      {kAddAbove, 150}, {kGoUp, 100},  {kShiftFrameUp, 50},    {kRemoveFrame, 50}};
  for (const auto& [button, scroll] : rows) {
    press(button);
    EXPECT_EQ(session.film().scroll(), scroll) << button;
    session.scrollTo(7);
  }
  boxes.expectTold(
      "Frame No:    3\n\nJiffies:    4\n\n--------------------     \n\nTotal Frames:   7\n\nHot spot:    [0, 0]\n\n",
      BoxIcon::None);
  press(kFrameProperty);
  EXPECT_EQ(session.film().scroll(), 7) << "other buttons do not";
}

// The interval.

TEST_F(AniSessionTest, SetsTheIntervalOfAllFrames) {
  openFilm(3);
  session.setChoices({.jiffies = 45});
  boxes.expectTold("Jiffies set (for all frames)", BoxIcon::None);
  press(kSetInterval);
  for (const FilmFrame& frame : session.frames().all()) EXPECT_EQ(frame.jiffies, 45);
  EXPECT_TRUE(session.isChanged());
  EXPECT_EQ(session.jiffiesLabel(), "Jiffies:  45");
}

TEST_F(AniSessionTest, SetsTheIntervalSinglyWithoutAMessage) {
  openFilm(3);
  press(kGoDown);
  session.setChoices({.jiffies = 45, .singly = true});
  press(kSetInterval);
  EXPECT_EQ(session.frames().frame(1).jiffies, 1);
  EXPECT_EQ(session.frames().frame(2).jiffies, 45);
  EXPECT_EQ(session.frames().frame(3).jiffies, 3);
  EXPECT_TRUE(session.isChanged());
}

TEST_F(AniSessionTest, ThePropertyBoxShowsTheHotSpotOfTheFrames) {
  session.openFile(writeFilm("film.ani", numberedFrames(3), 5, 17));
  session.setChoices({.jiffies = 1, .hotspotX = 30, .hotspotY = 30});
  press(kGoDown);
  boxes.expectTold(
      "Frame No:    2\n\nJiffies:    2\n\n--------------------     \n\nTotal Frames:   3\n\nHot spot:    [5, 17]\n\n",
      BoxIcon::None);
  press(kFrameProperty);
}

// Selection by the mouse and by keys.

TEST_F(AniSessionTest, AClickSelectsAFrame) {
  openFilm(3);
  clickFrame(3);
  EXPECT_EQ(session.frames().current(), 3);
  EXPECT_FALSE(session.isEnabled(kGoDown));
  session.filmRelease(0, 50);
  EXPECT_EQ(session.frames().current(), 2);
  session.filmRelease(59, 49);
  EXPECT_EQ(session.frames().current(), 1);
  EXPECT_FALSE(session.isChanged());
}

TEST_F(AniSessionTest, ClicksOutsideTheFilmAreIgnored) {
  openFilm(3);
  for (const auto& [x, y] : {std::pair{-1, 75}, {60, 75}, {30, -1}, {30, 150}, {30, 100000}}) {
    session.filmRelease(x, y);
    EXPECT_EQ(session.frames().current(), 1) << x << " " << y;
  }
}

TEST_F(AniSessionTest, AClickOnTheFiftiethCellIsIgnored) {
  openFilm(60);
  clickFrame(49);
  clickFrame(50);
  EXPECT_EQ(session.frames().current(), 49);
  clickFrame(51);
  EXPECT_EQ(session.frames().current(), 51);
}

TEST_F(AniSessionTest, KeysReachEachFrame) {
  openFilm(60);
  session.setVisibleHeight(100);
  session.goTo(50);
  EXPECT_EQ(session.frames().current(), 50);
  EXPECT_EQ(session.film().scroll(), 2400);
  for (const int missing : {0, 61}) {
    session.goTo(missing);
    EXPECT_EQ(session.frames().current(), 50);
  }
}

TEST_F(AniSessionTest, AClickWithoutFramesIsIgnored) {
  enterSession();
  clickFrame(1);
  EXPECT_EQ(session.frames().current(), 0);
}

// The test.

TEST_F(AniSessionTest, TheTestStartsAndStops) {
  openFilm({plainFrame(1, 30), plainFrame(2, 5)});
  press(kTestFilm);
  EXPECT_TRUE(session.test().isRunning());
  EXPECT_EQ(timer.milliseconds, 300);
  timer.tick();
  EXPECT_EQ(timer.milliseconds, 300) << "30 jiffies";
  timer.tick();
  EXPECT_EQ(timer.milliseconds, 50);
  press(kTestFilm);
  EXPECT_FALSE(session.test().isRunning());
  EXPECT_EQ(session.frames().current(), 1) << "the test does not select";
}

TEST_F(AniSessionTest, ASingleFrameIsNotTested) {
  openFilm(1);
  boxes.expectTold("As there is only a single frame, animation not feasible.", BoxIcon::None);
  press(kTestFilm);
  EXPECT_FALSE(session.test().isRunning());
}

TEST_F(AniSessionTest, EveryOtherButtonStopsTheTest) {
  openFilm(3);
  press(kGoDown);
  for (const int button : {1, 2, 7, 10, 11, 12, 13, 16, 17, 18, 19, 14}) {
    press(kTestFilm);
    ASSERT_TRUE(session.test().isRunning()) << button;
    if (button == 7) boxes.expectTold("Jiffies set (for all frames)", BoxIcon::None);
    if (button == 10) boxes.expectTold("No icon in Editing Area yet", BoxIcon::None);
    press(button);
    EXPECT_FALSE(session.test().isRunning()) << button;
  }
}

TEST_F(AniSessionTest, ButtonsThatAskStopTheTestFirst) {
  openFilm(3);
  change();
  for (const int button : {0, 3, 4, 6}) {
    press(kTestFilm);
    boxes.expectAsked(kLossQuestion, BoxAnswer::No);
    press(button);
    EXPECT_FALSE(session.test().isRunning()) << button;
  }
  press(kTestFilm);
  dialogs.paths = {""};
  press(kLoadIcon);
  EXPECT_FALSE(session.test().isRunning());
}

TEST_F(AniSessionTest, ClicksAndKeysOnTheFilmStopTheTest) {
  openFilm(3);
  press(kTestFilm);
  session.filmPress();
  EXPECT_FALSE(session.test().isRunning());
  press(kTestFilm);
  session.goTo(2);
  EXPECT_FALSE(session.test().isRunning());
}

TEST_F(AniSessionTest, ScrollingDoesNotStopTheTest) {
  openFilm(3);
  press(kTestFilm);
  session.scrollTo(10);
  EXPECT_TRUE(session.test().isRunning());
}

}  // namespace
}  // namespace gp::test
