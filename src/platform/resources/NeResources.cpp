#include "platform/resources/NeResources.h"

#include <algorithm>
#include <limits>
#include <string>

namespace gp {
namespace {

// From the signature on.
constexpr std::uint64_t kResourceTable = 0x24, kNameTable = 0x26;

// The table begins with the shift of offsets and lengths. A type without a number ends it.
constexpr std::uint64_t kTypeHeader = 8, kTypeCount = 2;
constexpr std::uint64_t kResourceSize = 12, kLength = 2, kId = 6;
constexpr int kMostShift = 31;
constexpr std::uint64_t kMostTable = 1U << 20;  // more than all numbers of groups and images take
constexpr std::uint16_t kNumbered = 0x8000;
constexpr std::uint16_t kIconType = kNumbered | 3, kGroupType = kNumbered | 14;

class Table {
 public:
  Table(SourceReader& reader, std::uint64_t start) : reader_(reader), start_(start), shift_(reader.u16(start)) {}

  void read() {
    if (shift_ > kMostShift) return;
    std::uint64_t at = start_ + 2;
    while (at - start_ < kMostTable && reader_.contains(at, kTypeHeader)) {
      const std::uint16_t type = reader_.u16(at);
      if (type == 0) break;
      const int count = reader_.u16(at + kTypeCount);
      readResources(type, at + kTypeHeader, count);
      at += kTypeHeader + static_cast<std::uint64_t>(count) * kResourceSize;
    }
  }

  ResourceTable take() { return {groupsInOrder(std::move(groups_)), iconsInOrder(std::move(icons_))}; }

 private:
  void readResources(std::uint16_t type, std::uint64_t at, int count) {
    if (type != kIconType && type != kGroupType) return;
    for (; count > 0 && reader_.contains(at, kResourceSize); --count, at += kResourceSize)
      type == kIconType ? addIcon(at) : addGroup(at);
  }

  void addIcon(std::uint64_t at) {
    const std::uint16_t id = reader_.u16(at + kId);
    if ((id & kNumbered) != 0 && icons_.size() < kMostGroups) icons_.push_back({numberOf(id), placeAt(at)});
  }

  void addGroup(std::uint64_t at) {
    if (groups_.size() == kMostGroups) return;
    const std::uint16_t id = reader_.u16(at + kId);
    FoundGroup found;
    found.isNamed = (id & kNumbered) == 0;
    if (found.isNamed)
      found.name = nameAt(start_ + id);
    else
      found.group.id = numberOf(id);
    found.group.place = placeAt(at);
    groups_.push_back(std::move(found));
  }

  static std::uint16_t numberOf(std::uint16_t id) { return id & static_cast<std::uint16_t>(~kNumbered); }

  ResourcePlace placeAt(std::uint64_t at) {
    const std::uint64_t offset = std::uint64_t{reader_.u16(at)} << shift_;
    const std::uint64_t size = std::uint64_t{reader_.u16(at + kLength)} << shift_;
    const std::uint64_t there = reader_.size() - std::min(offset, reader_.size());
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
    return {offset, static_cast<std::uint32_t>(std::min({size, there, kMost}))};
  }

  // A byte for the length, and the characters. The code page is not known; bytes count as Latin-1.
  std::u16string nameAt(std::uint64_t at) {
    std::u16string name;
    const int count = reader_.u8(at);
    for (int i = 1; i <= count && reader_.contains(at + i, 1); ++i) name += static_cast<char16_t>(reader_.u8(at + i));
    return name;
  }

  SourceReader& reader_;
  std::uint64_t start_;
  int shift_;
  std::vector<FoundGroup> groups_;
  std::vector<IconResource> icons_;
};

}  // namespace

ResourceTable readNeResources(SourceReader& reader, std::uint64_t header) {
  const std::uint16_t offset = reader.u16(header + kResourceTable);
  // A program without resources has its names in the place of the table.
  if (offset == reader.u16(header + kNameTable)) return {};
  Table table(reader, header + offset);
  table.read();
  return table.take();
}

}  // namespace gp
