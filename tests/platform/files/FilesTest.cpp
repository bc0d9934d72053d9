#include "platform/files/FileWriting.h"
#include "platform/files/Files.h"
#include "support/ProcessUse.h"
#include "support/TempFolder.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <vector>

namespace gp {
namespace {

namespace fs = std::filesystem;

// A named pipe; opening it would block.
void makePipe(const std::string& path) { ASSERT_EQ(std::system(("mkfifo '" + path + "'").c_str()), 0); }

std::string textOf(const std::optional<FileBytes>& bytes) {
  return bytes ? std::string(bytes->span().begin(), bytes->span().end()) : "nothing";
}

class Files : public testing::Test {
 protected:
  test::TempFolder folder_;
};

TEST_F(Files, AFileIsReadWhole) {
  const std::string content("a\0\r\n\xFF", 5);
  EXPECT_EQ(textOf(readFile(folder_.write("a", content))), content);
}

TEST_F(Files, AnEmptyFileHasNoBytes) {
  const auto bytes = readFile(folder_.write("a", ""));
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->span().size(), 0u);
}

TEST_F(Files, FoldersPipesDevicesAndAbsentFilesAreNotRead) {
  makePipe(folder_.file("pipe"));
  for (const std::string& path : {folder_.path(), folder_.file("pipe"), std::string("/dev/zero"), folder_.file("none"),
                                  std::string(), folder_.file(std::string(300, 'n'))}) {
    EXPECT_FALSE(readFile(path)) << path;
    EXPECT_FALSE(readFileStart(path, 10)) << path;
    EXPECT_FALSE(FileExists(path)) << path;
  }
}

TEST_F(Files, TheStartOfAFileIsAtMostTheFile) {
  const std::string path = folder_.write("a", "abcdef");
  EXPECT_EQ(textOf(readFileStart(path, 3)), "abc");
  EXPECT_EQ(textOf(readFileStart(path, 100)), "abcdef");
  EXPECT_EQ(textOf(readFileStart(path, 0)), "");
}

TEST_F(Files, AFileOfOneGigabyteIsRefusedAtOnceButItsStartIsRead) {
  const std::string path = folder_.write("a", "abc");
  fs::resize_file(path, std::uintmax_t{1} << 30);
  const std::size_t before = test::bytesRead(), memory = test::peakMemory();
  EXPECT_FALSE(readFile(path));
  EXPECT_EQ(textOf(readFileStart(path, 3)), "abc");
  EXPECT_TRUE(FileExists(path));
  EXPECT_LT(test::bytesRead() - before, test::kMegabyte);
  EXPECT_LT(test::peakMemory() - memory, test::kMegabyte);
}

TEST_F(Files, OfRangesOnlyTheirBytesAreRead) {
  const std::string path = folder_.write("a", "abcdefghij");
  const FileRange ranges[] = {{1, 3}, {5, 8}};
  using namespace std::string_literals;
  EXPECT_EQ(textOf(readFileRanges(path, ranges)), "\0bc\0\0fgh"s);
  EXPECT_EQ(textOf(readFileRanges(path, {})), "");
  EXPECT_EQ(textOf(readFileRanges(folder_.file("none"), ranges)), "nothing");
}

TEST_F(Files, RangesEndWithTheFile) {
  const std::string path = folder_.write("a", "abcdef");
  const FileRange across[] = {{0, 2}, {4, 100}}, behind[] = {{0, 2}, {6, 8}, {50, 60}};
  using namespace std::string_literals;
  EXPECT_EQ(textOf(readFileRanges(path, across)), "ab\0\0ef"s);
  EXPECT_EQ(textOf(readFileRanges(path, behind)), "ab\0\0\0\0"s);
}

TEST_F(Files, WhatLiesBetweenRangesTakesNoMemory) {
  const std::string path = folder_.write("a", "abc");
  constexpr std::uintmax_t kGigabyte = std::uintmax_t{1} << 30;
  fs::resize_file(path, kGigabyte);
  const std::size_t before = test::bytesRead(), memory = test::peakMemory();
  const FileRange ranges[] = {{0, 3}, {kGigabyte - 1, kGigabyte}};
  const auto bytes = readFileRanges(path, ranges);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->span().size(), kGigabyte);
  EXPECT_EQ(bytes->span()[2], 'c');
  EXPECT_EQ(bytes->span()[3], 0);
  EXPECT_LT(test::bytesRead() - before, test::kMegabyte);
  EXPECT_LT(test::peakMemory() - memory, test::kMegabyte);
}

