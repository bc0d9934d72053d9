#include "platform/text/Utf16.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

TEST(Utf16, EveryLengthOfACharacterIsConverted) {
  EXPECT_EQ(utf8Of(u""), "");
  EXPECT_EQ(utf8Of(u"a\u007f\u0080\u07ff\u0800\uffff"), "a\u007f\u0080\u07ff\u0800\uffff");
  EXPECT_EQ(utf8Of(u"\U00010000\U0001F600\U0010FFFF!"), "\U00010000\U0001F600\U0010FFFF!");
  EXPECT_EQ(utf8Of(std::u16string_view(u"a\0b", 3)), std::string("a\0b", 3));
}

TEST(Utf16, HalvesOfPairsAreReplaced) {
  using Units = std::u16string;
  EXPECT_EQ(utf8Of(Units{0xD800}), "\uFFFD");
  EXPECT_EQ(utf8Of(Units{0xDC00, 'x'}), "\uFFFDx");
  EXPECT_EQ(utf8Of(Units{0xD83D, 'x', 0xDE00}), "\uFFFDx\uFFFD");
  EXPECT_EQ(utf8Of(Units{0xD83D, 0xD83D, 0xDE00}), "\uFFFD\U0001F600");
}

}  // namespace
}  // namespace gp
