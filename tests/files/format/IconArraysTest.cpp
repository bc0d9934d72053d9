#include "files/IcoBuilder.h"
#include "files/IconFileOf.h"
#include "files/format/IconArrays.h"
#include "support/FullDisk.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

IcoFile threeIcons() {
  return {{entryOf(anyPicture(32, 4)), entryOf(anyPicture(16, 8)), entryOf(anyPicture(24, 24))}, 0, 1, {}};
}

Bytes copyOf(ImageBytes image) { return {image.begin(), image.end()}; }

ArraysDefect parse(const Bytes& bytes, IconArrays& arrays, ReservedField rule = ReservedField::MustBeZero) {
  return takeIconArrays(iconFileOf(bytes), rule, arrays);
}

class IconArraysTest : public testing::Test {
 protected:
  IconFolder folder;
  IconArrays arrays;
};

TEST_F(IconArraysTest, EveryEntryComesWithItsBytes) {
  const IcoFile file = threeIcons();
  ASSERT_EQ(readIconArrays(folder.write("a.ico", build(file)), ReservedField::MustBeZero, arrays), ArraysDefect::None);
  ASSERT_EQ(arrays.count(), 3);
  EXPECT_EQ(arrays.reserved, 0);
  EXPECT_EQ(arrays.type, 1);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(copyOf(arrays.images[i]), file.entries[i].image);
  EXPECT_EQ(arrays.entries[1].width, 16);
  EXPECT_EQ(arrays.entries[1].bitCount, 8);
  EXPECT_EQ(arrays.entries[1].planes, 1);
}

TEST_F(IconArraysTest, WhatIsNotThereIsNotReadable) {
  for (const std::string& path : {folder.path("none.ico"), folder.folder(), std::string("/dev/zero")}) {
    arrays.type = 9;
    EXPECT_EQ(readIconArrays(path, ReservedField::MustBeZero, arrays), ArraysDefect::NotReadable) << path;
    EXPECT_EQ(arrays.type, 0) << "nothing of a former file is left";
  }
}

TEST_F(IconArraysTest, OtherKindsOfFilesHoldNoIcons) {
  IcoFile cursor = threeIcons(), odd = threeIcons(), none = threeIcons();
  cursor.type = 2;
  odd.type = 3;
  none.count = 0;
  for (const Bytes& bytes : {build(cursor), build(odd), build(none), Bytes{}, Bytes{'B', 'M', 1, 0, 1, 0}}) {
    EXPECT_EQ(parse(bytes, arrays), ArraysDefect::NoIcons);
    EXPECT_EQ(arrays.count(), 0);
    EXPECT_TRUE(arrays.file.span().empty());
  }
}

TEST_F(IconArraysTest, TheReservedFieldCountsOnlyWhereItMustBeZero) {
  IcoFile file = threeIcons();
  file.reserved = 1;
  EXPECT_EQ(parse(build(file), arrays, ReservedField::MustBeZero), ArraysDefect::NoIcons);
  EXPECT_EQ(parse(build(file), arrays, ReservedField::Any), ArraysDefect::None);
  EXPECT_EQ(arrays.reserved, 1);
}

TEST_F(IconArraysTest, AFileThatIsCutAnywhereIsRefused) {
  const Bytes whole = build(IcoFile{{entryOf(anyPicture(16, 1)), entryOf(anyPicture(16, 4))}, 0, 1, {}});
  constexpr std::size_t kCountKnown = 5;
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    ASSERT_EQ(parse(cut, arrays), size < kCountKnown ? ArraysDefect::NoIcons : ArraysDefect::CutShort) << size;
    ASSERT_EQ(arrays.count(), 0);
  }
  EXPECT_EQ(parse(whole, arrays), ArraysDefect::None);
}

TEST_F(IconArraysTest, CountsOffsetsAndSizesThatLeaveTheFileAreRefused) {
  IcoFile file = threeIcons();
  file.count = 0xFFFF;
  EXPECT_EQ(parse(build(file), arrays), ArraysDefect::CutShort);
  for (const std::uint32_t lie : {0x80000000u, 0xFFFFFFFFu, 0x7FFFFFFFu}) {
    file = threeIcons();
    file.entries[1].offset = lie;
    EXPECT_EQ(parse(build(file), arrays), ArraysDefect::CutShort) << lie;
    file = threeIcons();
    file.entries[1].bytesInRes = lie;
    EXPECT_EQ(parse(build(file), arrays), ArraysDefect::CutShort) << lie;
  }
}

