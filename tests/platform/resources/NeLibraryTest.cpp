// Icon groups and images of NE files, such as icon libraries.
#include "platform/resources/Libraries.h"
#include "support/NeBytes.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

const Bytes kFirst = numbered(40), kSecond = numbered(70, 3);

std::vector<Resource> threeGroups() {
  return {groupOf(9, {{32, 32, 16, 1, 4, 40, 1}, {16, 16, 0, 1, 8, 70, 2}}),
          namedGroup(u"BETA", {{16, 16, 2, 1, 1, 70, 2}}), namedGroup(u"ALPHA", {}), iconOf(1, kFirst),
          iconOf(2, kSecond)};
}

void expectThreeGroups(const ParsedLibrary& library, const std::string& what = "") {
  ASSERT_EQ(library.groups(), "ALPHA BETA #9") << what;
  EXPECT_EQ(library->format(), LibraryFormat::Ne);
  EXPECT_EQ(library.images(2), "#1 32x32x4 of 40; #2 16x16x8 of 70; ") << what;
  EXPECT_EQ(library.image(2, 0), kFirst) << what;
  EXPECT_EQ(library.image(1, 0), kSecond) << what;
}

TEST(NeLibrary, GroupsAndImagesAreReadWithEveryShift) {
  for (const int shift : {0, 1, 4, 9, 12, 16, 17})
    expectThreeGroups(ParsedLibrary(neWith(threeGroups(), {.shift = shift})), std::to_string(shift));
}

TEST(NeLibrary, AShiftThatNoFileCanHaveGivesNoGroups) {
  EXPECT_EQ(ParsedLibrary(neWith(threeGroups(), {.statedShift = 32})).groups(), "");
  EXPECT_EQ(ParsedLibrary(neWith(threeGroups(), {.statedShift = 65535})).groups(), "");
  // With 31 all places are outside.
  const ParsedLibrary library(neWith(threeGroups(), {.statedShift = 31}));
  ASSERT_EQ(library.groups(), "ALPHA BETA #9");
  EXPECT_EQ(library->groups()[2].place.size, 0u);
  EXPECT_EQ(library.images(2), "");
}

TEST(NeLibrary, AnImageHasTheSizeOfItsGroupWhereThatFitsIntoTheUnits) {
  const auto sizeWith = [](std::uint32_t stated) {
    const ParsedLibrary library(neWith({groupOf(1, {{32, 32, 0, 1, 4, stated, 1}}), iconOf(1, kFirst)}));
    return library->imagesOf(library->groups().at(0)).at(0).place.size;
  };
  EXPECT_EQ(sizeWith(40), 40u);
  EXPECT_EQ(sizeWith(48), 48u);
  EXPECT_EQ(sizeWith(1), 1u);
  EXPECT_EQ(sizeWith(0), 48u);
  EXPECT_EQ(sizeWith(49), 48u);
  EXPECT_EQ(sizeWith(0xFFFFFFFF), 48u);
}

TEST(NeLibrary, TypesWithNamesAndOtherNumbersArePassedOver) {
  std::vector<Resource> resources = threeGroups();
  resources.insert(resources.begin(), {5, 1, {}, 0, Bytes(100, 1)});
  resources.push_back({kCursorGroupType, 3, {}, 0, groupDirectory({})});
  expectThreeGroups(ParsedLibrary(neWith(resources)));
  Bytes file = neWith(resources);
  // The first type gets a name.
  file[kNeHeader + kNeTable + 2] = 5;
  file[kNeHeader + kNeTable + 3] = 0;
  expectThreeGroups(ParsedLibrary(file), "a type with a name");
}

TEST(NeLibrary, ATypeGivenTwiceIsReadTwice) {
  const ParsedLibrary library(neWith({groupOf(4, {}), iconOf(1, kFirst), groupOf(3, {{32, 32}}), iconOf(1, kSecond)}));
  ASSERT_EQ(library.groups(), "#3 #4");
  EXPECT_EQ(library.images(0), "#1 32x32x24 of 48; ") << "the first image with a number counts";
}

TEST(NeLibrary, WithoutAResourceTableThereAreNoGroups) {
  EXPECT_EQ(ParsedLibrary(neWith(threeGroups(), {.resourceTable = 0})).groups(), "");
  EXPECT_EQ(ParsedLibrary(neWith(threeGroups(), {.nameTable = kNeTable})).groups(), "");
  EXPECT_EQ(ParsedLibrary(neWith(threeGroups(), {.resourceTable = 65535})).groups(), "");
}

TEST(NeLibrary, NamesHaveAByteForTheirLengthAndStopAtTheEndOfTheFile) {
  const std::u16string longest(255, u'n');
  EXPECT_EQ(ParsedLibrary(neWith({namedGroup(longest, {})})).groups(), std::string(255, 'n'));
  Bytes file = neWith({namedGroup(u"NAME", {})});
  // The length of the name, behind the shift, one type with one resource, and the end of the types.
  const std::size_t length = kNeHeader + kNeTable + 2 + 8 + 12 + 2;
  ASSERT_EQ(file[length], 4);
  file[length] = 255;
  file.resize(length + 1 + 6);
  EXPECT_EQ(ParsedLibrary(file).groups(), std::string("NAME\\u0000\\u0000"));
  file.resize(length + 1 + 2);
  EXPECT_EQ(ParsedLibrary(file).groups(), "NA");
}

TEST(NeLibrary, BytesOfNamesBeyondAsciiCountAsLatin1) {
  EXPECT_EQ(ParsedLibrary(neWith({namedGroup(u"\u00c4\u00ff", {})})).groups(), "\u00c4\u00ff");
}

}  // namespace
}  // namespace gp::test
