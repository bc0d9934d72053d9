#include "platform/resources/AddressMap.h"

#include <gtest/gtest.h>
#include <random>

namespace gp::test {
namespace {

struct Range {
  std::uint64_t first, size;
};

AddressMap mapOf(const std::vector<Range>& ranges) {
  AddressMap map;
  for (std::size_t i = 0; i < ranges.size(); ++i) map.add(ranges[i].first, ranges[i].size, i);
  map.build();
  return map;
}

TEST(AddressMap, AnAddressBelongsToItsRange) {
  const AddressMap map = mapOf({{10, 5}, {20, 0}, {15, 1}, {100, 0xFFFFFFFF}});
  EXPECT_EQ(map.find(9), std::nullopt);
  EXPECT_EQ(map.find(10), 0u);
  EXPECT_EQ(map.find(14), 0u);
  EXPECT_EQ(map.find(15), 2u);
  EXPECT_EQ(map.find(16), std::nullopt);
  EXPECT_EQ(map.find(20), std::nullopt);
  EXPECT_EQ(map.find(100), 3u);
  EXPECT_EQ(map.find(0xFFFFFFFF), 3u);
  EXPECT_EQ(mapOf({}).find(0), std::nullopt);
}

TEST(AddressMap, OfOverlappingRangesTheFirstCounts) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    std::vector<Range> ranges;
    for (int i = 0; i < 12; ++i) ranges.push_back({random() % 60, random() % 25});
    const AddressMap map = mapOf(ranges);
    for (std::uint64_t address = 0; address < 90; ++address) {
      std::optional<std::size_t> expected;
      for (std::size_t i = 0; i < ranges.size() && !expected; ++i)
        if (address >= ranges[i].first && address < ranges[i].first + ranges[i].size) expected = i;
      ASSERT_EQ(map.find(address), expected) << address;
    }
  }
}

}  // namespace
}  // namespace gp::test
