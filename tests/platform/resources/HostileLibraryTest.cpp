// Damaged and malicious libraries: they list what can be found, and cost no more than the bytes that are there.
#include "platform/resources/Libraries.h"
#include "support/CountingSource.h"
#include "support/NeBytes.h"
#include "support/PeBytes.h"
#include "support/ProcessUse.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

// Asks for everything; returns the number of groups.
std::size_t readAll(const ByteSource& source) {
  const auto library = IconLibrary::parse(source);
  if (!library) return 0;
  for (const IconGroup& group : library->groups()) {
    EXPECT_LE(group.place.size, source.size());
    EXPECT_EQ(group.label().find_first_of(std::string("\0\t\n\r", 4)), std::string::npos);
    for (const GroupImage& image : library->imagesOf(group))
      if (image.isThere()) {
        EXPECT_LE(image.place.offset + image.place.size, source.size());
        EXPECT_EQ(library->bytesAt(image.place).size(), image.place.size);
      }
  }
  return library->groups().size();
}
std::size_t readAll(const Bytes& file) { return readAll(MemorySource(file)); }

std::vector<Resource> someResources() {
  return {groupOf(3, {{16, 16, 16, 1, 4, 30, 1}, {32, 32, 0, 1, 8, 20, 2}}),
          namedGroup(u"NAME", {{16, 16, 0, 1, 8, 20, 2}}),
          {kGroupType, 3, {}, 7, groupDirectory({{1, 1}})},
          iconOf(1, numbered(30)),
          iconOf(2, numbered(20))};
}

std::vector<Bytes> goodFiles() {
  return {peWith(someResources()), peWith(someResources(), {.is64 = true}), neWith(someResources())};
}

TEST(HostileLibrary, EveryPrefixOfAFileListsWhatIsThere) {
  for (const Bytes& file : goodFiles()) {
    EXPECT_EQ(readAll(file), 2u);
    for (std::size_t size = 0; size < file.size(); ++size) {
      const std::size_t groups = readAll(Bytes(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size)));
      ASSERT_LE(groups, 2u + (file[kNeHeader] == 'N' ? 1 : 0)) << size;
    }
  }
}

// The groups stay when only the data are cut off.
TEST(HostileLibrary, APrefixWithoutDataHasItsGroups) {
  Bytes file = peWith(someResources());
  file.resize(file.size() - 40);
  EXPECT_EQ(readAll(file), 2u);
  const ParsedLibrary library(file);
  EXPECT_EQ(library.groups(), "NAME #3");
}

TEST(HostileLibrary, AnyByteCanBeWrong) {
  for (Bytes file : goodFiles())
    for (std::size_t at = 0; at < file.size(); ++at)
      for (const int flip : {0x01, 0x80, 0xFF}) {
        file[at] ^= static_cast<std::uint8_t>(flip);
        readAll(file);
        file[at] ^= static_cast<std::uint8_t>(flip);
      }
}

// Builds directories by hand: entries are pairs of two numbers.
using Entries = std::vector<std::pair<std::uint32_t, std::uint32_t>>;

void putDirectory(Bytes& out, const Entries& entries, std::uint32_t named = 0) {
  for (int i = 0; i < 3; ++i) put32(out, 0);
  put16(out, named);
  put16(out, static_cast<std::uint32_t>(entries.size()) - named);
  for (const auto& [id, place] : entries) {
    put32(out, id);
    put32(out, place);
  }
}

std::uint32_t directoryAt(std::size_t place) { return kSubdirectory | static_cast<std::uint32_t>(place); }

TEST(HostileLibrary, ADirectoryCanBeItsOwnChild) {
  Bytes section;
  putDirectory(section, {{3, directoryAt(0)}, {14, directoryAt(0)}});
  const ParsedLibrary library(peFile(section));
  // The root is also the names, whose languages are the root; a language leads to no directory.
  ASSERT_EQ(library.groups(), "#3 #14");
  EXPECT_EQ(library->groups()[0].place.size, 0u);
  EXPECT_EQ(library.images(1), "");
}

TEST(HostileLibrary, SharedDirectoriesCostNoMoreThanTheirEntriesOnce) {
  Entries children;
  const std::size_t size = 16 + 300 * 8;
  for (std::uint32_t i = 0; i < 300; ++i) children.emplace_back(i, directoryAt(size));
  Bytes section;
  putDirectory(section, children);
  for (auto& [id, place] : children) place = directoryAt(2 * size);
  putDirectory(section, children);
  for (auto& [id, place] : children) place = static_cast<std::uint32_t>(3 * size);
  putDirectory(section, children);
  put32(section, 0x2000), put32(section, 16), put32(section, 0), put32(section, 0);
  const Bytes file = peFile(section);
  const CountingSource source(file);
  const auto library = IconLibrary::parse(source);
  ASSERT_EQ(library->groups().size(), 300u);
  EXPECT_EQ(library->groups()[299].id, 299);
  EXPECT_LE(source.bytes(), file.size());
}

