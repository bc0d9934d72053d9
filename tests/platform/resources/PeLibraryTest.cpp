// Icon groups and images of PE files, good ones and those with odd headers.
#include "platform/resources/Libraries.h"
#include "support/PeBytes.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

const Bytes kFirst = numbered(40), kSecond = numbered(70, 3);

std::vector<Resource> twoGroups() {
  return {iconOf(1, kFirst), iconOf(2, kSecond), groupOf(101, {{32, 32, 16, 1, 4, 40, 1}, {0, 0, 0, 1, 32, 70, 2}}),
          groupOf(7, {{16, 24, 2, 1, 1, 70, 2}})};
}

void expectTwoGroups(const ParsedLibrary& library, const std::string& what = "") {
  ASSERT_EQ(library.groups(), "#7 #101") << what;
  EXPECT_EQ(library->format(), LibraryFormat::Pe);
  EXPECT_EQ(library.images(0), "#2 16x24x1 of 70; ") << what;
  EXPECT_EQ(library.images(1), "#1 32x32x4 of 40; #2 256x256x32 of 70; ") << what;
  EXPECT_EQ(library.image(1, 0), kFirst) << what;
  EXPECT_EQ(library.image(1, 1), kSecond) << what;
}

TEST(PeLibrary, GroupsAndImagesOfBothFormatsAreRead) {
  expectTwoGroups(ParsedLibrary(peWith(twoGroups())), "32 bits");
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.is64 = true})), "64 bits");
}

TEST(PeLibrary, TheDirectoryOfAGroupStatesWhatItStates) {
  const ParsedLibrary library(peWith({iconOf(5, kFirst), groupOf(1, {{31, 9, 7, 3, 11, 0xFFFFFFFF, 5}})}));
  const GroupImage image = library->imagesOf(library->groups()[0]).at(0);
  EXPECT_EQ(image.width, 31);
  EXPECT_EQ(image.height, 9);
  EXPECT_EQ(image.colors, 7);
  EXPECT_EQ(image.planes, 3);
  EXPECT_EQ(image.bits, 11);
  EXPECT_EQ(image.statedSize, 0xFFFFFFFF);
  EXPECT_EQ(image.id, 5);
  EXPECT_EQ(image.place.size, 40u) << "the size of the resource counts";
}

TEST(PeLibrary, NamesComeBeforeNumbersBothAscending) {
  const std::vector<GroupEntry> none;
  const ParsedLibrary library(peWith({groupOf(300, none), groupOf(2, none), namedGroup(u"ZEBRA", none),
                                      namedGroup(u"apple", none), namedGroup(u"APPLE", none), groupOf(10, none)}));
  EXPECT_EQ(library.groups(), "APPLE ZEBRA apple #2 #10 #300");
}

// The directories of this file are not in order, as those of a careless linker.
TEST(PeLibrary, AnUnsortedDirectoryIsSorted) {
  Bytes section = ResourceSection({groupOf(3, {}), groupOf(4, {}), groupOf(5, {})}, 0x2000).bytes();
  // The numbers of the three groups, in the directory behind the root and its one entry.
  for (const auto& [place, id] : {std::pair{40, 9}, {48, 8}, {56, 9}})
    set32(section, static_cast<std::size_t>(place), static_cast<std::uint32_t>(id));
  const ParsedLibrary library(peFile(section));
  EXPECT_EQ(library.groups(), "#8 #9");
}

TEST(PeLibrary, OfANumberGivenTwiceTheFirstCounts) {
  Bytes section = ResourceSection({groupOf(3, {{1, 1}}), groupOf(4, {{2, 2}})}, 0x2000).bytes();
  set32(section, 40, 4);
  const ParsedLibrary library(peFile(section));
  ASSERT_EQ(library.groups(), "#4");
  EXPECT_EQ(library.images(), "#1 1x1x24 of 0; ");
}

TEST(PeLibrary, NamesAreConvertedToUtf8AndShownWithoutControlCharacters) {
  const std::u16string name{u'\x00E4', u'\n', u'\t', 0xD83D, 0xDE00, 0xD800, 0, u'\x7F', u'\x85', u'x'};
  const ParsedLibrary library(peWith({namedGroup(name, {})}));
  ASSERT_EQ(library->groups().size(), 1u);
  EXPECT_EQ(library->groups()[0].name, std::string("\u00e4\n\t\U0001F600\uFFFD\0\x7F\u0085x", 16));
  EXPECT_EQ(library.groups(), "\u00e4\\u000a\\u0009\U0001F600\uFFFD\\u0000\\u007f\\u0085x");
}

