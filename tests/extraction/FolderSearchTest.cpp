#include "extraction/FolderSearch.h"
#include "extraction/LibraryBytes.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gp::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

constexpr Rgb kRed{255, 0, 0, 255};

// A program with icons of 32 and 16 pixels, numbered from 1.
std::string program(int icons) {
  std::vector<Resource> resources;
  for (int n = 1; n <= icons; ++n) {
    resources.push_back(iconOf(2 * n, imageBytes(plainPicture(32, kRed))));
    resources.push_back(iconOf(2 * n + 1, imageBytes(plainPicture(16, kRed))));
    resources.push_back(groupOf(n, {{32, 32, 0, 1, 24, 0, 2 * n}, {16, 16, 0, 1, 24, 0, 2 * n + 1}}));
  }
  const Bytes bytes = peWith(resources);
  return {bytes.begin(), bytes.end()};
}

class FolderSearch : public testing::Test {
 protected:
  // The files in the order of the walk, without the folder.
  Names walk(const std::string& patterns = "*.exe", bool withSubfolders = true) {
    Names visited;
    FolderVisitor visitor;
    visitor.file = [&](const std::string& path) {
      visited.push_back(path.substr(folder_.path().size() + 1));
      return true;
    };
    EXPECT_TRUE(walkFolder(folder_.path(), patterns, withSubfolders, visitor));
    return visited;
  }
  Names writtenNames() const {
    Names names;
    for (const auto& entry : fs::directory_iterator(target_.path())) names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
  }
  SearchChoices choices(SearchNaming naming = SearchNaming::ByFile) const {
    return {.target = target_.path(), .naming = naming};
  }
  static bool always() { return true; }

  TempFolder folder_, target_;
};

// The walk.

TEST_F(FolderSearch, SubfoldersComeFirstFromTheLastToTheFirstAndThenTheFiles) {
  folder_.makeFolder("a/x");
  folder_.makeFolder("B");
  folder_.makeFolder("c");
  for (const char* name : {"b.exe", "A.EXE", "a/1.exe", "a/x/2.exe", "B/3.exe", "c/4.exe", "c/5.exe"})
    folder_.write(name);
  EXPECT_EQ(walk(), (Names{"c/4.exe", "c/5.exe", "B/3.exe", "a/x/2.exe", "a/1.exe", "A.EXE", "b.exe"}));
}

TEST_F(FolderSearch, WithoutSubfoldersOnlyTheFilesOfTheFolderAreVisited) {
  folder_.makeFolder("a");
  folder_.write("a/1.exe");
  folder_.write("b.exe");
  EXPECT_EQ(walk("*.exe", false), Names{"b.exe"});
}

TEST_F(FolderSearch, AFileIsVisitedOnceThatMatchesOneOfThePatternsInAnyCase) {
  for (const char* name : {"a.exe", "b.DLL", "c.ico", "d.exe.txt", "e"}) folder_.write(name);
  EXPECT_EQ(walk("*.EXE; *.dll;;*.exe"), (Names{"a.exe", "b.DLL"}));
  EXPECT_EQ(walk(""), Names{});
  EXPECT_EQ(walk("*"), (Names{"a.exe", "b.DLL", "c.ico", "d.exe.txt", "e"}));
}

TEST_F(FolderSearch, LinksToFoldersAreNotFollowedAndThoseToFilesAre) {
  TempFolder other;
  other.write("far.exe");
  fs::create_directory_symlink(other.path(), folder_.file("away"));
  fs::create_directory_symlink(folder_.path(), folder_.file("root"));
  fs::create_directory_symlink(other.path(), folder_.file("folder.exe"));
  fs::create_symlink(other.file("far.exe"), folder_.file("near.exe"));
  fs::create_symlink(other.file("missing.exe"), folder_.file("lost.exe"));
  EXPECT_EQ(walk(), Names{"near.exe"});
}

