// The sizes that an icon can have. No other code lists them.
#pragma once

#include <algorithm>
#include <array>

namespace gp {

// The sides of an icon in pixels, in ascending order. An icon is square.
inline constexpr std::array kIconSides{16, 24, 32, 48};
// The size of the icon of an empty container.
inline constexpr int kDefaultIconSize = 32;
inline constexpr int kLargestIconSize = kIconSides.back();

constexpr bool isIconSize(int side) { return std::ranges::find(kIconSides, side) != kIconSides.end(); }
constexpr bool isIconSize(int width, int height) { return width == height && isIconSize(width); }

// Returns the smallest icon size into which a picture fits; the largest size when it fits into none.
constexpr int iconSizeFor(int width, int height) {
  const auto fits = [side = std::max(width, height)](int size) { return size >= side; };
  const auto found = std::ranges::find_if(kIconSides, fits);
  return found == kIconSides.end() ? kLargestIconSize : *found;
}

}  // namespace gp
