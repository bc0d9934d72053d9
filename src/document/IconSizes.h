// Which sizes an icon may have: the only place that knows them.
#pragma once

#include <algorithm>
#include <array>

namespace gp {

// The sides of an icon in pixels, smallest first. An icon is square.
inline constexpr std::array kIconSides{16, 24, 32, 48};
// The size that an empty container counts as.
inline constexpr int kDefaultIconSize = 32;
inline constexpr int kLargestIconSize = kIconSides.back();

constexpr bool isIconSize(int side) { return std::ranges::find(kIconSides, side) != kIconSides.end(); }
constexpr bool isIconSize(int width, int height) { return width == height && isIconSize(width); }

// The smallest icon that a picture fits in; the largest one for a picture that fits in none.
constexpr int iconSizeFor(int width, int height) {
  const auto fits = [side = std::max(width, height)](int size) { return size >= side; };
  const auto found = std::ranges::find_if(kIconSides, fits);
  return found == kIconSides.end() ? kLargestIconSize : *found;
}

}  // namespace gp
