#include "platform/text/FixedText.h"
#include "platform/text/TrimmedText.h"
#include "platform/text/Utf8.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

TEST(Utf8, CharactersAreCountedNotBytes) {
  EXPECT_EQ(countCharacters(""), 0);
  EXPECT_EQ(countCharacters("abc"), 3);
  EXPECT_EQ(countCharacters("\xC3\xA9t\xC3\xA9"), 3);
  EXPECT_EQ(countCharacters("\xE2\x82\xAC\xF0\x9F\x8E\xA8"), 2);
}

TEST(Utf8, EachByteThatIsNoValidUtf8CountsAsOneCharacter) {
  EXPECT_EQ(countCharacters("\xFF\xFE"), 2);
  EXPECT_EQ(countCharacters("\xC3"), 1);              // cut short
  EXPECT_EQ(countCharacters("\xC3("), 2);             // wrong second byte
  EXPECT_EQ(countCharacters("\xC0\x80"), 2);          // overlong
  EXPECT_EQ(countCharacters("\xED\xA0\x80"), 3);      // surrogate
  EXPECT_EQ(countCharacters("\xF4\x90\x80\x80"), 4);  // beyond the last character
  EXPECT_EQ(countCharacters("\xE2\x82x"), 3);
}

TEST(Utf8, TheFirstCharactersAreNeverCutInside) {
  EXPECT_EQ(firstCharacters("\xE2\x82\xAC\xE2\x82\xAC", 1), "\xE2\x82\xAC");
  EXPECT_EQ(firstCharacters("abc", 2), "ab");
  EXPECT_EQ(firstCharacters("abc", 9), "abc");
  EXPECT_EQ(firstCharacters("abc", 0), "");
}

TEST(Utf8, TrimTakesBlanksOffBothSides) {
  EXPECT_EQ(trim("  a b  "), "a b");
  EXPECT_EQ(trim("   "), "");
  EXPECT_EQ(trim(""), "");
  EXPECT_EQ(trimRight("  a  "), "  a");
  EXPECT_EQ(trimRight("   "), "");
}

TEST(Utf8, CaseChangesTouchAsciiLettersOnly) {
  EXPECT_EQ(upperCase("a\xC3\xA9z1{"), "A\xC3\xA9Z1{");
  EXPECT_EQ(lowerCase("A\xC3\x89Z1["), "a\xC3\x89z1[");
}

TEST(Utf8, EndingsAndEqualityIgnoreCase) {
  EXPECT_TRUE(endsWithAnyCase("a.ICO", ".ico"));
  EXPECT_FALSE(endsWithAnyCase("ico", ".ico"));
  EXPECT_TRUE(endsWithAnyCase("", ""));
  EXPECT_TRUE(equalAnyCase("Options", "OPTIONS"));
  EXPECT_FALSE(equalAnyCase("Option", "Options"));
}

TEST(FixedText, AFieldKeepsItsLengthInCharacters) {
  FixedText<3> field("\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9");
  EXPECT_EQ(field.trimmed(), "\xC3\xA9\xC3\xA9\xC3\xA9");
  field = "a";
  EXPECT_EQ(field.padded(), "a  ");
}

TEST(TrimmedText, AnyLengthIsKeptAndReadTrimmed) {
  const std::string name(1000, 'n');
  TrimmedText field("  " + name + " x  ");
  EXPECT_EQ(field.trimmed(), name + " x");
  EXPECT_EQ(field, TrimmedText(name + " x"));
  field = "";
  EXPECT_EQ(field, TrimmedText());
}

TEST(FixedText, AFieldIsReadTrimmed) {
  EXPECT_EQ(FixedText<8>("  ab ").trimmed(), "ab");
  EXPECT_EQ(FixedText<8>("  ab "), FixedText<8>("  ab"));
}

}  // namespace
}  // namespace gp
