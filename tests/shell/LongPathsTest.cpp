// Paths of more characters than the text fields of other systems hold: the file of an icon stays that file.
#include "files/CursorBuilder.h"
#include "platform/text/Paths.h"
#include "support/ShellFixture.h"

#include <filesystem>

namespace gp::test {
namespace {

constexpr int kOpenIcon = 7, kOpenCursor = 9, kSave = 12, kSaveAs = 13;

class LongPaths : public ShellFixture {
 protected:
  const std::string deep =
      folder.makeFolder(std::string(100, 'a') + "/" + std::string(100, 'b') + "/" + std::string(100, 'c'));
  const std::string path = deep + "/" + std::string(60, 'n') + ".ico";
  // Where the file would be if its path were cut.
  const std::string cut = path.substr(0, 255);

  LongPaths() {
    write(path, build(anyEntry(24, 4)));
    EXPECT_GT(path.size(), 300U);
  }
  static void write(const std::string& file, const Bytes& bytes) {
    std::ofstream(file, std::ios::binary) << std::string(bytes.begin(), bytes.end());
  }
  std::string open(int command, const std::string& file) {
    dialogs.paths = {file};
    click("mnuFileSub", command);
    return state.current().path.trimmed();
  }
  void change() {
    if (shell.selectedTool() != kPaint) shell.drawing().tools.selectTool(kPaint);
    shell.colour().selection.setCurrentColor(0x0000FF);
    paint(3, 4);
    ASSERT_TRUE(state.IsIconChanged());
  }
};

TEST_F(LongPaths, AFileIsOpenedSavedAndFoundInTheHistory) {
  start();
  EXPECT_EQ(open(kOpenIcon, path), path);
  EXPECT_EQ(status(StatusPanel::Path), path);
  EXPECT_EQ(shell.fileHistory().path(1), path);
  change();
  const Surface image = state.picImage;
  click("mnuFileSub", kSave);
  EXPECT_FALSE(state.IsIconChanged());
  EXPECT_FALSE(std::filesystem::exists(cut));
  EXPECT_EQ(state.current().path.trimmed(), path);

  click("mnuFileSub", 2);
  click("mnuFileHistory", 1);
  EXPECT_EQ(state.current().path.trimmed(), path);
  EXPECT_TRUE(std::ranges::equal(state.picImage.pixels(), image.pixels())) << "the change was saved to this file";
}

TEST_F(LongPaths, ASaveUnderALongPathGoesThereAndTheNextSaveToo) {
  start();
  click("mnuFileSub", 5);
  change();
  const std::string other = deep + "/" + std::string(80, 'o') + ".ico";
  dialogs.paths = {other};
  click("mnuFileSub", kSaveAs);
  EXPECT_EQ(state.current().path.trimmed(), other);
  EXPECT_EQ(shell.fileHistory().path(1), other);
  const auto size = std::filesystem::file_size(other);
  write(other, build(anyEntry(32, 8)));
  state.current().modified = true;
  click("mnuFileSub", kSave);
  EXPECT_EQ(std::filesystem::file_size(other), size);
}

TEST_F(LongPaths, TheHistoryKeepsThemThroughARestart) {
  start();
  open(kOpenIcon, path);
  History history(kFileHistorySection, kFileHistoryLimit, folder.file("Glimmerpane.ini"));
  history.load();
  EXPECT_EQ(history.path(1), path);
  const std::string caption = ShortenPath(path);
  EXPECT_TRUE(caption.ends_with("/...../" + std::string(60, 'n') + ".ico")) << caption;
}

TEST_F(LongPaths, TwoFilesThatDifferOnlyAtTheEndAreTwoFiles) {
  start();
  const std::string other = deep + "/" + std::string(60, 'n') + "2.ico";
  write(other, build(anyEntry(16, 4)));
  EXPECT_EQ(open(kOpenIcon, path), path);
  shell.document().iconsPanel.SwitchContainer(1);
  EXPECT_EQ(open(kOpenIcon, other), other);
  EXPECT_EQ(state.mIconRecs[0].path.trimmed(), path);
  EXPECT_NE(state.mIconRecs[0].path, state.mIconRecs[1].path);
}

TEST_F(LongPaths, ACursorKeepsItsPathAndTheFolderOfTheLastDialogStays) {
  start();
  const std::string cursor = deep + "/" + std::string(60, 'n') + ".cur";
  write(cursor, build(cursorOf(anyPicture(32, 4), 1, 2)));
  const std::string before = state.process.mLastFolder;
  EXPECT_FALSE(before.empty());
  EXPECT_EQ(open(kOpenCursor, cursor), cursor);
  EXPECT_EQ(state.process.mLastFolder, before);
}

}  // namespace
}  // namespace gp::test