TEST_F(FolderSearch, PipesAndFoldersWithTheNameOfAProgramAreNotVisited) {
  ASSERT_EQ(mkfifo(folder_.file("pipe.exe").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", folder_.file("zero.exe"));
  folder_.makeFolder("folder.exe");
  folder_.write("folder.exe/in.exe");
  EXPECT_EQ(walk(), Names{"folder.exe/in.exe"});
}

TEST_F(FolderSearch, HiddenFilesAndFoldersAreVisited) {
  folder_.makeFolder(".hidden");
  folder_.write(".hidden/.a.exe");
  EXPECT_EQ(walk(), Names{".hidden/.a.exe"});
}

TEST_F(FolderSearch, NamesWithNewlinesAndOtherBytesAreVisited) {
  folder_.makeFolder("a\nb");
  folder_.write("a\nb/\xFF\xFE.exe");
  EXPECT_EQ(walk(), Names{"a\nb/\xFF\xFE.exe"});
}

TEST_F(FolderSearch, AMissingFolderHasNoContent) {
  EXPECT_TRUE(walkFolder(folder_.file("missing"), "*", true, {.file = [](const std::string&) {
                           ADD_FAILURE() << "a file of a folder that is not there";
                           return true;
                         }}));
}

TEST_F(FolderSearch, AFolderThatVanishesEndsItsLevelOnly) {
  folder_.makeFolder("gone/in");
  folder_.write("gone/in/a.exe");
  folder_.write("stays.exe");
  Names visited;
  FolderVisitor visitor;
  visitor.folder = [&](const std::string& path) {
    if (path.ends_with("/in")) fs::remove_all(folder_.file("gone"));
    return true;
  };
  visitor.file = [&](const std::string& path) {
    visited.push_back(fs::path(path).filename());
    return true;
  };
  EXPECT_TRUE(walkFolder(folder_.path(), "*.exe", true, visitor));
  EXPECT_EQ(visited, Names{"stays.exe"});
}

TEST_F(FolderSearch, TheVisitorEndsTheWalk) {
  folder_.makeFolder("a");
  for (const char* name : {"a/1.exe", "a/2.exe", "b.exe"}) folder_.write(name);
  Names visited;
  FolderVisitor visitor;
  visitor.file = [&](const std::string& path) {
    visited.push_back(fs::path(path).filename());
    return false;
  };
  EXPECT_FALSE(walkFolder(folder_.path(), "*.exe", true, visitor));
  EXPECT_EQ(visited, Names{"1.exe"});
  visitor.folder = [](const std::string& path) { return !path.ends_with("/a"); };
  visited.clear();
  EXPECT_FALSE(walkFolder(folder_.path(), "*.exe", true, visitor));
  EXPECT_EQ(visited, Names{});
}

TEST_F(FolderSearch, TheListingOfALargeFolderAsksToo) {
  for (int i = 0; i < 1000; ++i) folder_.write(std::to_string(i) + ".exe");
  int asked = 0;
  FolderVisitor visitor;
  visitor.file = [](const std::string&) {
    ADD_FAILURE() << "visited after the end";
    return true;
  };
  visitor.goesOn = [&] { return ++asked < 4; };
  EXPECT_FALSE(walkFolder(folder_.path(), "*.exe", false, visitor));
  EXPECT_GE(asked, 4);
  EXPECT_LE(asked, 6);
}

// Makes folders in one another, deeper than a path can be, and removes them again.
class DeepTree {
 public:
  DeepTree(const std::string& root, int levels) : levels_(levels), folder_(open(root.c_str(), O_RDONLY)) {
    for (int i = 0; i < levels_; ++i) {
      EXPECT_EQ(mkdirat(folder_, kName, 0700), 0);
      enter(kName);
    }
  }
  ~DeepTree() {
    for (int i = 0; i < levels_; ++i) {
      enter("..");
      unlinkat(folder_, kName, AT_REMOVEDIR);
    }
    close(folder_);
  }
  DeepTree(const DeepTree&) = delete;
  DeepTree& operator=(const DeepTree&) = delete;

  static constexpr const char* kName = "a-name-of-forty-characters-in-each-folder";

 private:
  void enter(const char* name) {
    const int next = openat(folder_, name, O_RDONLY | O_DIRECTORY);
    close(folder_);
    folder_ = next;
  }

  int levels_;
  int folder_;
};

TEST_F(FolderSearch, ADeepTreeIsWalkedAsFarAsItsPathsCanBe) {
  folder_.write("top.exe");
  const DeepTree tree(folder_.path(), 300);
  int folders = 0;
  Names visited;
  FolderVisitor visitor;
  visitor.folder = [&](const std::string&) { return ++folders > 0; };
  visitor.file = [&](const std::string& path) {
    visited.push_back(fs::path(path).filename());
    return true;
  };
  EXPECT_TRUE(walkFolder(folder_.path(), "*.exe", true, visitor));
  EXPECT_EQ(visited, Names{"top.exe"});
  EXPECT_GT(folders, 95);
  EXPECT_LT(folders, 103);
}

// The icons of one program.

TEST_F(FolderSearch, OtherFilesHaveNoIcons) {
  EXPECT_EQ(countIconsOfFile(folder_.write("a.exe", program(3))), 3);
  EXPECT_EQ(countIconsOfFile(folder_.write("b.exe", "text")), 0);
  EXPECT_EQ(countIconsOfFile(folder_.file("missing.exe")), 0);
}

TEST_F(FolderSearch, NamesHaveTheNumberInTheProgramOrThatOfAllFiles) {
  EXPECT_EQ(searchedName(choices(), "/x/setup.v1.exe", 17, 2), "setup.v12_x.ico");
  EXPECT_EQ(searchedName(choices(SearchNaming::Serial), "/x/setup.v1.exe", 17, 2), "17_setup.v1.ico");
}

TEST_F(FolderSearch, EachIconIsAFileOfTheChosenSize) {
  const std::string path = folder_.write("a.exe", program(2));
  int written = 5;
  extractIconsOfFile(path, choices(), written, always);
  EXPECT_EQ(written, 7);
  EXPECT_EQ(writtenNames(), (Names{"a0_x.ico", "a1_x.ico"}));
  EXPECT_EQ(target_.read("a0_x.ico").at(6), 32);
  SearchChoices small = choices(SearchNaming::Serial);
  small.size = kSearchedSmall;
  extractIconsOfFile(path, small, written, always);
  EXPECT_EQ(writtenNames(), (Names{"7_a.ico", "8_a.ico", "a0_x.ico", "a1_x.ico"}));
  EXPECT_EQ(target_.read("8_a.ico").at(6), 16);
}

TEST_F(FolderSearch, AnIconThatCannotBeDrawnKeepsItsNumber) {
  const Resource good = iconOf(2, imageBytes(plainPicture(32, kRed)));
  const Bytes bytes = peWith({good, groupOf(1, {{32, 32, 0, 1, 24, 0, 77}}), groupOf(2, {{32, 32, 0, 1, 24, 0, 2}})});
  int written = 0;
  extractIconsOfFile(folder_.write("a.exe", std::string(bytes.begin(), bytes.end())), choices(), written, always);
  EXPECT_EQ(written, 1);
  EXPECT_EQ(writtenNames(), Names{"a1_x.ico"});
}

TEST_F(FolderSearch, TheMaximumAndTheCallerEndAProgram) {
  const std::string path = folder_.write("a.exe", program(5));
  SearchChoices few = choices();
  few.maximum = 3;
  int written = 1;
  extractIconsOfFile(path, few, written, always);
  EXPECT_EQ(written, 3);
  int asked = 0;
  written = 0;
  extractIconsOfFile(path, choices(), written, [&] { return ++asked < 3; });
  EXPECT_EQ(written, 2);
}

TEST_F(FolderSearch, AMissingTargetIsNotCreatedAndNothingIsCounted) {
  SearchChoices missing = choices();
  missing.target = target_.file("missing");
  int written = 0;
  extractIconsOfFile(folder_.write("a.exe", program(2)), missing, written, always);
  EXPECT_EQ(written, 0);
  EXPECT_FALSE(fs::exists(missing.target));
}

TEST_F(FolderSearch, AFileThatCannotBeWrittenIsNotCountedAndTheOthersAre) {
  target_.makeFolder("a0_x.ico");
  const std::string kept = folder_.write("kept", "content");
  fs::create_symlink(kept, target_.file("a1_x.ico"));
  int written = 0;
  extractIconsOfFile(folder_.write("a.exe", program(3)), choices(), written, always);
  EXPECT_EQ(written, 1);
  EXPECT_EQ(folder_.read("kept"), "content") << "a link in the target is not written through";
}

TEST_F(FolderSearch, FilesWithTheSameNameAreReplacedOnlyByFile) {
  folder_.makeFolder("x");
  int written = 0;
  for (const auto naming : {SearchNaming::ByFile, SearchNaming::Serial})
    for (const char* name : {"a.exe", "x/a.exe"})
      extractIconsOfFile(folder_.write(name, program(1)), choices(naming), written, always);
  EXPECT_EQ(written, 4);
  EXPECT_EQ(writtenNames(), (Names{"2_a.ico", "3_a.ico", "a0_x.ico"}));
}

}  // namespace
}  // namespace gp::test
