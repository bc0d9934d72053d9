#include "platform/resources/AddressMap.h"

#include <queue>

#include <algorithm>

namespace gp {

void AddressMap::add(std::uint64_t first, std::uint64_t size, std::size_t owner) {
  if (size > 0) ranges_.push_back({first, first + size, owner, ranges_.size()});
}

// Walks the ends of all ranges in order; of the ranges that are open, the one added first has the next piece.
void AddressMap::build() {
  std::vector<std::uint64_t> borders;
  for (const Range& range : ranges_) borders.insert(borders.end(), {range.first, range.end});
  std::ranges::sort(borders);
  borders.erase(std::unique(borders.begin(), borders.end()), borders.end());
  std::ranges::sort(ranges_, {}, &Range::first);
  const auto isLater = [](const Range& a, const Range& b) { return a.order > b.order; };
  std::priority_queue<Range, std::vector<Range>, decltype(isLater)> open(isLater);
  auto next = ranges_.begin();
  for (const std::uint64_t border : borders) {
    for (; next != ranges_.end() && next->first == border; ++next) open.push(*next);
    while (!open.empty() && open.top().end <= border) open.pop();
    pieces_.push_back({border, open.empty() ? std::nullopt : std::optional(open.top().owner)});
  }
}

std::optional<std::size_t> AddressMap::find(std::uint64_t address) const {
  const auto behind = std::ranges::upper_bound(pieces_, address, {}, &Piece::first);
  return behind == pieces_.begin() ? std::nullopt : std::prev(behind)->owner;
}

}  // namespace gp
