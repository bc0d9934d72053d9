// Other commands, and what happens while the animated cursor session asks or works: nothing is lost or mixed.
#include "shell/AniFixture.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace gp::test {
namespace {

using testing::ElementsAre;

constexpr const char* kSizeQuestion =
    "Animated cursor session for 32x32 icons only\nTerminate animated cursor session?";

// Boxes at which something else happens before the answer comes.
class BusyBoxes : public ScriptedBoxes {
 public:
  std::function<void()> inside;  // at the next box

  BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer suggested) override {
    if (auto action = std::exchange(inside, nullptr)) action();
    return ScriptedBoxes::show(text, buttons, icon, suggested);
  }
};

class AniSafety : public AniProgram<ProgramFixture<BusyBoxes>> {
 protected:
  void SetUp() override {
    file_ = openFilm(3);
    change();
  }
  const std::string& file() const { return file_; }
  void expectKept() {
    EXPECT_THAT(colors(), ElementsAre(2, 1, 3));
    EXPECT_TRUE(session.isChanged());
    EXPECT_EQ(session.path(), file());
  }
  void expectEnded() {
    EXPECT_EQ(session.frames().count(), 0);
    EXPECT_FALSE(session.isChanged());
    EXPECT_FALSE(isVisible());
    EXPECT_FALSE(session.test().isRunning());
    EXPECT_EQ(session.path(), "");
  }
  void savedIcon() {
    expectSaveIconQuestionOnlyIfUnsaved();
    click("mnuFileSub", 2);
    state.current().neverSaved = false;
  }
  void expectSaveIconQuestionOnlyIfUnsaved() {
    if (state.IsIconChanged()) expectSaveIconQuestion(BoxAnswer::No);
  }
  std::string iconFile() {
    const Bytes bytes = build(anyEntry(48, 4));
    return folder.write("icon.ico", std::string(bytes.begin(), bytes.end()));
  }
  // Buttons, clicks, keys and files, of which none has an effect while the session is busy.
  void tryEverything() {
    for (int button = 0; button < AniSession::kButtonCount; ++button) press(button);
    session.filmRelease(30, 125);
    session.goTo(3);
    session.openFile(writeFilm("other.ani", numberedFrames(2)));
    enterSession();
  }

 private:
  std::string file_;
};

// Commands that end the session.

TEST_F(AniSafety, ANewIconOfAnotherSizeEndsTheSessionIfTheUserAgrees) {
  boxes.expectAsked(std::string(kSizeQuestion) + "\n", BoxAnswer::No);
  click("mnuFileSub", 3);
  expectKept();
  EXPECT_TRUE(isVisible());
  EXPECT_FALSE(state.current().used);
  press(kTestFilm);
  boxes.expectAsked(std::string(kSizeQuestion) + "\n", BoxAnswer::Yes);
  click("mnuFileSub", 3);
  expectEnded();
  EXPECT_EQ(state.current().size, 16);
  EXPECT_EQ(path(), "Untitled");
}

TEST_F(AniSafety, ANewIconOfItsSizeKeepsTheSession) {
  click("mnuFileSub", 2);
  expectKept();
  EXPECT_TRUE(isVisible());
}

TEST_F(AniSafety, AFileFromTheHistoryEndsTheSessionIfTheUserAgrees) {
  shell.AddHistory(iconFile());
  boxes.expectAsked(kSizeQuestion, BoxAnswer::No);
  click("mnuFileHistory", 1);
  expectKept();
  boxes.expectAsked(kSizeQuestion, BoxAnswer::Yes);
  click("mnuFileHistory", 1);
  expectEnded();
  EXPECT_EQ(state.current().size, 48);
  EXPECT_EQ(path(), folder.file("icon.ico"));
}

