#include "platform/files/ByteSource.h"
#include "support/TempFolder.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>

namespace gp::test {
namespace {

constexpr std::array<std::uint8_t, 5> kBytes{1, 2, 3, 4, 5};
constexpr std::uint64_t kFarthest = std::numeric_limits<std::uint64_t>::max();

std::string fileWith(const TempFolder& folder, std::string_view text) {
  const std::string path = folder.path() + "/file";
  std::ofstream(path, std::ios::binary) << text;
  return path;
}

void expectParts(const ByteSource& source) {
  EXPECT_EQ(source.size(), 5u);
  std::array<std::uint8_t, 3> part{9, 9, 9};
  EXPECT_EQ(source.read(1, part), 3u);
  EXPECT_EQ(part, (std::array<std::uint8_t, 3>{2, 3, 4}));
  part = {9, 9, 9};
  EXPECT_EQ(source.read(4, part), 1u);
  EXPECT_EQ(part, (std::array<std::uint8_t, 3>{5, 9, 9})) << "the rest is unchanged";
  for (const std::uint64_t at : {std::uint64_t{5}, std::uint64_t{6}, kFarthest / 2, kFarthest - 1, kFarthest})
    EXPECT_EQ(source.read(at, part), 0u) << at;
  EXPECT_EQ(source.read(0, {}), 0u);
}

TEST(ByteSource, PartsOfMemoryAreRead) { expectParts(MemorySource(kBytes)); }

TEST(ByteSource, PartsOfAFileAreRead) {
  const TempFolder folder;
  const auto source = openByteSource(fileWith(folder, "\1\2\3\4\5"));
  ASSERT_TRUE(source);
  expectParts(*source);
}

TEST(ByteSource, AFileThatBecomesShorterGivesFewerBytes) {
  const TempFolder folder;
  const std::string path = fileWith(folder, "12345");
  const auto source = openByteSource(path);
  std::filesystem::resize_file(path, 2);
  std::array<std::uint8_t, 5> part{};
  EXPECT_EQ(source->size(), 5u);
  EXPECT_EQ(source->read(1, part), 1u);
  EXPECT_EQ(part[0], '2');
}

TEST(ByteSource, OnlyPlainFilesAreOpened) {
  const TempFolder folder;
  const std::string pipe = folder.path() + "/pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_FALSE(openByteSource(pipe)) << "and it does not wait for a writer";
  EXPECT_FALSE(openByteSource(folder.path()));
  EXPECT_FALSE(openByteSource("/dev/zero"));
  EXPECT_FALSE(openByteSource(folder.path() + "/missing"));
  EXPECT_FALSE(openByteSource(""));
}

}  // namespace
}  // namespace gp::test