TEST(PeLibrary, OneIconForSeveralLanguagesTheFirstOfTheFile) {
  const ParsedLibrary library(peWith({iconOf(1, kFirst, 1033), iconOf(1, kSecond, 1031), groupOf(1, {{32, 32}}, 1033),
                                      groupOf(1, {{48, 48}}, 1031), groupOf(5, {{16, 16}}, 0)}));
  ASSERT_EQ(library.groups(), "#1 #5");
  EXPECT_EQ(library->groups()[0].language, 1031);
  EXPECT_EQ(library->groups()[1].language, 0);
  EXPECT_EQ(library.images(0), "#1 48x48x24 of 70; ");
  EXPECT_EQ(library.image(0, 0), kSecond);
}

TEST(PeLibrary, CursorsAndImagesWithoutAGroupAreNotListed) {
  EXPECT_EQ(ParsedLibrary(peWith({iconOf(1, kFirst), {kCursorGroupType, 1, {}, 0, groupDirectory({})}})).groups(), "");
  EXPECT_EQ(ParsedLibrary(peWith({})).groups(), "");
}

TEST(PeLibrary, AGroupCountsWithoutItsImages) {
  const ParsedLibrary library(
      peWith({iconOf(1, kFirst), groupOf(1, {{32, 32, 0, 1, 8, 40, 9}}), groupOf(2, {}), groupOf(3, {{16, 16}})}));
  ASSERT_EQ(library.groups(), "#1 #2 #3");
  EXPECT_EQ(library.images(0), "#9 32x32x8 of 0; ");
  EXPECT_FALSE(library->imagesOf(library->groups()[0])[0].isThere());
  EXPECT_EQ(library.images(1), "");
  EXPECT_EQ(library.images(2), "#1 16x16x24 of 40; ");
}

TEST(PeLibrary, AGroupHasTheImagesThatItsBytesHold) {
  Bytes few = groupDirectory({{16, 16}, {32, 32}}, 1), many = groupDirectory({{16, 16}, {32, 32}}, 65535);
  many.pop_back();
  const ParsedLibrary library(
      peWith({{kGroupType, 1, {}, 0, few}, {kGroupType, 2, {}, 0, many}, {kGroupType, 3, {}, 0, Bytes(5, 1)}}));
  EXPECT_EQ(library.images(0), "#1 16x16x24 of 0; ");
  EXPECT_EQ(library.images(1), "#1 16x16x24 of 0; ");
  EXPECT_EQ(library.images(2), "");
}

TEST(PeLibrary, TheDirectoryOfTheHeadersFindsTheResourcesWhateverTheirSectionIsCalled) {
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.name = "UPX1"})));
  // A section with the usual name is not preferred.
  PeOptions options{.name = "icons"};
  options.before = {{".rsrc", 0x8000, ResourceSection({groupOf(66, {})}, 0x8000).bytes(), {}, {}, {}}};
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), options)));
}

TEST(PeLibrary, WithoutAUsableDirectoryTheSectionIsFoundByItsName) {
  for (const std::uint32_t count : {0U, 1U, 2U})
    expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.directoryCount = count})), std::to_string(count));
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.directoryAddress = 0})), "no address");
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.directoryAddress = 0xFFFFFF00})), "outside");
  EXPECT_EQ(ParsedLibrary(peWith(twoGroups(), {.name = "other", .directoryCount = 0})).groups(), "");
  // A count of 2 ends before the directory of the resources.
  PeOptions decoy{.directoryCount = 2, .directoryAddress = 0x8000};
  decoy.before = {{"decoy", 0x8000, ResourceSection({groupOf(66, {})}, 0x8000).bytes(), {}, {}, {}}};
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), decoy)), "a directory that does not count");
  Bytes unknownMagic = peWith(twoGroups(), {.name = "other"});
  set16(unknownMagic, kPeHeader + 24, 0x107);
  EXPECT_EQ(ParsedLibrary(unknownMagic).groups(), "");
  unknownMagic = peWith(twoGroups());
  set16(unknownMagic, kPeHeader + 24, 0x107);
  expectTwoGroups(ParsedLibrary(unknownMagic), "another optional header");
}

TEST(PeLibrary, MoreDirectoriesThanThereAreDoNotMatter) {
  for (const std::uint32_t count : {3U, 17U, 0xFFFFFFFFU})
    expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.name = "r", .directoryCount = count})), std::to_string(count));
}