TEST_F(AniSafety, AFilmStaysWhenTheCommandStopsAfterTheUserHasAgreed) {
  const std::string icon = iconFile();
  shell.AddHistory(icon);
  click("mnuFileSub", 2);
  paint(1, 1);
  ASSERT_TRUE(state.IsIconChanged());
  boxes.expectAsked(std::string(kSizeQuestion) + "\n", BoxAnswer::Yes);
  expectSaveIconQuestion(BoxAnswer::Cancel);
  click("mnuFileSub", 3);
  expectKept();
  boxes.expectAsked(kSizeQuestion, BoxAnswer::Yes);
  expectSaveIconQuestion(BoxAnswer::Cancel);
  click("mnuFileHistory", 1);
  expectKept();
  std::filesystem::remove(icon);
  boxes.expectAsked(kSizeQuestion, BoxAnswer::Yes);
  expectSaveIconQuestion(BoxAnswer::No);
  boxes.expectTold(icon + "\nFile not found.", BoxIcon::Exclamation);
  click("mnuFileHistory", 1);
  expectKept();
  EXPECT_TRUE(isVisible());
}

TEST_F(AniSafety, TheAlphaScreenEndsTheSessionIfTheUserAgrees) {
  savedIcon();
  int shown = 0;
  form.onAlpha = [&](const IconImage&, AlphaMode) { return ++shown, AlphaOutcome(); };
  boxes.expectAsked("Current Icon is not a True Color icon.  Proceed still?", BoxAnswer::Yes);
  boxes.expectAsked("Terminate animated cursor session?", BoxAnswer::No);
  click("mnuAlphaSub", 0);
  EXPECT_EQ(shown, 0);
  expectKept();
  press(kTestFilm);
  boxes.expectAsked("Current Icon is not a True Color icon.  Proceed still?", BoxAnswer::Yes);
  boxes.expectAsked("Terminate animated cursor session?", BoxAnswer::Yes);
  click("mnuAlphaSub", 0);
  EXPECT_EQ(shown, 1);
  expectEnded();
  EXPECT_EQ(path(), "Untitled");
}

TEST_F(AniSafety, SaveAsClosesThePaneAndKeepsTheFilm) {
  savedIcon();
  press(kTestFilm);
  dialogs.paths = {""};
  click("mnuFileSub", 13);
  EXPECT_FALSE(isVisible());
  EXPECT_FALSE(session.test().isRunning());
  EXPECT_EQ(path(), "Untitled");
  expectKept();
}

// The history of animated cursors.

TEST_F(AniSafety, AnEntryOfTheHistoryAsksAboutUnsavedFrames) {
  const std::string other = writeFilm("other.ani", numberedFrames(2));
  shell.AddAniHistory(other);
  press(kTestFilm);
  boxes.expectAsked(kLossQuestion, BoxAnswer::No);
  click("mnuANIFileHistory", 1);
  expectKept();
  EXPECT_FALSE(session.test().isRunning());
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  click("mnuANIFileHistory", 1);
  EXPECT_EQ(session.frames().count(), 2);
  EXPECT_EQ(session.path(), other);
  EXPECT_FALSE(session.isChanged());
}

TEST_F(AniSafety, AnEntryOfTheHistoryShowsThePane) {
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  press(kClose);
  savedIcon();
  paint(1, 1);
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  expectSaveIconQuestion(BoxAnswer::Cancel);
  click("mnuANIFileHistory", 1);
  EXPECT_FALSE(isVisible());
  expectKept();
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  expectSaveIconQuestion(BoxAnswer::No);
  click("mnuANIFileHistory", 1);
  EXPECT_TRUE(isVisible());
  EXPECT_THAT(colors(), ElementsAre(1, 2, 3));
}

TEST_F(AniSafety, AnEntryOfTheHistoryThatIsGoneIsReported) {
  std::filesystem::remove(file());
  boxes.expectTold(file() + "\nFile not found.", BoxIcon::Exclamation);
  click("mnuANIFileHistory", 1);
  expectKept();
}

TEST_F(AniSafety, AnEntryOfTheHistoryThatCannotBeReadLeavesTheFilm) {
  shell.AddAniHistory(folder.write("broken.ani", "no film"));
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  boxes.expectTold(folder.file("broken.ani") + "\nFailed to read this ANI file", BoxIcon::Exclamation);
  click("mnuANIFileHistory", 1);
  expectKept();
}

// Exit.

TEST_F(AniSafety, ExitAsksAboutUnsavedFrames) {
  press(kTestFilm);
  boxes.expectAsked(kLossQuestion, BoxAnswer::No);
  EXPECT_FALSE(shell.queryUnload());
  EXPECT_FALSE(session.test().isRunning());
  expectKept();
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  EXPECT_TRUE(shell.queryUnload());
}

