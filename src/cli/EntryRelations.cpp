#include "cli/EntryRelations.h"

#include "files/format/IcoLayout.h"
#include "files/format/IconUpdates.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace gp::cli {
namespace {

IconTraits traitsOf(const IconFile& file, int index) {
  const IconEntry entry = file.entry(index);
  const bool isCursor = file.isCursor();
  const ColorDepth depth = isCursor ? depthOfBits(headerBitCount(file, entry)) : corrected(depthOfEntry(entry));
  return {entry.width, entry.height, depth};
}

std::uint64_t endOf(const IconEntry& entry) { return std::uint64_t{entry.imageOffset} + entry.bytesInRes; }

std::vector<int> byOffset(const IconFile& file, int count) {
  std::vector<int> order(static_cast<std::size_t>(count));
  std::iota(order.begin(), order.end(), 0);
  std::ranges::stable_sort(order, {}, [&](int index) { return file.entry(index).imageOffset; });
  return order;
}

}  // namespace

int wholeEntries(const IconFile& file) {
  const std::size_t size = file.span().size();
  const std::size_t room = size < ico::kDirSize ? 0 : (size - ico::kDirSize) / ico::kEntrySize;
  return static_cast<int>(std::min(room, file.directory.entries.size()));
}

std::vector<int> entriesSharedWith(const IconFile& file, int count) {
  std::vector<int> shared(static_cast<std::size_t>(count), -1);
  int furthest = -1;
  std::uint64_t reached = 0;
  for (const int index : byOffset(file, count)) {
    const IconEntry entry = file.entry(index);
    if (entry.bytesInRes == 0) continue;
    if (entry.imageOffset < reached) shared[static_cast<std::size_t>(index)] = furthest;
    if (endOf(entry) <= reached) continue;
    furthest = index;
    reached = endOf(entry);
  }
  return shared;
}

std::vector<int> entriesLike(const IconFile& file, int count) {
  std::vector<int> alike(static_cast<std::size_t>(count), -1);
  std::map<IconTraits, int> first;
  for (int i = 0; i < count; ++i) {
    const auto [known, isNew] = first.try_emplace(traitsOf(file, i), i);
    if (!isNew) alike[static_cast<std::size_t>(i)] = known->second;
  }
  return alike;
}

}  // namespace gp::cli
