// Opening and saving films.
#include "animation/AniBytes.h"
#include "shell/AniFixture.h"
#include "support/FullDisk.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace gp::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

constexpr const char* kNotSaved = "SaveANIFile.  Failed to save this ani file.";

class AniFilesTest : public AniShellTest {
 protected:
  void expectKept() {
    EXPECT_THAT(colors(), ElementsAre(2, 1, 3));
    EXPECT_TRUE(session.isChanged());
    EXPECT_EQ(session.path(), folder.file("film.ani"));
    EXPECT_EQ(path(), folder.file("film.ani"));
  }
  // A changed film of three frames, from film.ani.
  void openAndChange() {
    openFilm(3);
    change();
    display.announced.clear();
  }
  void expectSaveQuestion(BoxAnswer answer = BoxAnswer::Yes) {
    boxes.expectAsked(saveQuestion("[0, 0]", "[0, 0]"), answer);
  }
  void saveTo(const std::string& target) {
    expectSaveQuestion();
    dialogs.paths = {target};
    press(kSaveAni);
  }
  void expectFailure(const std::string& target) {
    expectSaveQuestion();
    dialogs.paths = {target};
    boxes.expectTold(kNotSaved, BoxIcon::Exclamation);
    press(kSaveAni);
    expectKept();
    EXPECT_TRUE(display.announced.empty());
    EXPECT_EQ(shell.aniHistory().path(1), folder.file("film.ani"));
    EXPECT_EQ(state.screen.progressPercent, -1);
    EXPECT_FALSE(state.screen.hourglass);
  }
};

// Opening.

TEST_F(AniFilesTest, OpensTheChosenFile) {
  enterSession();
  const std::string file = writeFilm("film.ani", numberedFrames(3), 5, 17);
  dialogs.paths = {file};
  press(kOpenAni);
  ASSERT_EQ(dialogs.requests.size(), 1U);
  EXPECT_THAT(dialogs.requests[0].filters, ElementsAre(FileFilter{"Animated cursor files (*.ani)", "*.ani"}));
  EXPECT_THAT(colors(), ElementsAre(1, 2, 3));
  EXPECT_EQ(session.mode(), AniMode::Read);
  EXPECT_EQ(session.frames().current(), 1);
  EXPECT_FALSE(session.isChanged());
  EXPECT_EQ(session.path(), file);
  EXPECT_EQ(path(), file);
  EXPECT_EQ(session.choices().hotspotX, 5);
  EXPECT_EQ(session.choices().hotspotY, 17);
  EXPECT_EQ(session.choices().jiffies, 30);
  EXPECT_EQ(session.jiffiesLabel(), "Jiffies:  1");
  EXPECT_EQ(shell.aniHistory().path(1), file);
  EXPECT_EQ(state.process.mCommandFile, file);
  EXPECT_THAT(display.announced, ElementsAre("Opened film.ani"));
}

TEST_F(AniFilesTest, AnOpenedFilmIsAtItsTop) {
  openFilm(6);
  session.setVisibleHeight(100);
  session.goTo(6);
  ASSERT_EQ(session.film().scroll(), 200);
  openFilm(6);
  EXPECT_EQ(session.film().scroll(), 0);
  EXPECT_EQ(session.frames().current(), 1);
}

TEST_F(AniFilesTest, ACancelledDialogChangesNothing) {
  openFilm(3);
  dialogs.paths = {""};
  press(kOpenAni);
  EXPECT_EQ(session.frames().count(), 3);
}

TEST_F(AniFilesTest, OpeningAsksAboutUnsavedFramesBeforeTheDialog) {
  openAndChange();
  boxes.expectAsked(kLossQuestion, BoxAnswer::No);
  press(kOpenAni);
  EXPECT_TRUE(dialogs.requests.empty());
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  dialogs.paths = {writeFilm("other.ani", numberedFrames(2))};
  press(kOpenAni);
  EXPECT_EQ(session.frames().count(), 2);
  EXPECT_FALSE(session.isChanged());
}

TEST_F(AniFilesTest, AFileThatFailsLeavesTheFormerFilm) {
  openAndChange();
  const std::pair<std::string, std::string> files[] = {
      {folder.write("broken.ani", "no film"), "\nFailed to read this ANI file"},
      {folder.write("empty.ani", ""), "\nFailed to read this ANI file"},
      {folder.file("gone.ani"), "\nFailed to read this ANI file"},
      {folder.makeFolder("folder.ani"), "\nFailed to read this ANI file"},
      {writeFilm("long.ani", numberedFrames(71)),
       "\nEither an invalid ANI file or number of frames exceeds limit of 70."},
      {folder.write("times.ani", aniOf(listOf("fram", chunkOf("icon", textOf(numberedFrames(1)).substr(172))))),
       "\nFailed to read jiffies info of file."}};
  for (const auto& [file, refusal] : files) {
    boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
    boxes.expectTold(file + refusal, BoxIcon::Exclamation);
    dialogs.paths = {file};
    press(kOpenAni);
    expectKept();
    EXPECT_EQ(shell.aniHistory().path(1), folder.file("film.ani"));
  }
}