TEST_F(AniSafety, ExitAsksAlsoWhileThePaneIsClosed) {
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  press(kClose);
  boxes.expectAsked(kLossQuestion, BoxAnswer::No);
  EXPECT_FALSE(shell.queryUnload());
}

TEST_F(AniSafety, ExitDuringTheTestOfASavedFilmAsksNothing) {
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  session.openFile(file());
  press(kTestFilm);
  EXPECT_TRUE(shell.queryUnload());
  EXPECT_FALSE(timer.isRunning());
}

// The test goes on, or ends, and never shows another film.

TEST_F(AniSafety, AContainerSwitchDuringTheTestLetsItGoOn) {
  press(kTestFilm);
  timer.tick();
  shell.document().iconsPanel.SwitchContainer(2);
  timer.tick();
  EXPECT_EQ(session.test().frame(), 2);
  EXPECT_EQ(session.test().picANITest().GetPixel(0, 0), 1);
  expectKept();
}

TEST_F(AniSafety, OpeningDuringTheTestStopsIt) {
  press(kTestFilm);
  timer.tick();
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  session.openFile(writeFilm("other.ani", numberedFrames(2)));
  EXPECT_FALSE(session.test().isRunning());
  EXPECT_FALSE(timer.isRunning());
  EXPECT_EQ(session.test().picANITest().GetPixel(0, 0), kWhite);
}

// While the session asks.

TEST_F(AniSafety, NothingElseHappensDuringAQuestion) {
  boxes.inside = [this] { tryEverything(); };
  boxes.expectAsked(kLossQuestion, BoxAnswer::No);
  press(kOpenAni);
  expectKept();
  EXPECT_EQ(session.frames().current(), 2);
  EXPECT_TRUE(isVisible());
}

TEST_F(AniSafety, NothingElseHappensDuringADialog) {
  for (const int button : {kOpenAni, kSaveAni, kLoadIcon}) {
    if (button == kOpenAni) boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
    if (button == kSaveAni) boxes.expectAsked(saveQuestion("[0, 0]", "[0, 0]"), BoxAnswer::Yes);
    dialogs.inside = [this] { tryEverything(); };
    dialogs.paths = {""};
    press(button);
    expectKept();
  }
}

TEST_F(AniSafety, NothingElseHappensDuringASave) {
  pump.inside = [this] { tryEverything(); };
  boxes.expectAsked(saveQuestion("[0, 0]", "[0, 0]"), BoxAnswer::Yes);
  dialogs.paths = {folder.file("saved.ani")};
  press(kSaveAni);
  EXPECT_FALSE(pump.inside);
  EXPECT_THAT(colors(), ElementsAre(2, 1, 3));
  EXPECT_FALSE(session.isChanged());
  EXPECT_EQ(session.path(), folder.file("saved.ani"));
}

// Other commands can end the session meanwhile.

TEST_F(AniSafety, ASessionThatEndsDuringADialogTakesNoFile) {
  for (const int button : {kOpenAni, kLoadIcon}) {
    if (button == kLoadIcon) SetUp();
    if (button == kOpenAni) boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
    dialogs.inside = [this] { shell.endAniSession(); };
    dialogs.paths = {button == kOpenAni ? writeFilm("other.ani", numberedFrames(2)) : iconFile()};
    press(button);
    expectEnded();
  }
}

TEST_F(AniSafety, ASessionThatEndsDuringTheSaveDialogWritesNothing) {
  boxes.expectAsked(saveQuestion("[0, 0]", "[0, 0]"), BoxAnswer::Yes);
  dialogs.inside = [this] { shell.endAniSession(); };
  dialogs.paths = {folder.file("saved.ani")};
  press(kSaveAni);
  expectEnded();
  EXPECT_FALSE(std::filesystem::exists(folder.file("saved.ani")));
}