TEST(PeLibrary, SectionsOfAnySizesAreMapped) {
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.memorySize = 0})), "no size in memory");
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.memorySize = 16})), "more in the file");
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.memorySize = 0x10000})), "more in memory");
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.fileSize = 0xFFFFFFFF})), "more than the file");
}

TEST(PeLibrary, SectionsCanBeEmptyManyAndOverlap) {
  PeOptions options;
  options.before = {
      {".text", 0x1000, Bytes(700, 0xCC), {}, {}, {}}, {".bss", 0x1800, {}, 0x800, 0, 0}, {"", 0, {}, 0, 0, 0}};
  options.behind = {{"over", 0x2010, Bytes(30, 0xEE), {}, {}, {}}};
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), options)), "the first one counts");
  PeOptions many;
  for (int i = 0; i < 15; ++i) many.before.push_back({"s", 0x100000, Bytes(1, 1), {}, {}, {}});
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), many)), "16 sections");
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), {.sectionCount = 65535})), "rows beyond the end");
}

// The memory of a section comes before the bytes that another one has in the file beyond its memory.
TEST(PeLibrary, MemoryComesBeforeRestsInTheFile) {
  PeOptions options;
  options.before = {{".text", 0x1000, Bytes(0x1800, 0xCC), 0x800, {}, {}}};
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), options)));
}

TEST(PeLibrary, AFileWithoutSectionsIsInMemoryAsItIs) {
  PeOptions options;
  options.sectionCount = 0;
  options.address = kPeSections;
  expectTwoGroups(ParsedLibrary(peWith(twoGroups(), options)));
}

TEST(PeLibrary, ResourcesCanBeInTheHeaders) {
  const Bytes section = ResourceSection(twoGroups(), 0x200).bytes();
  Bytes file = peFile({}, {.name = "x", .directoryAddress = 0x200});
  std::copy(section.begin(), section.end(), file.begin() + 0x200);
  expectTwoGroups(ParsedLibrary(file));
}

// Where the data entry of the only group is in the section: behind three directories with one entry each.
constexpr std::size_t kDataEntry = 3 * 24;

TEST(PeLibrary, APlaceOutsideTheFileHasThePartThatIsThere) {
  Bytes section = ResourceSection({groupOf(1, {{16, 16}})}, 0x2000).bytes();
  const std::uint32_t size = 20, address = 0x2000 + static_cast<std::uint32_t>(section.size()) - size;
  const auto placeWith = [&](std::uint32_t statedAddress, std::uint32_t statedSize) {
    set32(section, kDataEntry, statedAddress);
    set32(section, kDataEntry + 4, statedSize);
    return ParsedLibrary(peFile(section))->groups().at(0).place;
  };
  EXPECT_EQ(placeWith(address, size).size, size);
  EXPECT_EQ(placeWith(address, 0xFFFFFFFF).size, size);
  EXPECT_EQ(placeWith(address + 15, size).size, 5u);
  EXPECT_EQ(placeWith(address + 20, size).size, 0u);
  EXPECT_EQ(placeWith(0xFFFFFFF0, 0xFFFFFFFF).size, 0u);
  EXPECT_EQ(placeWith(0x1FFF, size).size, 0u);
}

TEST(PeLibrary, AnEntryOfTheNamesCanLeadToDataAtOnce) {
  Bytes section = ResourceSection({groupOf(1, {{16, 16}})}, 0x2000).bytes();
  set32(section, 24 + 16 + 4, kDataEntry);
  const ParsedLibrary library(peFile(section));
  EXPECT_EQ(library.images(), "#1 16x16x24 of 0; ");
}

TEST(PeLibrary, OtherBytesAreNoLibrary) {
  EXPECT_FALSE(ParsedLibrary({}).isRead());
  EXPECT_FALSE(ParsedLibrary({'M', 'Z'}).isRead());
  EXPECT_FALSE(ParsedLibrary(Bytes(1000, 'M')).isRead());
  Bytes file = peWith({});
  file[0] = 'N';
  EXPECT_FALSE(ParsedLibrary(file).isRead());
  file = peWith({});
  file[kPeHeader + 2] = 1;
  EXPECT_FALSE(ParsedLibrary(file).isRead());
  set32(file, 0x3C, 0xFFFFFFFF);
  EXPECT_FALSE(ParsedLibrary(file).isRead());
}

}  // namespace
}  // namespace gp::test
