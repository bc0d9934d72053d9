#include "platform/resources/ShellLink.h"
#include "support/LinkBytes.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr std::uint32_t kList = 0x1, kInfo = 0x2, kName = 0x4, kRelative = 0x8, kIcon = 0x40, kWide = 0x80,
                        kNoInfo = 0x100;
constexpr std::uint32_t kTargetBlock = 0xA0000001, kIconBlock = 0xA0000007;

ShellLink linkOf(const LinkBytes& built) {
  const auto link = readShellLink(built.bytes());
  EXPECT_TRUE(link);
  return link.value_or(ShellLink());
}

TEST(ShellLinkReading, TargetIsTheBasePathAndItsSuffixBehindTheItemList) {
  EXPECT_EQ(linkOf(LinkBytes(kList | kInfo).itemList(20).info("C:\\a.exe")).target, "C:\\a.exe");
  EXPECT_EQ(linkOf(LinkBytes(kInfo).info("C:\\shared\\", "b.exe")).target, "C:\\shared\\b.exe");
  EXPECT_EQ(linkOf(LinkBytes(kInfo).info("C:\\shared", "b.exe")).target, "C:\\shared\\b.exe");
}

TEST(ShellLinkReading, WidePathsCountBeforeTheOthers) {
  EXPECT_EQ(linkOf(LinkBytes(kInfo).wideInfo("C:\\?", u"C:\\\u0416\\", u"\u00e4.exe")).target,
            "C:\\\xD0\x96\\\xC3\xA4.exe");
}

TEST(ShellLinkReading, BytePathsAreOfTheWesternCodePage) {
  EXPECT_EQ(linkOf(LinkBytes(kInfo).info("C:\\\xE4\x80\x9F.exe")).target, "C:\\\xC3\xA4\xE2\x82\xAC\xC5\xB8.exe");
}

TEST(ShellLinkReading, IconFileAndIndexAreTheLastTextAndTheHeaders) {
  const ShellLink bytes = linkOf(LinkBytes(kName | kRelative | kIcon, -7).text("name").text("..\\x").text("C:\\i.dll"));
  EXPECT_EQ(bytes.iconFile, "C:\\i.dll");
  EXPECT_EQ(bytes.iconIndex, -7);
  EXPECT_EQ(bytes.target, "");
  EXPECT_EQ(linkOf(LinkBytes(kIcon | kWide, 3).wideText(u"C:\\\u0416.ico")).iconFile, "C:\\\xD0\x96.ico");
}

TEST(ShellLinkReading, TextEndsAtAMarkInsideIt) {
  EXPECT_EQ(linkOf(LinkBytes(kIcon | kWide).wideText(std::u16string_view(u"C:\\i.dll\0", 9))).iconFile, "C:\\i.dll");
}

TEST(ShellLinkReading, IconFileWithVariablesCountsWhereThereIsNoOtherAndIsNotExpanded) {
  EXPECT_EQ(linkOf(LinkBytes(0).block(kIconBlock, "%HOME%\\i.ico", u"")).iconFile, "%HOME%\\i.ico");
  EXPECT_EQ(linkOf(LinkBytes(0).block(kIconBlock, "%A%\\i.ico", u"%B%\\i.ico")).iconFile, "%B%\\i.ico");
  EXPECT_EQ(linkOf(LinkBytes(kIcon).text("C:\\i.dll").block(kIconBlock, "%A%", u"%A%")).iconFile, "C:\\i.dll");
}

TEST(ShellLinkReading, TargetWithVariablesIsNoTarget) {
  EXPECT_EQ(linkOf(LinkBytes(0).block(kTargetBlock, "C:\\a.exe", u"C:\\a.exe")).target, "");
}

TEST(ShellLinkReading, ShareOfANetworkIsNoTarget) {
  LinkBytes built(kInfo);
  built.infoHeader(28, 40, 2, 0, 28).putBytes("folder").put8(0).putBytes("12345");
  EXPECT_EQ(linkOf(built).target, "");
}

TEST(ShellLinkReading, LinkThatIgnoresItsInfoHasNoTarget) {
  EXPECT_EQ(linkOf(LinkBytes(kInfo | kNoInfo).info("C:\\a.exe")).target, "");
}

TEST(ShellLinkReading, PathsWithoutEndAndOutsideOfTheirPartAreNone) {
  LinkBytes endless(kInfo);
  endless.infoHeader(28, 34, 1, 28, 0).putBytes("C:\\abc").put8(0);
  EXPECT_EQ(linkOf(endless).target, "");
  for (const int at : {0, 4, 27, 40, 0x7FFFFFFF, -1}) {
    LinkBytes outside(kInfo);
    outside.infoHeader(28, 40, 1, at, 0).putBytes("C:\\abc").put8(0).putBytes("12345");
    EXPECT_EQ(linkOf(outside).target, "") << at;
  }
}

