#include "shell/History.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <random>

namespace gp {
namespace {

class HistoryList : public testing::Test {
 protected:
  void have(std::string_view content) { folder_.write("a.ini", content); }
  std::string content() const { return folder_.read("a.ini"); }
  static std::vector<std::string> paths(const History& history) {
    std::vector<std::string> result;
    for (int i = 1; i <= history.count(); ++i) result.push_back(history.path(i));
    return result;
  }
  void open(const std::vector<std::string>& names) {
    for (const std::string& name : names) history_.add(name);
  }

  using Paths = std::vector<std::string>;
  test::TempFolder folder_;
  std::string file_ = folder_.file("a.ini");
  History history_{kFileHistorySection, kFileHistoryLimit, file_};
};

TEST_F(HistoryList, WithoutAFileTheHistoryIsEmptyAndHidden) {
  history_.load();
  EXPECT_EQ(history_.count(), 0);
  for (int i = 0; i <= kFileHistoryLimit; ++i) EXPECT_FALSE(history_.isVisible(i)) << i;
}

TEST_F(HistoryList, TheFirstPathMakesTheFile) {
  open({"/a"});
  EXPECT_EQ(content(), "[File History]\n1.=/a\n");
  EXPECT_EQ(paths(history_), Paths{"/a"});
}

TEST_F(HistoryList, AnEmptyTopIsReplacedAndTheRestStays) {
  have("[File History]\n1.=  \n2.=/old\n");
  open({"/a"});
  EXPECT_EQ(content(), "[File History]\n2.=/old\n1.=/a\n");
  EXPECT_EQ(paths(history_), (Paths{"/a", "/old"}));
}

TEST_F(HistoryList, ANewPathGoesOnTop) {
  open({"/a", "/b", "/c"});
  EXPECT_EQ(paths(history_), (Paths{"/c", "/b", "/a"}));
}

TEST_F(HistoryList, OpeningTheLatestFileAgainLeavesTheListAsItIs) {
  open({"/a", "/b"});
  const std::string before = content();
  open({"/b"});
  EXPECT_EQ(content(), before);
}

TEST_F(HistoryList, TheComparisonWithTheTopIsExact) {
  open({"/a", "/A"});
  EXPECT_EQ(paths(history_), (Paths{"/A", "/a"}));
}

TEST_F(HistoryList, AfterSevenOpensTheLastSixRemain) {
  open({"/1", "/2", "/3", "/4", "/5", "/6", "/7"});
  EXPECT_EQ(paths(history_), (Paths{"/7", "/6", "/5", "/4", "/3", "/2"}));
}

TEST_F(HistoryList, APathOpenedAgainStandsTwice) {
  open({"/1", "/2", "/3", "/4", "/5", "/6", "/7", "/5"});
  EXPECT_EQ(paths(history_), (Paths{"/5", "/7", "/6", "/5", "/4", "/3"}));
}

TEST_F(HistoryList, GapsAreSkippedInTheMenuAndKeptInTheFile) {
  have("[File History]\n1.=/a\n4.=/d\n");
  history_.load();
  EXPECT_EQ(paths(history_), (Paths{"/a", "/d"}));
  EXPECT_EQ(history_.caption(2), "&2 /d");
  open({"/x"});
  EXPECT_EQ(content(), "[File History]\n1.=/x\n2.=/a\n3.=\n4.=\n5.=/d\n6.=\n");
  EXPECT_EQ(paths(history_), (Paths{"/x", "/a", "/d"}));
}

TEST_F(HistoryList, CaptionsCountFromOneAndShortenThePath) {
  open({"C:\\a\\b\\c\\d.ico", "/home/ana/a/b/c.ico", "C:\\a\\b\\d.ico"});
  EXPECT_EQ(history_.caption(1), "&1 C:\\a\\b\\d.ico");
  EXPECT_EQ(history_.caption(2), "&2 /home/...../c.ico");
  EXPECT_EQ(history_.caption(3), "&3 C:\\a\\.....\\d.ico");
  EXPECT_EQ(history_.caption(4), "");
  EXPECT_EQ(history_.caption(0), "");
}

TEST_F(HistoryList, AnAmpersandInAPathMarksNoAccessLetter) {
  open({"/R&D.ico"});
  EXPECT_EQ(history_.caption(1), "&1 /R&&D.ico");
  EXPECT_EQ(history_.path(1), "/R&D.ico");
}

TEST_F(HistoryList, TheSeparatorShowsWithAnyEntryAndTheRestIsHidden) {
  open({"/a", "/b"});
  for (int i = 0; i <= kFileHistoryLimit; ++i) EXPECT_EQ(history_.isVisible(i), i <= 2) << i;
  EXPECT_FALSE(history_.isVisible(-1));
}

TEST_F(HistoryList, TheHistoryOfAnimatedCursorsHoldsThreeInItsOwnSection) {
  History cursors(kAniHistorySection, kAniHistoryLimit, file_);
  open({"/a.ico"});
  for (const char* name : {"/1", "/2", "/3", "/4"}) cursors.add(name);
  EXPECT_EQ(paths(cursors), (Paths{"/4", "/3", "/2"}));
  EXPECT_EQ(content(), "[File History]\n1.=/a.ico\n[ANI File History]\n1.=/4\n2.=/3\n3.=/2\n");
}

TEST_F(HistoryList, KeysBeyondTheLimitStay) {
  have("[File History]\n1.=/a\n7.=/foreign\n");
  open({"/b"});
  EXPECT_NE(content().find("7.=/foreign\n"), std::string::npos);
  EXPECT_EQ(paths(history_), (Paths{"/b", "/a"}));
}

TEST_F(HistoryList, APathWithALineBreakIsNotRemembered) {
  open({"/a"});
  const std::string before = content();
  open({"/b\n[Options]", std::string("/c\0", 3), "/" + std::string(3000, 'x')});
  EXPECT_EQ(content(), before);
}

TEST_F(HistoryList, NamesOfAnyBytesAreKept) {
  const std::string odd = "/a\xFF\xFE \xC3\xA9 ;=[x].ico";
  open({"/b", odd});
  History again(kFileHistorySection, kFileHistoryLimit, file_);
  again.load();
  EXPECT_EQ(paths(again), (Paths{odd, "/b"}));
}

TEST_F(HistoryList, RandomBytesGiveAnEmptyHistory) {
  std::mt19937 random(3);
  std::string bytes(50000, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  have(bytes);
  history_.load();
  EXPECT_EQ(history_.count(), 0);
}

}  // namespace
}  // namespace gp
