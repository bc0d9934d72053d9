#include "platform/text/ProfileFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <random>

namespace gp {
namespace {

class ProfileFile : public testing::Test {
 protected:
  void have(std::string_view content) { folder_.write("a.ini", content); }
  std::string content() const { return folder_.read("a.ini"); }
  std::string value(std::string_view section, std::string_view key) {
    return ReadIniString(section, key, "none", file_);
  }

  test::TempFolder folder_;
  std::string file_ = folder_.file("a.ini");
};

TEST_F(ProfileFile, AValueIsFoundBySectionAndKeyInAnyCase) {
  have("[Other]\nGridLines=1\n[Options]\nGridLines=3\n");
  EXPECT_EQ(value("OPTIONS", "gridlines"), "3");
}

TEST_F(ProfileFile, BlanksAroundSectionKeyAndValueDoNotCount) {
  have("  [ Options ]  \r\n \t GridLines  =  3 \t\r\n");
  EXPECT_EQ(value("Options", "GridLines"), "3");
}

TEST_F(ProfileFile, AMissingKeySectionOrFileGivesTheFallback) {
  EXPECT_EQ(value("Options", "GridLines"), "none");
  have("[Options]\nOther=1\n[Next]\nGridLines=2\n");
  EXPECT_EQ(value("Options", "GridLines"), "none");
  EXPECT_EQ(value("Nowhere", "GridLines"), "none");
}

TEST_F(ProfileFile, AnEmptyValueIsNotAnAbsentKey) {
  have("[S]\nEmpty=\n");
  EXPECT_EQ(value("S", "Empty"), "");
  EXPECT_EQ(gp::ProfileFile(file_).find("S", "Empty"), "");
  EXPECT_EQ(gp::ProfileFile(file_).find("S", "Absent"), std::nullopt);
}

TEST_F(ProfileFile, QuotesAroundAValueAreTakenOff) {
  have("[S]\nA=\" x \"\nB='y'\nC=\"z\nD=\"\n");
  EXPECT_EQ(value("S", "A"), " x ");
  EXPECT_EQ(value("S", "B"), "y");
  EXPECT_EQ(value("S", "C"), "\"z");
  EXPECT_EQ(value("S", "D"), "\"");
}

TEST_F(ProfileFile, CommentsAndLinesWithoutAnEqualsSignHoldNoKey) {
  have("[S]\n;A=1\nA\n=5\nA=2=3\n");
  EXPECT_EQ(value("S", "A"), "2=3");
  EXPECT_EQ(value("S", ";A"), "none");
}

TEST_F(ProfileFile, TheFirstOfTwoSectionsOfOneNameCounts) {
  have("[S]\nA=1\n[s]\nA=2\nB=3\n");
  EXPECT_EQ(value("S", "A"), "1");
  EXPECT_EQ(value("S", "B"), "none");
}

TEST_F(ProfileFile, AByteOrderMarkHidesNoSection) {
  have("\xEF\xBB\xBF[S]\nA=1\n");
  EXPECT_EQ(value("S", "A"), "1");
  EXPECT_TRUE(WriteIniString("S", "A", "2", file_));
  EXPECT_EQ(content(), "\xEF\xBB\xBF[S]\nA=2\n");
}

TEST_F(ProfileFile, AtMost2047BytesOfAValueAreDelivered) {
  have("[S]\nA=" + std::string(5000, 'x') + "\n");
  EXPECT_EQ(value("S", "A"), std::string(2047, 'x'));
  EXPECT_EQ(ReadIniString("S", "B", std::string(5000, 'y'), file_), std::string(2047, 'y'));
}

TEST_F(ProfileFile, WritingMakesFileSectionAndKey) {
  EXPECT_TRUE(WriteIniString("Options", "GridLines", "3", file_));
  EXPECT_TRUE(WriteIniString("Options", "PromptToSave", "-1", file_));
  EXPECT_TRUE(WriteIniString("Last Folder", "LastFolder", "/home/ana", file_));
  EXPECT_EQ(content(), "[Options]\nGridLines=3\nPromptToSave=-1\n[Last Folder]\nLastFolder=/home/ana\n");
}

TEST_F(ProfileFile, WritingKeepsEverythingThatItDoesNotConcern) {
  have(
      "; top\r\n\r\n[Foreign]\r\nx = 1\r\n junk\r\n\r\n[Options]\r\n; mine\r\ngridlines =  "
      "2\r\nOther=7\r\n\r\n[Last]\r\ny=2");
  EXPECT_TRUE(WriteIniString("Options", "GridLines", "5", file_));
  EXPECT_EQ(content(),
            "; top\r\n\r\n[Foreign]\r\nx = 1\r\n junk\r\n\r\n[Options]\r\n; "
            "mine\r\nGridLines=5\r\nOther=7\r\n\r\n[Last]\r\ny=2");
}

TEST_F(ProfileFile, ANewKeyStandsBehindTheLastLineOfItsSection) {
  have("[A]\nx=1\n\n\n[B]\ny=2\n");
  EXPECT_TRUE(WriteIniString("A", "z", "3", file_));
  EXPECT_EQ(content(), "[A]\nx=1\nz=3\n\n\n[B]\ny=2\n");
}

TEST_F(ProfileFile, ANewKeyTakesTheLineEndOfTheFile) {
  have("[A]\r\nx=1");
  EXPECT_TRUE(WriteIniString("A", "z", "3", file_));
  EXPECT_TRUE(WriteIniString("B", "y", "4", file_));
  EXPECT_EQ(content(), "[A]\r\nx=1\r\nz=3\r\n[B]\r\ny=4\r\n");
}

TEST_F(ProfileFile, AKeyAtTheVeryEndIsReplacedWithoutAddingALineEnd) {
  have("[A]\nx=1");
  EXPECT_TRUE(WriteIniString("A", "x", "22", file_));
  EXPECT_EQ(content(), "[A]\nx=22");
}

TEST_F(ProfileFile, RemovingAKeyRemovesItsLineAlone) {
  have("[A]\nx=1\ny=2\n; z\n");
  EXPECT_TRUE(DeleteIniKey("a", "X", file_));
  EXPECT_EQ(content(), "[A]\ny=2\n; z\n");
  EXPECT_TRUE(DeleteIniKey("A", "absent", file_));
  EXPECT_EQ(content(), "[A]\ny=2\n; z\n");
}

TEST_F(ProfileFile, RemovingFromAnAbsentFileMakesNone) {
  EXPECT_TRUE(DeleteIniKey("A", "x", file_));
  EXPECT_FALSE(std::filesystem::exists(file_));
}

TEST_F(ProfileFile, AValueWithALineBreakIsRefused) {
  have("[A]\nx=1\n");
  EXPECT_FALSE(WriteIniString("A", "x", "a\n[B]", file_));
  EXPECT_FALSE(WriteIniString("A", "x", "a\rb", file_));
  EXPECT_FALSE(WriteIniString("A", "x", std::string(2048, 'x'), file_));
  EXPECT_EQ(content(), "[A]\nx=1\n");
}

TEST_F(ProfileFile, AReadOnlyFileIsNotWritten) {
  have("[A]\nx=1\n");
  std::filesystem::permissions(file_, std::filesystem::perms::owner_read);
  EXPECT_FALSE(WriteIniString("A", "x", "2", file_));
  EXPECT_FALSE(DeleteIniKey("A", "x", file_));
  EXPECT_EQ(content(), "[A]\nx=1\n");
}

TEST_F(ProfileFile, AFolderInPlaceOfTheFileReadsAsEmptyAndIsNotWritten) {
  folder_.makeFolder("a.ini");
  EXPECT_EQ(value("A", "x"), "none");
  EXPECT_FALSE(WriteIniString("A", "x", "2", file_));
}

TEST_F(ProfileFile, AFileAboveOneMegabyteReadsAsEmptyAndIsNotWritten) {
  have("[A]\nx=1\n");
  std::filesystem::resize_file(file_, std::uintmax_t{1} << 30);
  EXPECT_EQ(value("A", "x"), "none");
  EXPECT_FALSE(WriteIniString("A", "x", "2", file_));
  EXPECT_EQ(std::filesystem::file_size(file_), std::uintmax_t{1} << 30);
}

TEST_F(ProfileFile, OneLineOfAMegabyteIsRead) {
  have("[A]\n" + std::string(1 << 19, 'k') + "\nx=" + std::string(1 << 18, 'v') + "\ny=1\n");
  EXPECT_EQ(value("A", "x").size(), 2047u);
  EXPECT_EQ(value("A", "y"), "1");
}

TEST_F(ProfileFile, RandomBytesYieldTheFallbackAndSurviveAWrite) {
  std::mt19937 random(7);
  std::string bytes(100000, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  have(bytes);
  EXPECT_EQ(value("Options", "GridLines"), "none");
  EXPECT_TRUE(WriteIniString("Options", "GridLines", "3", file_));
  EXPECT_EQ(value("Options", "GridLines"), "3");
  EXPECT_EQ(content().substr(0, bytes.size()), bytes);
}

TEST_F(ProfileFile, OddBracketsAndSignsDoNoHarm) {
  for (const char* odd : {"[", "]", "[]", "=", "[=", "[A\nx=1", "\xEF\xBB", "\r", "\n\n", "[A]x=1", "\0[A]"}) {
    have(odd);
    EXPECT_EQ(value("B", "x"), "none") << odd;
    EXPECT_TRUE(WriteIniString("B", "x", "2", file_)) << odd;
    EXPECT_EQ(value("B", "x"), "2") << odd;
  }
}

}  // namespace
}  // namespace gp