TEST_F(IconArraysTest, ImagesMayOverlapOrStandInTheDirectoryOrBeEmpty) {
  IcoFile file = threeIcons();
  file.entries[0].offset = 0;
  file.entries[0].bytesInRes = 22;
  file.entries[1].offset = 10;
  file.entries[2].bytesInRes = 0;
  const Bytes bytes = build(file);
  ASSERT_EQ(parse(bytes, arrays), ArraysDefect::None);
  EXPECT_EQ(copyOf(arrays.images[0]), Bytes(bytes.begin(), bytes.begin() + 22));
  EXPECT_EQ(arrays.images[1].data(), arrays.file.span().data() + 10) << "no byte is held twice";
  EXPECT_TRUE(arrays.images[2].empty());
}

TEST_F(IconArraysTest, AFileLaidOutInDirectoryOrderIsWrittenAsItWas) {
  const Bytes bytes = build(threeIcons());
  ASSERT_EQ(parse(bytes, arrays), ArraysDefect::None);
  EXPECT_EQ(writeWholeFile(arrays, folder.path("out.ico")), WriteDefect::None);
  EXPECT_EQ(bytesOf(folder.path("out.ico")), bytes);
}

TEST_F(IconArraysTest, EveryFieldOfHeaderAndEntriesIsWrittenAsItWasRead) {
  Bytes bytes = build(threeIcons());
  bytes[0] = 5;             // reserved
  bytes[6 + 16 + 2] = 9;    // colour count
  bytes[6 + 16 + 3] = 7;    // reserved field of an entry
  bytes[6 + 16 + 4] = 200;  // planes
  bytes[6 + 16 + 7] = 3;    // bit count, high byte
  ASSERT_EQ(parse(bytes, arrays, ReservedField::Any), ArraysDefect::None);
  EXPECT_EQ(writeWholeFile(arrays, folder.path("out.ico")), WriteDefect::None);
  EXPECT_EQ(bytesOf(folder.path("out.ico")), bytes);
}

TEST_F(IconArraysTest, ScatteredImagesAreWrittenOneBehindTheOther) {
  IcoFile scattered = threeIcons();
  const auto sizeOf = [&](std::size_t i) { return static_cast<std::uint32_t>(scattered.entries[i].image.size()); };
  // Images in reverse order, and unused bytes at the end.
  const std::uint32_t start = 6 + 3 * 16;
  scattered.entries[0].offset = start + sizeOf(2) + sizeOf(1);
  scattered.entries[1].offset = start + sizeOf(2);
  scattered.entries[2].offset = start;
  Bytes bytes = build(IcoFile{scattered.entries, 0, 1, {}});
  bytes.resize(start);
  for (const std::size_t i : {2u, 1u, 0u}) append(bytes, scattered.entries[i].image);
  append(bytes, {'j', 'u', 'n', 'k'});
  ASSERT_EQ(parse(bytes, arrays), ArraysDefect::None);
  EXPECT_EQ(writeWholeFile(arrays, folder.path("out.ico")), WriteDefect::None);
  EXPECT_EQ(bytesOf(folder.path("out.ico")), build(threeIcons()));
}

TEST_F(IconArraysTest, MoreEntriesThanAFileCanTellAreNotWritten) {
  arrays.type = 1;
  arrays.entries.resize(0x10000);
  arrays.images.resize(0x10000);
  EXPECT_EQ(writeWholeFile(arrays, folder.path("out.ico")), WriteDefect::NotOpened);
  EXPECT_FALSE(fs::exists(folder.path("out.ico")));
  arrays.entries.pop_back();
  arrays.images.pop_back();
  EXPECT_EQ(writeWholeFile(arrays, folder.path("out.ico")), WriteDefect::None);
  EXPECT_EQ(fs::file_size(folder.path("out.ico")), 6u + 0xFFFFu * 16);
}

TEST_F(IconArraysTest, SharedBytesThatWouldUnfoldBeyondAnyFileAreNotWritten) {
  Bytes bytes = build(IcoFile{{entryOf(anyPicture(48, 32))}, 0, 1, {}});
  ASSERT_EQ(parse(bytes, arrays), ArraysDefect::None);
  arrays.entries.resize(0xFFFF, arrays.entries[0]);
  arrays.images.resize(0xFFFF, arrays.images[0]);
  EXPECT_EQ(writeWholeFile(arrays, folder.path("out.ico")), WriteDefect::NotOpened);
  EXPECT_FALSE(fs::exists(folder.path("out.ico")));
}

TEST_F(IconArraysTest, AWriteThatFailsLeavesTheFormerFile) {
  const Bytes bytes = build(threeIcons());
  const std::string path = folder.write("a.ico", bytes);
  ASSERT_EQ(readIconArrays(path, ReservedField::MustBeZero, arrays), ArraysDefect::None);
  const Bytes large(100000, 1);
  arrays.images[0] = large;
  arrays.entries[0].bytesInRes = static_cast<std::uint32_t>(large.size());
  {
    const FullDisk full(20000);
    EXPECT_EQ(writeBack(arrays, path), WriteDefect::NotWritten);
  }
  EXPECT_EQ(bytesOf(path), bytes);
}

}  // namespace
}  // namespace gp::test
