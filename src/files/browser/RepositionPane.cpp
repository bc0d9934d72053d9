#include "files/browser/RepositionPane.h"

#include "files/browser/MultiIconListing.h"

#include <algorithm>
#include <utility>

namespace gp {

void RepositionPane::open(std::vector<std::string> items) {
  items_ = std::move(items);
  selected_ = items_.empty() ? -1 : 0;
}

bool RepositionPane::canShiftUp() const { return selected_ > 0; }
bool RepositionPane::canShiftDown() const { return selected_ >= 0 && selected_ + 1 < static_cast<int>(items_.size()); }

void RepositionPane::shiftUp() {
  if (canShiftUp()) moveTo(selected_ - 1);
}

void RepositionPane::shiftDown() {
  if (canShiftDown()) moveTo(selected_ + 1);
}

void RepositionPane::moveTo(int place) {
  std::swap(items_.at(static_cast<std::size_t>(selected_)), items_.at(static_cast<std::size_t>(place)));
  selected_ = place;
}

std::vector<int> RepositionPane::order() const {
  std::vector<int> order;
  order.reserve(items_.size());
  for (const std::string& item : items_) order.push_back(readItem(item).index);
  return order;
}

bool RepositionPane::isUnchanged() const { return std::ranges::is_sorted(order()); }

}  // namespace gp
