// Saving all frames of an animated cursor from the Icons List.
#include "shell/IconsListFixture.h"

#include <filesystem>
#include <fstream>

namespace gp::test {
namespace {

class IconsListSaving : public IconsListProgram {
 protected:
  std::string target = folder.makeFolder("out");

  void openFilm(int frames) { extract(kAniCommand, writeAni(frames)); }
  std::string question(int files) const {
    return "Frames will be saved as " + target + "/film_1, _2 and _3, etc.\n\nTotally " + std::to_string(files) +
           " files.   Proceed?\n";
  }
  void saveAll(SavedFrames kind = SavedFrames::Icons) {
    dialogs.paths.push_back(target);
    list.cmdSaveAllExtractToFiles(kind);
  }
  int filesInTarget() const {
    return static_cast<int>(
        std::distance(std::filesystem::directory_iterator(target), std::filesystem::directory_iterator()));
  }
  Color colorIn(const std::string& name) const {
    const DecodedIcon icon = IconFiles::ReadIconFileToImage(target + "/" + name, 0, true);
    return icon.isRead() ? icon.icon.image.GetPixel(0, 0) : kNoColor;
  }
};

TEST_F(IconsListSaving, AllFramesBecomeIconFiles) {
  openFilm(3);
  boxes.expectAsked(question(3), BoxAnswer::Yes);
  saveAll();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(colorIn("film_" + std::to_string(i + 1) + ".ico"), colorOf(frameColor(i)));
  EXPECT_EQ(filesInTarget(), 3);
  EXPECT_EQ(display.announced.back(), "Saved");
  EXPECT_EQ(state.process.mLastFolder, target + "/");
  EXPECT_TRUE(isListUp());
}

TEST_F(IconsListSaving, AllFramesBecomeBitmaps) {
  openFilm(2);
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  saveAll(SavedFrames::Bitmaps);
  EXPECT_EQ(filesInTarget(), 2);
  const std::string bytes = folder.read("out/film_2.bmp");
  ASSERT_EQ(bytes.substr(0, 2), "BM");
}

TEST_F(IconsListSaving, NothingIsWrittenAfterANo) {
  openFilm(2);
  boxes.expectAsked(question(2), BoxAnswer::No);
  saveAll();
  dialogs.paths.push_back("");
  list.cmdSaveAllExtractToFiles(SavedFrames::Icons);
  EXPECT_EQ(filesInTarget(), 0);
}

TEST_F(IconsListSaving, OnlyFramesThatCanBeDrawnCount) {
  extract(kAniCommand,
          folder.write("film.ani", aniOf(headerOf(3) + frameList({plainFrame(0), "none", plainFrame(2)}))));
  boxes.expectAsked(question(2), BoxAnswer::Yes);
  saveAll();
  EXPECT_EQ(colorIn("film_1.ico"), colorOf(frameColor(0)));
  EXPECT_EQ(colorIn("film_3.ico"), colorOf(frameColor(2)));
  EXPECT_EQ(filesInTarget(), 2);
}

TEST_F(IconsListSaving, FilesThatAreThereAreAskedAboutOnce) {
  openFilm(3);
  folder.write("out/film_2.ico", "mine");
  folder.write("out/film_3.ico", "mine too");
  const std::string text = target + "/film_2.ico\nand 1 more already in existence.\n\nOverwrite?\n";
  boxes.expectAsked(question(3), BoxAnswer::Yes);
  boxes.expectAsked(text, BoxAnswer::No);
  saveAll();
  EXPECT_EQ(folder.read("out/film_2.ico"), "mine");
  EXPECT_EQ(filesInTarget(), 2);
  boxes.expectAsked(question(3), BoxAnswer::Yes);
  boxes.expectAsked(text, BoxAnswer::Yes);
  saveAll();
  EXPECT_EQ(colorIn("film_2.ico"), colorOf(frameColor(1)));
}

TEST_F(IconsListSaving, AFrameThatCannotBeWrittenEndsIt) {
  openFilm(3);
  std::filesystem::create_directories(target + "/film_2.ico");
  boxes.expectAsked(question(3), BoxAnswer::Yes);
  boxes.expectAsked(target + "/film_2.ico already in existence.\n\nOverwrite?\n", BoxAnswer::Yes);
  boxes.expectTold("Failed to save frame 2", BoxIcon::Exclamation);
  saveAll();
  EXPECT_EQ(filesInTarget(), 2);
  EXPECT_FALSE(list.isDrawing());
}

TEST_F(IconsListSaving, EscapeStopsIt) {
  openFilm(3);
  boxes.expectAsked(question(3), BoxAnswer::Yes);
  pump.inside = [&] { pump.inside = [&] { shell.escapeKey(); }; };
  saveAll();
  EXPECT_EQ(filesInTarget(), 1);
  EXPECT_TRUE(isListUp());
}

TEST_F(IconsListSaving, AFilmThatHasGoneIsReported) {
  openFilm(2);
  std::filesystem::remove(folder.file("film.ani"));
  boxes.expectTold("Failed to read the data from current list", BoxIcon::None);
  saveAll();
  EXPECT_EQ(filesInTarget(), 0);
}

TEST_F(IconsListSaving, OtherSourcesHaveNoFrames) {
  boxes.expectTold("Failed to obtained count of frames", BoxIcon::None);
  list.cmdSaveAllExtractToFiles(SavedFrames::Icons);
  extract(kLargeCommand, writeLibrary(1));
  EXPECT_FALSE(list.isSaveAllEnabled());
  boxes.expectTold("Failed to obtained count of frames", BoxIcon::None);
  list.cmdSaveAllExtractToFiles(SavedFrames::Icons);
}

}  // namespace
}  // namespace gp::test