TEST(HostileLibrary, OnlyThreeLevelsAreFollowed) {
  Bytes section;
  for (std::size_t level = 0; level < 60000; ++level) putDirectory(section, {{14, directoryAt((level + 1) * 24)}});
  const Bytes file = peFile(section);
  const CountingSource source(file);
  const auto library = IconLibrary::parse(source);
  ASSERT_EQ(library->groups().size(), 1u);
  EXPECT_EQ(library->groups()[0].place.size, 0u);
  EXPECT_LE(source.reads(), 2u);
}

TEST(HostileLibrary, ADirectoryBelowTheLanguagesIsNoData) {
  Bytes section = ResourceSection({groupOf(1, {{16, 16}})}, 0x2000).bytes();
  ASSERT_GT(ParsedLibrary(peFile(section))->groups().at(0).place.size, 0u);
  set32(section, 48 + 16 + 4, directoryAt(3 * 24));
  EXPECT_EQ(ParsedLibrary(peFile(section))->groups().at(0).place.size, 0u);
}

TEST(HostileLibrary, CountsThatDoNotFitAreThoseOfTheBytes) {
  Bytes section;
  putDirectory(section, {{14, directoryAt(24)}});
  putDirectory(section, {{1, 0x7FFFFFFF}, {2, 0x7FFFFFFF}});
  set16(section, 12, 0xFFFF), set16(section, 14, 0xFFFF);
  set16(section, 24 + 12, 0xFFFF), set16(section, 24 + 14, 0xFFFF);
  EXPECT_EQ(ParsedLibrary(peFile(section)).groups(), "#1 #2");
}

TEST(HostileLibrary, NamesWithoutAnEndStopAtThatOfTheSection) {
  Bytes section;
  putDirectory(section, {{14, directoryAt(24)}});
  putDirectory(section, {{directoryAt(60), 0}, {directoryAt(66), 0}, {directoryAt(0x7FFFFFF0), 0}}, 3);
  section.resize(60);
  put16(section, 0xFFFF), put16(section, 'a'), put16(section, 'b');
  put16(section, 0xFFFF);
  PeOptions options;
  options.behind = {{"next", 0x9000, Bytes(100, 'z'), {}, {}, {}}};
  const ParsedLibrary library(peFile(section, options));
  EXPECT_EQ(library.groups(), "#0 ab\uFFFF");
}

// As many names as a directory can have, all of them parts of the same bytes.
TEST(HostileLibrary, SharedNamesStayWithinTheirMemory) {
  Entries names;
  const std::uint32_t text = 24 + 16 + 65535 * 8;
  for (std::uint32_t i = 0; i < 65535; ++i) names.emplace_back(directoryAt(text + 2 * i), 0);
  Bytes section;
  putDirectory(section, {{14, directoryAt(24)}});
  putDirectory(section, names, 65535);
  for (std::uint32_t i = 0; i < 200000; ++i) put16(section, 0xFF00 + i % 251);
  const Bytes file = peFile(section);
  restartPeakMemory();
  const std::size_t before = peakMemory();
  const MemorySource source(file);
  const auto library = IconLibrary::parse(source);
  EXPECT_GT(library->groups().size(), 50u);
  EXPECT_LE(library->groups().size(), 100u);
  for (const IconGroup& group : library->groups()) EXPECT_FALSE(group.name.empty());
  EXPECT_LT(peakMemory() - before, 64 * kMegabyte);
}

// 65535 names and as many numbers, nearly twice the most that are kept.
TEST(HostileLibrary, OfTooManyGroupsTheFirstAreKept) {
  Entries names;
  const std::uint32_t texts = 32 + 16 + 131070 * 8;
  for (std::uint32_t i = 0; i < 65535; ++i) names.emplace_back(directoryAt(texts + 4 * i), 0);
  for (std::uint32_t i = 0; i < 65535; ++i) names.emplace_back(i, 0);
  Bytes section;
  putDirectory(section, {{3, directoryAt(32)}, {14, directoryAt(32)}});
  putDirectory(section, names, 65535);
  for (std::uint32_t i = 0; i < 65535; ++i) put16(section, 1), put16(section, i);
  const Bytes file = peFile(section);
  restartPeakMemory();
  const std::size_t before = peakMemory();
  const MemorySource source(file);
  const auto library = IconLibrary::parse(source);
  ASSERT_EQ(library->groups().size(), 65536u);
  EXPECT_EQ(library->groups().back().label(), "#0");
  EXPECT_LT(peakMemory() - before, 64 * kMegabyte);
}

