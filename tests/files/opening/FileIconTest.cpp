// Which icon stands for a file in a list of files.
#include "files/CursorBuilder.h"
#include "files/FilesFixture.h"
#include "files/opening/FileIcon.h"

namespace gp::test {
namespace {

constexpr int kSide = 32;

int sideShown(const IconFolder& folder, std::vector<Entry> entries) {
  return iconOfFile(folder.write("icons.ico", build(IcoFile{std::move(entries), 0, 1, {}})), kSide).width();
}

TEST(FileIcon, IsTheLargestThatFitsOtherwiseTheSmallest) {
  const IconFolder folder;
  EXPECT_EQ(sideShown(folder, {anyEntry(16, 4), anyEntry(48, 4), anyEntry(32, 4), anyEntry(24, 4)}), 32);
  EXPECT_EQ(sideShown(folder, {anyEntry(48, 4), anyEntry(16, 4), anyEntry(24, 4)}), 24);
  EXPECT_EQ(sideShown(folder, {anyEntry(64, 4), anyEntry(48, 4)}), 48);
}

TEST(FileIcon, HasTheMostBitsOfItsSize) {
  const IconFolder folder;
  const std::string path =
      folder.write("a.ico", build(IcoFile{{anyEntry(32, 4), anyEntry(32, 32), anyEntry(32, 8)}, 0, 1, {}}));
  EXPECT_TRUE(iconOfFile(path, kSide).hasAlphaValues());
}

TEST(FileIcon, OneThatCannotBeShownGivesWayToTheNext) {
  const IconFolder folder;
  EXPECT_EQ(sideShown(folder, {entryOf(anyPicture(32, 4), 0, 2), anyEntry(16, 4)}), 16);
}

TEST(FileIcon, ACursorStandsForItself) {
  const IconFolder folder;
  const std::string path = folder.write("a.cur", build(cursorOf(anyPicture(32, 4))));
  EXPECT_EQ(iconOfFile(path, kSide).width(), 32);
}

TEST(FileIcon, OtherFilesHaveNone) {
  const IconFolder folder;
  EXPECT_TRUE(iconOfFile(folder.write("a.txt", {'t', 'e', 'x', 't'}), kSide).isEmpty());
  EXPECT_TRUE(iconOfFile(folder.path("missing.ico"), kSide).isEmpty());
  EXPECT_TRUE(iconOfFile(folder.write("b.ico", build(IcoFile{{anyEntry(64, 4)}, 0, 1, {}})), kSide).isEmpty());
}

}  // namespace
}  // namespace gp::test