TEST(ShellLinkReading, PartLargerThanTheFileEndsIt) {
  EXPECT_EQ(linkOf(LinkBytes(kList | kInfo).put16(0xFFFF).info("C:\\a.exe")).target, "");
  EXPECT_EQ(linkOf(LinkBytes(kInfo).infoHeader(28, -1, 1, 28, 0).putBytes("C:\\a").put8(0)).target, "");
  EXPECT_EQ(linkOf(LinkBytes(kName | kIcon).put16(0xFFFF).text("C:\\i.dll")).iconFile, "");
  EXPECT_EQ(linkOf(LinkBytes(0).put32(0xFFFFFFFF).put32(kIconBlock)).iconFile, "");
}

TEST(ShellLinkReading, BlocksOfNoSizeEndTheFile) {
  EXPECT_EQ(linkOf(LinkBytes(0).put32(0).put32(0).block(kIconBlock, "%A%", u"%A%")).iconFile, "");
  EXPECT_EQ(linkOf(LinkBytes(0).put32(8).put32(kIconBlock).block(kIconBlock, "%A%", u"%A%")).iconFile, "%A%");
}

TEST(ShellLinkReading, OtherFilesAreNoLinks) {
  EXPECT_FALSE(readShellLink({}));
  Bytes otherClass = LinkBytes(kInfo).info("C:\\a.exe").bytes();
  otherClass[19] ^= 1;
  EXPECT_FALSE(readShellLink(otherClass));
  Bytes otherSize = LinkBytes(kInfo).info("C:\\a.exe").bytes();
  otherSize[0] = 77;
  EXPECT_FALSE(readShellLink(otherSize));
}

// Every cut is a link without what is no longer there, or no link: no path is cut.
TEST(ShellLinkReading, CutsLoseWholePaths) {
  const Bytes whole = LinkBytes(kList | kInfo | kName | kIcon | kWide)
                          .itemList(5)
                          .wideInfo("C:\\a", u"C:\\a", u"b.exe")
                          .wideText(u"name")
                          .wideText(u"C:\\i.dll")
                          .block(kIconBlock, "%A%", u"%A%")
                          .bytes();
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const auto link = readShellLink({whole.data(), size});
    ASSERT_EQ(link.has_value(), size >= 76) << size;
    if (!link) continue;
    EXPECT_TRUE(link->target.empty() || link->target == "C:\\a\\b.exe") << size << link->target;
    EXPECT_TRUE(link->iconFile.empty() || link->iconFile == "C:\\i.dll") << size << link->iconFile;
  }
  EXPECT_EQ(readShellLink(whole)->target, "C:\\a\\b.exe");
  EXPECT_EQ(readShellLink(whole)->iconFile, "C:\\i.dll");
}

TEST(ShellLinkReading, FlippedBitsAreRead) {
  const Bytes whole = LinkBytes(kList | kInfo | kIcon).itemList(5).info("C:\\a.exe").text("C:\\i.dll").put32(0).bytes();
  int links = 0;
  for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
    Bytes flipped = whole;
    flipped[bit / 8] ^= static_cast<std::uint8_t>(1 << bit % 8);
    links += readShellLink(flipped).has_value();
  }
  EXPECT_EQ(links, static_cast<int>(whole.size() - 20) * 8);
}

std::string iconOf(std::string_view text) {
  return iconOfDesktopEntry({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

TEST(DesktopEntryReading, IconIsThatOfTheEntrysGroup) {
  EXPECT_EQ(iconOf("# made\n\n[Desktop Entry]\nName=x\nIcon=gimp\n"), "gimp");
  EXPECT_EQ(iconOf("[Desktop Entry]\r\nIcon = /a b.png \r\nIcon=other"), "/a b.png");
  EXPECT_EQ(iconOf("[Other]\nIcon=a\n[Desktop Entry]\nIcon=b"), "b");
  EXPECT_EQ(iconOf("[Desktop Entry]\nName=x\n[Desktop Action y]\nIcon=a\n[Desktop Entry]\nIcon=b"), "");
  EXPECT_EQ(iconOf("Icon=a"), "");
  EXPECT_EQ(iconOf(""), "");
}

TEST(DesktopEntryReading, LocalizedAndOtherKeysAreNotTheIcon) {
  EXPECT_EQ(iconOf("[Desktop Entry]\nIcon[de]=d\nicon=c\nIconX=x\n#Icon=y\nIcon=b"), "b");
  EXPECT_EQ(iconOf("[Desktop Entry]\nType=Link\nURL=http://example.org/a.ico"), "");
}

TEST(DesktopEntryReading, EscapesAreDecodedAndShellSyntaxIsText) {
  EXPECT_EQ(iconOf("[Desktop Entry]\nIcon=\\sa\\tb\\nc\\rd\\\\e\\x\\"), " a\tb\nc\rd\\e\\x\\");
  EXPECT_EQ(iconOf("[Desktop Entry]\nIcon=$(touch /a);`b` $HOME ~"), "$(touch /a);`b` $HOME ~");
}

TEST(DesktopEntryReading, ValueWithAnEndMarkIsNone) {
  EXPECT_EQ(iconOf(std::string_view("[Desktop Entry]\nIcon=/a.ico\0.png\n", 33)), "");
}

}  // namespace
}  // namespace gp::test
