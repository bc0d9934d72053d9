#include "platform/resources/PeResources.h"

#include "platform/resources/PeFile.h"

#include <algorithm>
#include <optional>
#include <string>

namespace gp {
namespace {

constexpr std::uint32_t kIconType = 3, kGroupType = 14;

// A directory: a header with two counts, and its entries. An entry is a number or the place of a name, and the place of
// a directory or of a data entry; a set high bit states the second and the first.
constexpr std::uint64_t kNamedCount = 12, kNumberedCount = 14, kDirectoryHeader = 16;
constexpr std::uint64_t kEntrySize = 8, kEntryPlace = 4;
constexpr std::uint32_t kHighBit = 0x80000000;

constexpr std::uint64_t kDataEntrySize = 16;

struct Entry {
  std::uint32_t id = 0;
  std::uint32_t place = 0;

  bool isNamed() const { return (id & kHighBit) != 0; }
  bool isDirectory() const { return (place & kHighBit) != 0; }
  std::uint32_t nameOffset() const { return id & ~kHighBit; }
  std::uint32_t offset() const { return place & ~kHighBit; }
};

// What a name leads to in its first language.
struct Leaf {
  std::uint16_t language = 0;
  ResourcePlace place;
};

class Tree {
 public:
  Tree(SourceReader& reader, std::uint64_t header) : reader_(reader), file_(reader, header), all_(file_.resources()) {}

  // The names of a type; empty without it.
  std::vector<Entry> namesOf(std::uint32_t type) {
    for (const Entry& entry : entriesAt(0))
      if (entry.id == type && entry.isDirectory()) return entriesAt(entry.offset());
    return {};
  }

  Leaf leafOf(const Entry& name) {
    if (!name.isDirectory()) return {0, dataAt(name.offset())};
    const auto language = firstEntryAt(name.offset());
    if (!language || language->isDirectory()) return {};
    return {static_cast<std::uint16_t>(language->id), dataAt(language->offset())};
  }

  // At most `most` characters. A name without an end stops at that of the directory.
  std::u16string nameAt(std::uint32_t offset, std::size_t most) {
    std::u16string name;
    if (!contains(offset, 2)) return name;
    const std::size_t count = std::min<std::size_t>(reader_.u16(all_.offset + offset), most);
    for (std::uint64_t at = offset + std::uint64_t{2}; name.size() < count && contains(at, 2); at += 2)
      name += static_cast<char16_t>(reader_.u16(all_.offset + at));
    return name;
  }

 private:
  bool contains(std::uint64_t offset, std::uint64_t count) const {
    return offset <= all_.size && count <= all_.size - offset;
  }

  Entry entryAt(std::uint64_t offset) {
    return {reader_.u32(all_.offset + offset), reader_.u32(all_.offset + offset + kEntryPlace)};
  }

  std::uint64_t countAt(std::uint64_t directory) {
    if (!contains(directory, kDirectoryHeader)) return 0;
    const std::uint64_t stated = std::uint64_t{reader_.u16(all_.offset + directory + kNamedCount)} +
                                 reader_.u16(all_.offset + directory + kNumberedCount);
    return std::min(stated, (all_.size - directory - kDirectoryHeader) / kEntrySize);
  }

  std::optional<Entry> firstEntryAt(std::uint64_t directory) {
    if (countAt(directory) == 0) return std::nullopt;
    return entryAt(directory + kDirectoryHeader);
  }

  std::vector<Entry> entriesAt(std::uint64_t directory) {
    std::vector<Entry> entries(countAt(directory));
    std::uint64_t at = directory + kDirectoryHeader;
    for (Entry& entry : entries) {
      entry = entryAt(at);
      at += kEntrySize;
    }
    return entries;
  }

  ResourcePlace dataAt(std::uint64_t offset) {
    if (!contains(offset, kDataEntrySize)) return {};
    return file_.placeOf(reader_.u32(all_.offset + offset), reader_.u32(all_.offset + offset + 4));
  }

  SourceReader& reader_;
  PeFile file_;
  ResourcePlace all_;
};

std::vector<FoundGroup> readGroups(Tree& tree) {
  std::vector<FoundGroup> groups;
  std::size_t unitsLeft = kMostNameUnits;
  for (const Entry& entry : tree.namesOf(kGroupType)) {
    if (groups.size() == kMostGroups || unitsLeft == 0) break;
    FoundGroup found;
    found.isNamed = entry.isNamed();
    if (found.isNamed)
      found.name = tree.nameAt(entry.nameOffset(), unitsLeft);
    else
      found.group.id = static_cast<std::uint16_t>(entry.id);
    unitsLeft -= found.name.size();
    const Leaf leaf = tree.leafOf(entry);
    found.group.language = leaf.language;
    found.group.place = leaf.place;
    groups.push_back(std::move(found));
  }
  return groups;
}

// Groups refer to images by number only.
std::vector<IconResource> readIcons(Tree& tree) {
  std::vector<IconResource> icons;
  for (const Entry& entry : tree.namesOf(kIconType))
    if (!entry.isNamed()) icons.push_back({static_cast<std::uint16_t>(entry.id), tree.leafOf(entry).place});
  return icons;
}

}  // namespace

ResourceTable readPeResources(SourceReader& reader, std::uint64_t header) {
  Tree tree(reader, header);
  return {groupsInOrder(readGroups(tree)), iconsInOrder(readIcons(tree))};
}

}  // namespace gp
