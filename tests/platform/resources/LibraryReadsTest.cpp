// How much of a library is read: no more than its headers, its resource directories, and what is asked for.
#include "platform/resources/Libraries.h"
#include "support/CountingSource.h"
#include "support/NeBytes.h"
#include "support/PeBytes.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20, kPage = 8192;

// 50 icons with 10 images of 10 KB each, and a resource of 5 MB before them.
std::vector<Resource> manyIcons() {
  std::vector<Resource> resources{{2, 1, {}, 0, Bytes(5 * kMegabyte, 1)}};
  for (int group = 1; group <= 50; ++group) {
    std::vector<GroupEntry> entries;
    for (int i = 0; i < 10; ++i) {
      const int id = group * 10 + i;
      entries.push_back({32, 32, 0, 1, 32, 10240, id});
      resources.push_back(iconOf(id, Bytes(10240, 2)));
    }
    resources.push_back(groupOf(group, entries));
  }
  return resources;
}

void write(const std::string& path, const Bytes& file) {
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
}

TEST(LibraryReads, OfALargeProgramOnlyHeadersAndDirectoriesAreRead) {
  PeOptions options{.address = 0x200000};
  options.before = {{".text", 0x1000, Bytes(kMegabyte, 0xCC), {}, {}, {}}};
  const Bytes file = peWith(manyIcons(), options);
  ASSERT_GT(file.size(), 10 * kMegabyte);
  const CountingSource source(file);
  const auto library = IconLibrary::parse(source);
  ASSERT_EQ(library->groups().size(), 50u);
  // The page of the headers, and the directories: 551 names and languages.
  const std::size_t directories = 24 + 3 * 16 + 551 * (8 + 16 + 8 + 16);
  EXPECT_LE(source.reads(), directories / kPage + 3);
  EXPECT_LE(source.bytes(), directories + 3 * kPage);
}

TEST(LibraryReads, TheImagesOfAGroupCostTheReadOfItsDirectory) {
  for (const Bytes& file : {peWith(manyIcons()), neWith(manyIcons(), {.shift = 10})}) {
    const CountingSource source(file);
    const auto library = IconLibrary::parse(source);
    for (const IconGroup& group : {library->groups().front(), library->groups().back()}) {
      source.restart();
      const auto images = library->imagesOf(group);
      ASSERT_EQ(images.size(), 10u);
      EXPECT_EQ(source.reads(), 1u);
      EXPECT_EQ(source.bytes(), group.place.size);
      source.restart();
      EXPECT_EQ(library->bytesAt(images[3].place).size(), 10240u);
      EXPECT_EQ(source.reads(), 1u);
    }
  }
}

TEST(LibraryReads, OtherFilesAreLeftAfterTheirFirstPages) {
  Bytes file(10 * kMegabyte, 0);
  const CountingSource empty(file);
  EXPECT_EQ(IconLibrary::parse(empty), nullptr);
  EXPECT_EQ(empty.reads(), 1u);
  file[0] = 'M', file[1] = 'Z', file[0x3E] = 0x10;
  const CountingSource program(file);
  EXPECT_EQ(IconLibrary::parse(program), nullptr);
  EXPECT_EQ(program.reads(), 2u);
}

TEST(LibraryReads, AFileThatBecomesShorterGivesFewerBytes) {
  const TempFolder folder;
  const std::string path = folder.path() + "/program";
  const Bytes file = peWith({iconOf(1, numbered(500)), groupOf(1, {{32, 32}})});
  write(path, file);
  const auto library = IconLibrary::open(path);
  ASSERT_TRUE(library);
  const ResourcePlace place = library->imagesOf(library->groups().at(0)).at(0).place;
  std::filesystem::resize_file(path, place.offset + 3);
  EXPECT_EQ(library->bytesAt(place), Bytes({0, 7, 14}));
  std::filesystem::resize_file(path, 0);
  EXPECT_TRUE(library->bytesAt(place).empty());
  EXPECT_TRUE(library->imagesOf(library->groups().at(0)).empty());
}

// An installer with its content behind the program, in a file with a hole.
TEST(LibraryReads, AnInstallerCanHaveAnySize) {
  const TempFolder folder;
  const std::string path = folder.path() + "/setup.exe";
  const Bytes file = peWith({iconOf(1, numbered(500)), groupOf(1, {{32, 32}})}, {.fileSize = 0xFFFFFFFF});
  write(path, file);
  std::filesystem::resize_file(path, std::uintmax_t{5} << 30);
  const auto library = IconLibrary::open(path);
  ASSERT_TRUE(library);
  ASSERT_EQ(library->groups().size(), 1u);
  EXPECT_EQ(library->bytesAt(library->imagesOf(library->groups()[0]).at(0).place), numbered(500));
}

TEST(LibraryReads, WhatIsNoFileIsNotOpened) {
  EXPECT_EQ(IconLibrary::open("/dev/zero"), nullptr);
  EXPECT_EQ(IconLibrary::open("/missing"), nullptr);
  EXPECT_EQ(IconLibrary::open("/"), nullptr);
}

}  // namespace
}  // namespace gp::test