TEST_F(Files, ASparseFileIsReadWithItsZeros) {
  const std::string path = folder_.write("a", "abc");
  fs::resize_file(path, std::uintmax_t{16} << 20);
  const auto bytes = readFile(path);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->span().size(), std::size_t{16} << 20);
  EXPECT_EQ(bytes->span()[2], 'c');
  EXPECT_EQ(bytes->span().back(), 0);
}

TEST_F(Files, NamesNeedNotBeUtf8) {
  const std::string name = "a\xFF\xFE '\" \xC3\xA9.ico";
  const std::string path = folder_.write(name, "content");
  EXPECT_EQ(textOf(readFile(path)), "content");
  EXPECT_TRUE(FileExists(path));
  EXPECT_TRUE(replaceFile(path, {}));
  EXPECT_EQ(filesInFolder(folder_.path(), "*.ico"), std::vector<std::string>{name});
}

TEST_F(Files, BytesCanBeMadeFromAVector) {
  const FileBytes bytes(std::vector<std::uint8_t>{1, 2, 3});
  EXPECT_EQ(textOf(FileBytes(std::vector<std::uint8_t>{'a', 'b'})), "ab");
  EXPECT_EQ(bytes.span().size(), 3u);
}

TEST_F(Files, AFileIsTheSameBySpellingAndByLinks) {
  const std::string path = folder_.write("a", "x");
  const std::string other = folder_.write("b", "x");
  fs::create_symlink(path, folder_.file("soft"));
  EXPECT_TRUE(isSameFile(path, path));
  EXPECT_TRUE(isSameFile(path, folder_.path() + "/./a"));
  EXPECT_TRUE(isSameFile(folder_.file("soft"), path));
  EXPECT_FALSE(isSameFile(path, other));
  EXPECT_FALSE(isSameFile(folder_.file("none"), folder_.file("none"))) << "what is not there is no file";
  EXPECT_FALSE(isSameFile("", path));
}

TEST_F(Files, OnlyRegularFilesExist) {
  EXPECT_TRUE(FileExists(folder_.write("a")));
  EXPECT_FALSE(FileExists(folder_.path()));
  EXPECT_TRUE(directoryExists(folder_.path()));
  EXPECT_FALSE(directoryExists(folder_.file("a")));
  EXPECT_FALSE(directoryExists(""));
}

TEST_F(Files, ReadOnlyHiddenAndFolderAreAttributes) {
  const std::string readOnly = folder_.write("r");
  fs::permissions(readOnly, fs::perms::owner_read);
  EXPECT_TRUE(HasFileAttribute(readOnly));
  EXPECT_TRUE(HasFileAttribute(folder_.write(".hidden")));
  EXPECT_TRUE(HasFileAttribute(folder_.path()));
  EXPECT_FALSE(HasFileAttribute(folder_.write("plain")));
  EXPECT_FALSE(HasFileAttribute(folder_.file("absent")));
}

TEST_F(Files, AFolderListsItsFilesSortedWithCaseIgnored) {
  for (const char* name : {"b.ico", "A.ICO", "c.txt", "a.ico", "D.Ico"}) folder_.write(name);
  folder_.makeFolder("e.ico");
  makePipe(folder_.file("f.ico"));
  EXPECT_EQ(filesInFolder(folder_.path(), "*.ico"), (std::vector<std::string>{"A.ICO", "a.ico", "b.ico", "D.Ico"}));
  EXPECT_EQ(filesInFolder(folder_.path(), "*.*").size(), 5u);
  EXPECT_TRUE(filesInFolder(folder_.file("absent"), "*.*").empty());
}

TEST_F(Files, AFolderListsItsFolders) {
  for (const char* name : {"b", "A", "c"}) folder_.makeFolder(name);
  folder_.write("file");
  EXPECT_EQ(foldersInFolder(folder_.path()), (std::vector<std::string>{"A", "b", "c"}));
}

}  // namespace
}  // namespace gp