TEST_F(AniSafety, ASessionThatEndsDuringTheQuestionBeforeASaveShowsNoDialog) {
  boxes.inside = [this] { shell.endAniSession(); };
  boxes.expectAsked(saveQuestion("[0, 0]", "[0, 0]"), BoxAnswer::Yes);
  press(kSaveAni);
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(AniSafety, ASessionThatEndsWhileItIsSavedHasBeenSaved) {
  const std::vector<FilmFrame> frames(session.frames().all().begin(), session.frames().all().end());
  pump.inside = [this] { shell.endAniSession(); };
  boxes.expectAsked(saveQuestion("[0, 0]", "[0, 0]"), BoxAnswer::Yes);
  dialogs.paths = {folder.file("saved.ani")};
  press(kSaveAni);
  expectEnded();
  EXPECT_EQ(folder.read("saved.ani"), textOf(frames));
  EXPECT_EQ(shell.aniHistory().path(1), folder.file("saved.ani"));
}

TEST_F(AniSafety, ASessionThatEndsBeforeCreateStaysEnded) {
  boxes.inside = [this] { shell.endAniSession(); };
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  press(kCreateAni);
  expectEnded();
}

TEST_F(AniSafety, ChoicesThatChangeAfterTheQuestionDoNotChangeTheSave) {
  boxes.expectAsked(saveQuestion("[0, 0]", "[0, 0]"), BoxAnswer::Yes);
  dialogs.inside = [this] { session.setChoices({.hotspotX = 9, .hotspotY = 9}); };
  dialogs.paths = {folder.file("saved.ani")};
  press(kSaveAni);
  EXPECT_EQ(session.frames().frame(1).hotspotX, 0);
}

// The exchange with an Editing Area that changes during its question.

TEST_F(AniSafety, AnotherIconThatComesDuringTheQuestionIsNotReplaced) {
  savedIcon();
  paint(1, 1);
  boxes.inside = [this] {
    bool ok = false;
    shell.doOpenIconFileQuietly(iconFile(), ok);
  };
  expectSaveIconQuestion(BoxAnswer::No);
  press(kToArea);
  EXPECT_EQ(state.current().path.trimmed(), folder.file("icon.ico"));
  EXPECT_EQ(state.current().size, 48);
}

TEST_F(AniSafety, ASessionThatEndsDuringTheQuestionGivesNoFrame) {
  savedIcon();
  paint(1, 1);
  boxes.inside = [this] { shell.endAniSession(); };
  expectSaveIconQuestion(BoxAnswer::No);
  press(kToArea);
  EXPECT_EQ(state.current().path.trimmed(), "Untitled");
  expectEnded();
}

TEST_F(AniSafety, ASessionThatEndsWhileAnIconIsCommittedTakesNoIcon) {
  savedIcon();
  state.options.promptToSave = true;
  clipboard.hold(Surface(4, 4, kBlack));
  click("mnuEditSub", 8);
  ASSERT_TRUE(state.mPendingPaint);
  for (const int button : {kFromArea, kToArea}) {
    if (button == kToArea) {
      state.current().modified = false;
      SetUp();
      click("mnuEditSub", 8);
    }
    boxes.inside = [this] { shell.endAniSession(); };
    boxes.expect("Save current icon to file?\n\n(To remove Reminder, untick the related Option submenu)\n",
                 BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::No);
    press(button);
    expectEnded();
    EXPECT_EQ(state.current().path.trimmed(), "Untitled");
  }
}

// The command line.

class AniCommandLine : public ShellFixture {};

TEST_F(AniCommandLine, OpensAFilm) {
  const std::vector<std::uint8_t> bytes = composeFilm(numberedFrames(2), 3, 4);
  const std::string path = folder.write("film.ANI", std::string(bytes.begin(), bytes.end()));
  start(path);
  EXPECT_TRUE(state.screen.aniContainerVisible);
  EXPECT_EQ(shell.animation().session.frames().count(), 2);
  EXPECT_EQ(status(StatusPanel::Path), path);
  EXPECT_EQ(shell.aniHistory().path(1), path);
  EXPECT_EQ(state.process.mCommandFile, path);
}

TEST_F(AniCommandLine, AFileThatCannotBeReadLeavesAnEmptySession) {
  const std::string path = folder.write("broken.ani", "no film");
  boxes.expectTold(path + "\nFailed to read this ANI file", BoxIcon::Exclamation);
  start(path);
  EXPECT_TRUE(state.screen.aniContainerVisible);
  EXPECT_EQ(shell.animation().session.frames().count(), 0);
  EXPECT_EQ(shell.aniHistory().path(1), "");
}

}  // namespace
}  // namespace gp::test