// As many sections as a file can state, for as many resources: neither multiplies the cost of the other.
TEST(HostileLibrary, EverySectionIsSearchedOnce) {
  Entries names;
  const std::uint32_t data = 32 + 16 + 65535 * 8;
  for (std::uint32_t i = 0; i < 65535; ++i) names.emplace_back(i, data);
  Bytes section;
  putDirectory(section, {{3, directoryAt(32)}, {14, directoryAt(32)}});
  putDirectory(section, names);
  put32(section, 0x2000), put32(section, 8), put32(section, 0), put32(section, 0);
  PeOptions options;
  options.headersSize = 0x300000;
  options.before.assign(65534, PeSection{"", 0x10000000, {}, 0x1000, 0, 0});
  const ParsedLibrary library(peFile(section, options));
  ASSERT_EQ(library->groups().size(), 65535u);
  EXPECT_EQ(library->groups().back().place.size, 8u);
}

// 400 groups that name one image of 1 MB 200 times.
TEST(HostileLibrary, ImagesThatAreSharedAreNotCopied) {
  std::vector<Resource> resources{iconOf(1, Bytes(kMegabyte, 7))};
  const std::vector<GroupEntry> entries(200, GroupEntry{32, 32, 0, 1, 32, 1 << 20, 1});
  for (int i = 1; i <= 400; ++i) resources.push_back(groupOf(i, entries));
  const Bytes file = peWith(resources);
  resources.clear();
  restartPeakMemory();
  const std::size_t before = peakMemory();
  const MemorySource source(file);
  const auto library = IconLibrary::parse(source);
  std::size_t images = 0;
  for (const IconGroup& group : library->groups()) images += library->imagesOf(group).size();
  EXPECT_EQ(images, 80000u);
  EXPECT_LT(peakMemory() - before, 8 * kMegabyte);
}

TEST(HostileLibrary, ResourcesCanOverlapAndBeMoreThanTheFile) {
  Bytes section =
      ResourceSection({groupOf(1, {{16, 16}}), groupOf(2, {{16, 16}}), iconOf(1, Bytes(100, 5))}, 0x2000).bytes();
  // The data entries of the icon and of both groups lead to the whole section.
  for (const std::size_t entry : {80, 152, 192}) {
    set32(section, entry, 0x2000);
    set32(section, entry + 4, static_cast<std::uint32_t>(section.size()));
  }
  const ParsedLibrary library(peFile(section));
  ASSERT_EQ(library.groups(), "#1 #2");
  EXPECT_EQ(library->groups()[0].place.size, section.size());
  const Bytes file = peFile(section);
  EXPECT_EQ(readAll(file), 2u);
}

TEST(HostileLibrary, AnNeTableIsNotLongerThanItsNumbersRequire) {
  Bytes file = neWith({});
  file.resize(kNeHeader + kNeTable + 2);
  const auto addGroup = [&](std::uint32_t id) {
    put16(file, 0x800E), put16(file, 1), put32(file, 0);
    put32(file, 0), put16(file, 0), put16(file, 0x8000U | id), put32(file, 0);
  };
  addGroup(1);
  while (file.size() < kMegabyte - 100) put16(file, 1), put16(file, 0), put32(file, 0);
  addGroup(2);
  while (file.size() < 3 * kMegabyte) put16(file, 1), put16(file, 0), put32(file, 0);
  addGroup(3);
  const CountingSource source(file);
  const auto library = IconLibrary::parse(source);
  ASSERT_EQ(library->groups().size(), 2u);
  EXPECT_EQ(library->groups()[1].label(), "#2");
  EXPECT_LE(source.bytes(), kMegabyte + 3 * 8192);
}

TEST(HostileLibrary, AnNeTableWithoutAnEndStopsAtThatOfTheFile) {
  Bytes file = neWith({});
  file.resize(kNeHeader + kNeTable + 2);
  for (int i = 0; i < 3000; ++i) {
    put16(file, 0x800E), put16(file, 1), put32(file, 0);
    put16(file, 1), put16(file, 1), put16(file, 0), put16(file, 0x8000U | static_cast<std::uint32_t>(i)),
        put32(file, 0);
  }
  EXPECT_EQ(readAll(file), 3000u);
  file = neWith({groupOf(1, {})});
  file[kNeHeader + kNeTable + 4] = file[kNeHeader + kNeTable + 5] = 0xFF;
  EXPECT_GE(readAll(file), 1u);
}

}  // namespace
}  // namespace gp::test
