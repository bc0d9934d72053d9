#include "platform/text/Paths.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

struct PathCase {
  const char* path;
  const char* parts[7];
};

TEST(Paths, APathIsTakenApartIntoItsSevenParts) {
  const PathCase cases[] = {
      {"C:\\a\\b.ico", {"C:\\a\\", "C:\\a\\b", "C:", "C:\\a\\", "b.ico", "b", ".ico"}},
      {"/home/ana/b.ico", {"/home/ana/", "/home/ana/b", "", "/home/ana/", "b.ico", "b", ".ico"}},
      {"/home/ana.x/b", {"/home/ana.x/", "/home/ana.x/b", "", "/home/ana.x/", "b", "b", ""}},
      {"/a/b.c.ico", {"/a/", "/a/b.c", "", "/a/", "b.c.ico", "b.c", ".ico"}},
      {"C:\\a\\", {"C:\\a\\", "C:\\a\\", "C:", "C:\\a\\", "", "", ""}},
      {"/a/.ico", {"/a/", "/a/", "", "/a/", ".ico", "", ".ico"}},
      {"C:", {"C:", "C:", "C:", "C:", "", "", ""}},
      {"/", {"/", "/", "", "/", "", "", ""}},
      {"a\\b/c.d", {"a\\b/", "a\\b/c", "", "a\\b/", "c.d", "c", ".d"}},
  };
  for (const PathCase& row : cases)
    for (int part = 0; part < 7; ++part)
      EXPECT_EQ(ParseFileName(row.path, static_cast<PathPart>(part)), row.parts[part]) << row.path << " part " << part;
}

TEST(Paths, WithoutASeparatorTheNameWithExtensionStaysEmpty) {
  EXPECT_EQ(ParseFileName("b.ico", PathPart::NameWithExtension), "");
  EXPECT_EQ(ParseFileName("b.ico", PathPart::BareName), "b");
  EXPECT_EQ(ParseFileName("b.ico", PathPart::Extension), ".ico");
  EXPECT_EQ(ParseFileName("b.ico", PathPart::Folder), "");
  EXPECT_EQ(ParseFileName("C:b.ico", PathPart::WithoutExtension), "C:b");
}

TEST(Paths, ADotAtTheEndBeginsNoExtension) {
  EXPECT_EQ(ParseFileName("/a/b.", PathPart::Extension), "");
  EXPECT_EQ(ParseFileName("/a/b.", PathPart::BareName), "b.");
  EXPECT_EQ(ParseFileName("/a/b.c.", PathPart::Extension), ".c.");
}

TEST(Paths, PathsAbove255CharactersHaveNoParts) {
  const std::string longest = "/" + std::string(254, 'a');
  EXPECT_EQ(ParseFileName(longest, PathPart::BareName), std::string(254, 'a'));
  EXPECT_EQ(ParseFileName(longest + "a", PathPart::BareName), "");
}

TEST(Paths, ThePathLengthCountsCharacters) {
  std::string name;
  for (int i = 0; i < 254; ++i) name += "\xC3\xA9";
  EXPECT_EQ(ParseFileName("/" + name, PathPart::BareName), name);
}

TEST(Paths, PathsThatBeginWithADollarOrABlankHaveNoParts) {
  EXPECT_EQ(ParseFileName("$a/b.ico", PathPart::BareName), "");
  EXPECT_EQ(ParseFileName(" a/b.ico", PathPart::BareName), "");
  EXPECT_EQ(ParseFileName("", PathPart::BareName), "");
}

TEST(Paths, APartOutsideTheSevenIsEmpty) {
  EXPECT_EQ(ParseFileName("/a/b.ico", static_cast<PathPart>(7)), "");
  EXPECT_EQ(ParseFileName("/a/b.ico", static_cast<PathPart>(-1)), "");
}

TEST(Paths, APathWithThreeSeparatorsIsShownInFull) {
  EXPECT_EQ(ShortenPath("C:\\a\\b\\d.ico"), "C:\\a\\b\\d.ico");
  EXPECT_EQ(ShortenPath("/a/b/c.ico"), "/a/b/c.ico");
  EXPECT_EQ(ShortenPath(""), "");
}

TEST(Paths, APathWithFourSeparatorsLosesItsMiddle) {
  EXPECT_EQ(ShortenPath("C:\\a\\b\\c\\d.ico"), "C:\\a\\.....\\d.ico");
  EXPECT_EQ(ShortenPath("/home/ana/a/b/c.ico"), "/home/...../c.ico");
}

TEST(Paths, ALongPathKeepsItsNameWhenItLosesItsMiddle) {
  EXPECT_EQ(ShortenPath("/home/ana/" + std::string(300, 'a') + "/b/c.ico"), "/home/...../c.ico");
}

TEST(Paths, PatternsIgnoreCase) {
  EXPECT_TRUE(matchesPattern("a.ico", "*.ICO"));
  EXPECT_TRUE(matchesPattern("A.ICO", "*.ico"));
  EXPECT_FALSE(matchesPattern("a.icon", "*.ico"));
  EXPECT_FALSE(matchesPattern("ico", "*.ico"));
}

TEST(Paths, ThePatternOfAllFilesMatchesNamesWithoutADotToo) {
  EXPECT_TRUE(matchesPattern("README", "*.*"));
  EXPECT_TRUE(matchesPattern("", "*.*"));
}

TEST(Paths, AStarMatchesAnyRunAndAQuestionMarkOneCharacter) {
  EXPECT_TRUE(matchesPattern("abcabd", "a*abd"));
  EXPECT_TRUE(matchesPattern("abc", "***"));
  EXPECT_TRUE(matchesPattern("\xC3\xA9.ico", "?.ico"));
  EXPECT_TRUE(matchesPattern("\xFF.ico", "?.ico"));
  EXPECT_FALSE(matchesPattern("ab.ico", "?.ico"));
  EXPECT_FALSE(matchesPattern("", "?"));
  EXPECT_TRUE(matchesPattern("", ""));
}

TEST(Paths, ManyStarsCostNoTime) {
  std::string pattern;
  for (int i = 0; i < 100; ++i) pattern += "*a";
  EXPECT_FALSE(matchesPattern(std::string(20000, 'a') + "b", pattern));
}

}  // namespace
}  // namespace gp