TEST_F(AniFilesTest, AFrameThatCannotBeDrawnIsNamedByItsNumber) {
  openAndChange();
  std::string bytes = textOf({plainFrame(1), plainFrame(2)});
  const std::size_t second = bytes.rfind("icon");
  bytes = bytes.substr(0, second + 8) + std::string(bytes.size() - second - 8, '\0');
  boxes.expectAsked(kLossQuestion, BoxAnswer::Yes);
  boxes.expectTold("Failed to retrieve one of the frames, i.e. 1\n", BoxIcon::Exclamation);
  dialogs.paths = {folder.write("half.ani", bytes)};
  press(kOpenAni);
  expectKept();
}

TEST_F(AniFilesTest, LossesAreAnnouncedAndStayOnTheStatusBar) {
  std::string bytes = textOf(numberedFrames(2));
  bytes.replace(bytes.find("rate") + 8, 1, "\x5B");
  const std::string file = folder.write("long.ani", bytes);
  session.openFile(file);
  EXPECT_THAT(display.announced, Contains("Will not be kept: rates above 90"));
  EXPECT_EQ(path(), "long.ani    Will not be kept: rates above 90");
  press(kClose), enterSession();
  EXPECT_EQ(path(), "long.ani    Will not be kept: rates above 90");
  EXPECT_EQ(session.path(), file);
  saveTo(folder.file("saved.ani"));
  EXPECT_EQ(path(), folder.file("saved.ani"));
}

TEST_F(AniFilesTest, ANewFilmHasNoLosses) {
  std::string bytes = textOf(numberedFrames(2));
  bytes.replace(bytes.find("rate") + 8, 1, "\x5B");
  session.openFile(folder.write("long.ani", bytes));
  press(kCreateAni);
  EXPECT_EQ(path(), "Untitled");
}

// Saving.

TEST_F(AniFilesTest, SavesTheFilmWithTheChosenHotSpot) {
  session.openFile(writeFilm("film.ani", numberedFrames(3), 1, 2));
  change();
  display.announced.clear();
  session.setChoices({.jiffies = 90, .hotspotX = 30, .hotspotY = 31});
  boxes.expectAsked(saveQuestion("[30, 31]", "[1, 2]"), BoxAnswer::Yes);
  const std::string target = folder.file("saved.ani");
  dialogs.paths = {target};
  press(kSaveAni);
  const std::vector<FilmFrame> frames = numberedFrames(3);
  EXPECT_EQ(folder.read("saved.ani"), textOf({frames[1], frames[0], frames[2]}, 30, 31));
  EXPECT_FALSE(session.isChanged());
  EXPECT_EQ(session.path(), target);
  EXPECT_EQ(path(), target);
  for (const FilmFrame& frame : session.frames().all()) {
    EXPECT_EQ(frame.hotspotX, 30);
    EXPECT_EQ(frame.hotspotY, 31);
  }
  EXPECT_EQ(session.frames().current(), 2);
  EXPECT_EQ(shell.aniHistory().path(1), target);
  EXPECT_EQ(shell.aniHistory().path(2), folder.file("film.ani"));
  EXPECT_THAT(display.announced, ElementsAre("Saved"));
}

TEST_F(AniFilesTest, ASavedFilmIsReadBackTheSame) {
  std::vector<FilmFrame> frames = numberedFrames(70);
  for (int i = 0; i < 70; ++i) frames[i].picture.image.SetPixelV(i % 32, i / 32, kWhite);
  openFilm(frames);
  session.setChoices({.hotspotX = 3, .hotspotY = 4});
  boxes.expectAsked(saveQuestion("[3, 4]", "[0, 0]"), BoxAnswer::Yes);
  dialogs.paths = {folder.file("saved.ani")};
  press(kSaveAni);
  session.openFile(folder.file("saved.ani"));
  ASSERT_EQ(session.frames().count(), 70);
  for (int i = 0; i < 70; ++i) {
    const FilmFrame& frame = session.frames().frame(i + 1);
    EXPECT_TRUE(samePicture(frame.picture, frames[i].picture)) << i;
    EXPECT_EQ(frame.jiffies, i + 1);
    EXPECT_EQ(frame.hotspotX, 3);
    EXPECT_EQ(frame.hotspotY, 4);
  }
}

TEST_F(AniFilesTest, TheDialogProposesTheNameOfTheFile) {
  openFilm(2);
  const std::string folderBefore = state.process.mLastFolder;
  saveTo("");
  const FileDialogRequest& request = dialogs.requests.back();
  EXPECT_EQ(request.fileName, "film");
  EXPECT_EQ(request.defaultExtension, "ani");
  EXPECT_THAT(request.filters, ElementsAre(FileFilter{"Animated cursor files (*.ani)", "*.ani"}));
  EXPECT_TRUE(request.flags & kFileOverwritePrompt) << "no file is written over without a question";
  EXPECT_EQ(state.process.mLastFolder, folderBefore);
}

