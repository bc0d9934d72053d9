#include "shell/DirChooser.h"
#include "support/ScriptedPorts.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace gp {
namespace {

class FolderChooser : public testing::Test {
 protected:
  ~FolderChooser() override { std::filesystem::current_path(former_); }
  void haveIcons() {
    folder_.write("b.ico");
    folder_.write("A.ICO");
    folder_.write("c.txt");
  }

  std::filesystem::path former_ = std::filesystem::current_path();
  test::TempFolder folder_;
  test::ScriptedBoxes boxes_;
};

TEST_F(FolderChooser, ItStartsInTheGivenFolderWithThePatternsFiles) {
  haveIcons();
  const DirChooser chooser("*.ICO", folder_.path());
  EXPECT_EQ(chooser.folder(), folder_.path());
  EXPECT_EQ(chooser.pattern(), "*.ICO");
  EXPECT_EQ(chooser.files(), (std::vector<std::string>{"A.ICO", "b.ico"}));
}

TEST_F(FolderChooser, AnUnusableStartFolderMeansTheCurrentDirectory) {
  std::filesystem::current_path(folder_.path());
  EXPECT_EQ(DirChooser("*.*", "").folder(), folder_.path());
  EXPECT_EQ(DirChooser("*.*", folder_.file("none")).folder(), folder_.path());
}

TEST_F(FolderChooser, ChangingTheFolderChangesTheCurrentDirectory) {
  const std::string inner = folder_.makeFolder("inner");
  folder_.write("inner/x.ico");
  DirChooser chooser("*.ICO", folder_.path());
  EXPECT_TRUE(chooser.changeFolder(inner + "/"));
  EXPECT_EQ(chooser.folder(), inner);
  EXPECT_EQ(std::filesystem::current_path().native(), inner);
  EXPECT_EQ(chooser.files(), std::vector<std::string>{"x.ico"});
  EXPECT_TRUE(chooser.changeFolder(inner + "/.."));
  EXPECT_EQ(chooser.folder(), folder_.path());
}

TEST_F(FolderChooser, AFolderThatCannotBeEnteredLeavesTheFormerOne) {
  DirChooser chooser("*.ICO", folder_.path());
  EXPECT_FALSE(chooser.changeFolder(folder_.file("none")));
  EXPECT_FALSE(chooser.changeFolder(folder_.write("file")));
  EXPECT_FALSE(chooser.changeFolder(""));
  EXPECT_FALSE(chooser.changeDrive("/no such drive"));
  EXPECT_EQ(chooser.folder(), folder_.path());
}

TEST_F(FolderChooser, ADriveIsEntered) {
  DirChooser chooser("*.ICO", folder_.path());
  const auto drives = chooser.drives();
  ASSERT_FALSE(drives.empty());
  EXPECT_EQ(drives.front(), "/");
  EXPECT_TRUE(chooser.changeDrive("/"));
  EXPECT_EQ(chooser.folder(), "/");
  EXPECT_EQ(chooser.folderRows().front().path, "/");
}

TEST_F(FolderChooser, TheLabelCountsAllFiles) {
  haveIcons();
  EXPECT_EQ(DirChooser("*.*", folder_.path()).filesInDirText(), "Files in dir:3");
}

TEST_F(FolderChooser, TheLabelNamesTheExtensionOfAPattern) {
  haveIcons();
  EXPECT_EQ(DirChooser("*.ICO", folder_.path()).filesInDirText(), "ICO files in dir:  2");
  EXPECT_EQ(DirChooser("*.cur", folder_.path()).filesInDirText(), "CUR files in dir:  0");
}

TEST_F(FolderChooser, AShortPatternHasNoLabel) { EXPECT_EQ(DirChooser("*.a", folder_.path()).filesInDirText(), ""); }

TEST_F(FolderChooser, AnotherPatternRefreshesTheFiles) {
  haveIcons();
  DirChooser chooser("*.ICO", folder_.path());
  chooser.setPattern("*.*");
  EXPECT_EQ(chooser.files().size(), 3u);
  folder_.write("d.txt");
  chooser.refresh();
  EXPECT_EQ(chooser.files().size(), 4u);
}

TEST_F(FolderChooser, RowsLeadFromTheRootToTheFolderAndIntoIt) {
  folder_.makeFolder("b");
  folder_.makeFolder("A");
  const auto rows = DirChooser("*.*", folder_.path()).folderRows();
  const auto open = std::count_if(rows.begin(), rows.end(), [](const FolderRow& row) { return row.isOpen; });
  ASSERT_EQ(static_cast<long>(rows.size()), open + 2);
  EXPECT_EQ(rows.front().name, "/");
  EXPECT_EQ(rows.front().depth, 0);
  EXPECT_EQ(rows[open - 1].path, folder_.path());
  EXPECT_EQ(rows[open - 1].depth, open - 1);
  EXPECT_EQ(rows[open].name, "A");
  EXPECT_EQ(rows[open].path, folder_.file("A"));
  EXPECT_EQ(rows[open].depth, open);
  EXPECT_EQ(rows[open + 1].name, "b");
}

TEST_F(FolderChooser, AFolderWithFilesIsAcceptedWithoutAQuestion) {
  haveIcons();
  EXPECT_TRUE(DirChooser("*.ICO", folder_.path()).accept(boxes_));
}

TEST_F(FolderChooser, AFolderWithoutAnyFileIsAskedAbout) {
  boxes_.expectAsked("There is no any file directly in selected folder.\nProceed still?", BoxAnswer::No);
  EXPECT_FALSE(DirChooser("*.*", folder_.path()).accept(boxes_));
}

TEST_F(FolderChooser, AFolderWithoutFilesOfThePatternIsAskedAbout) {
  folder_.write("c.txt");
  boxes_.expectAsked("There is no ICO files directly in selected folder.\nProceed still?", BoxAnswer::Yes);
  EXPECT_TRUE(DirChooser("*.ICO", folder_.path()).accept(boxes_));
}

}  // namespace
}  // namespace gp
