#include "files/IcoBuilder.h"
#include "files/format/IconFile.h"
#include "support/ProcessUse.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr std::uint64_t kGigabyte = std::uint64_t{1} << 30;
constexpr std::size_t kMostRead = 64 * kMegabyte;
constexpr std::uint32_t kLargestDirectory = 6 + 16 * 65535;
constexpr std::size_t kFirstLook = 256 * 1024 + kLargestDirectory;

class IconFileBytes : public testing::Test {
 protected:
  TempFolder folder;
  std::string path = folder.file("large.ico");

  void write(const Bytes& start, std::uint64_t size) {
    folder.write("large.ico", {reinterpret_cast<const char*>(start.data()), start.size()});
    std::filesystem::resize_file(path, size);
  }
  void writeAt(std::uint64_t at, const Bytes& bytes) {
    std::fstream stream(path, std::ios::in | std::ios::out | std::ios::binary);
    stream.seekp(static_cast<std::streamoff>(at));
    stream.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  }
  // Entries of 32x32 without images; the image of each index is at offsetOf(index).
  template <class OffsetOf>
  static Bytes directoryOf(std::uint32_t count, OffsetOf offsetOf) {
    Bytes bytes{0, 0, 1, 0};
    put16(bytes, count);
    for (std::uint32_t i = 0; i < count; ++i) {
      append(bytes, {32, 32, 0, 0, 1, 0, 8, 0});
      put32(bytes, 2216);
      put32(bytes, offsetOf(i));
    }
    return bytes;
  }
  static Bytes part(const IconFile& file, std::uint64_t at, std::size_t count) {
    const auto bytes = file.span().subspan(at, count);
    return {bytes.begin(), bytes.end()};
  }
};

TEST_F(IconFileBytes, ImagesAreReadWhereverTheyStandInAHugeFile) {
  const Bytes image = anyEntry(32, 8).image;
  constexpr std::uint32_t kMiddle = 500'000'000, kEnd = kGigabyte - 2216;
  ASSERT_EQ(image.size(), 2216U);
  const Bytes directory = directoryOf(2, [](std::uint32_t i) { return i == 0 ? kEnd : kMiddle; });
  write(directory, kGigabyte);
  writeAt(kMiddle, image);
  writeAt(kEnd, image);
  const std::size_t before = bytesRead(), memory = peakMemory();
  const auto file = readIconFile(path);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->span().size(), kGigabyte);
  EXPECT_EQ(part(*file, 0, directory.size()), directory);
  EXPECT_EQ(part(*file, kMiddle, image.size()), image);
  EXPECT_EQ(part(*file, kEnd, image.size()), image);
  EXPECT_EQ(file->entry(0).imageOffset, kEnd);
  EXPECT_EQ(file->entry(1).imageOffset, kMiddle);
  EXPECT_LT(bytesRead() - before, 4 * kMegabyte);
  EXPECT_LT(peakMemory() - memory, 4 * kMegabyte);
}

TEST_F(IconFileBytes, AnImageThatEntriesShareIsReadOnce) {
  write(directoryOf(65535, [](std::uint32_t) { return 1U << 29; }), kGigabyte);
  const std::size_t before = bytesRead();
  ASSERT_TRUE(readIconFile(path));
  EXPECT_LT(bytesRead() - before, kFirstLook + kLargestDirectory + kMegabyte);
}

TEST_F(IconFileBytes, OfImagesAllOverAHugeFileTheFirst64MegabytesAreRead) {
  const Bytes directory = directoryOf(65535, [](std::uint32_t i) { return kLargestDirectory + i * 60'000; });
  write(directory, 4 * kGigabyte);
  const std::uint64_t last = kMostRead - 1, behind = kMostRead;
  writeAt(last, {1, 2});
  const std::size_t before = bytesRead(), memory = peakMemory();
  const auto file = readIconFile(path);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->span().size(), behind);
  EXPECT_EQ(file->directory.presentCount(), 65535);
  EXPECT_EQ(part(*file, 0, directory.size()), directory);
  EXPECT_EQ(part(*file, last, 1), Bytes{1});
  EXPECT_LE(bytesRead() - before, kFirstLook + kMostRead + kMegabyte);
  EXPECT_LE(peakMemory() - memory, kFirstLook + kMostRead + 8 * kMegabyte);
}

TEST_F(IconFileBytes, AnythingElseIsReadNoFurtherThanItTakesToKnow) {
  write({'h', 'e', 'l', 'l', 'o', ' '}, kGigabyte);
  const auto file = readIconFile(path);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->span().size(), 256U * 1024);
  EXPECT_FALSE(file->isIcon() || file->isCursor());
}

TEST_F(IconFileBytes, ASmallFileIsReadWhole) {
  const Bytes bytes = build(anyEntry(48, 24));
  write(bytes, bytes.size());
  for (const auto& file : {readIconFile(path), readWholeIconFile(path)}) {
    ASSERT_TRUE(file);
    EXPECT_EQ(part(*file, 0, file->span().size()), bytes);
    EXPECT_TRUE(file->isIcon());
    EXPECT_EQ(file->directory.presentCount(), 1);
    EXPECT_EQ(file->entry(0), parseIconDirectory(bytes).entry(0));
  }
}

TEST_F(IconFileBytes, WhatIsNoRegularFileIsNotRead) {
  for (const std::string& other : {folder.file("none.ico"), folder.path(), std::string("/dev/zero")}) {
    EXPECT_FALSE(readIconFile(other)) << other;
    EXPECT_FALSE(readWholeIconFile(other)) << other;
  }
}

TEST_F(IconFileBytes, TheBytesOfAHugeFileThatNoImageCanReachAreReadOnlyWithTheWholeFile) {
  Bytes bytes = build(anyEntry(32, 8));
  bytes.resize(4 * kMegabyte);
  bytes.back() = 7;
  write(bytes, bytes.size());
  const auto file = readIconFile(path), whole = readWholeIconFile(path);
  ASSERT_TRUE(file && whole);
  EXPECT_LT(file->span().size(), bytes.size());
  EXPECT_EQ(whole->span().size(), bytes.size());
  EXPECT_EQ(whole->span().back(), 7);
  EXPECT_EQ(file->directory.entries, whole->directory.entries);
}

}  // namespace
}  // namespace gp::test