TEST_F(AniFilesTest, ANewFilmIsProposedAsUntitled) {
  enterSession();
  press(kCreateAni);
  click("mnuFileSub", 2);
  state.mCurrentColor = kBlack;
  paint(3, 3);
  press(kFromArea);
  boxes.expectAsked(saveQuestion("[0, 0]", "[0, 0]"), BoxAnswer::Yes);
  dialogs.paths = {""};
  press(kSaveAni);
  ASSERT_EQ(dialogs.requests.size(), 1U);
  EXPECT_EQ(dialogs.requests[0].fileName, "Untitled");
  EXPECT_TRUE(session.isChanged());
}

TEST_F(AniFilesTest, ABlankFirstFrameIsNotSaved) {
  std::vector<FilmFrame> frames = numberedFrames(2);
  frames[0].picture = FramePicture();
  openFilm(frames);
  boxes.expectTold("First frame cannot be a blank", BoxIcon::None);
  press(kSaveAni);
  EXPECT_TRUE(dialogs.requests.empty());
  press(kShiftFrameDown);
  saveTo(folder.file("saved.ani"));
  EXPECT_EQ(folder.read("saved.ani"), textOf({frames[1], frames[0]})) << "the others can be blank";
}

TEST_F(AniFilesTest, NothingIsWrittenWithoutConsentAndName) {
  openAndChange();
  expectSaveQuestion(BoxAnswer::No);
  press(kSaveAni);
  EXPECT_TRUE(dialogs.requests.empty());
  saveTo("");
  expectKept();
  EXPECT_EQ(folder.read("film.ani"), textOf(numberedFrames(3)));
}

TEST_F(AniFilesTest, AsksBeforeItWritesOverTheFileOfAContainer) {
  openAndChange();
  const Bytes icon = build(anyEntry(32, 4));
  const std::string file = folder.write("held.ico", std::string(icon.begin(), icon.end()));
  bool ok = false;
  shell.doOpenIconFileQuietly(file, ok);
  ASSERT_TRUE(ok);
  expectSaveQuestion();
  dialogs.paths = {file};
  boxes.expectAsked("Container 1 holds an icon of this file.\nProceed?", BoxAnswer::No);
  press(kSaveAni);
  expectKept();
  EXPECT_EQ(folder.read("held.ico"), std::string(icon.begin(), icon.end()));
}

TEST_F(AniFilesTest, ProgressIsShownAndRemoved) {
  openAndChange();
  std::vector<int> shown;
  display.onChanged = [&](DisplayPart part) {
    if (part == DisplayPart::StatusBar) shown.push_back(state.screen.progressPercent);
  };
  saveTo(folder.file("saved.ani"));
  ASSERT_GE(shown.size(), 3U);
  shown.resize(3);
  EXPECT_THAT(shown, ElementsAre(0, 100, -1));
  EXPECT_EQ(state.screen.progressPercent, -1);
}

TEST_F(AniFilesTest, AReadOnlyTargetIsKept) {
  openAndChange();
  const std::string target = folder.write("kept.ani", "kept");
  std::filesystem::permissions(target, std::filesystem::perms::owner_read);
  expectFailure(target);
  EXPECT_EQ(folder.read("kept.ani"), "kept");
}

TEST_F(AniFilesTest, AFolderIsNotWrittenOver) {
  openAndChange();
  expectFailure(folder.makeFolder("folder.ani"));
}

TEST_F(AniFilesTest, AFullDiskLeavesTheFormerFile) {
  openAndChange();
  const std::string target = folder.write("kept.ani", "kept");
  {
    const FullDisk disk(100);
    expectSaveQuestion();
    dialogs.paths = {target};
    boxes.expectTold(kNotSaved, BoxIcon::Exclamation);
    press(kSaveAni);
  }
  expectKept();
  EXPECT_EQ(folder.read("kept.ani"), "kept");
  saveTo(target);
  EXPECT_FALSE(session.isChanged());
}

TEST_F(AniFilesTest, AVanishedFolderIsReported) {
  openAndChange();
  const std::string gone = folder.makeFolder("gone");
  dialogs.inside = [&] { std::filesystem::remove_all(gone); };
  expectFailure(gone + "/film.ani");
}

TEST_F(AniFilesTest, TheFolderOfTheDialogCanHaveVanished) {
  openAndChange();
  state.process.mLastFolder = folder.file("gone") + "/";
  expectSaveQuestion();
  boxes.expectTold(folder.file("gone") + "/\nFolder not found.", BoxIcon::Exclamation);
  dialogs.paths = {""};
  press(kSaveAni);
}

TEST_F(AniFilesTest, ASavedFilmIsClosedWithoutAQuestion) {
  openAndChange();
  saveTo(folder.file("saved.ani"));
  press(kClose);
  EXPECT_FALSE(isVisible());
}

}  // namespace
}  // namespace gp::test
