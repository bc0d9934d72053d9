// The icons on which effects are compared with slow models, and what the comparison uses.
#pragma once

#include "document/IconImage.h"
#include "document/IconSizes.h"

#include <algorithm>
#include <map>
#include <random>
#include <vector>

namespace gp::test {

inline constexpr int kModelIconsPerSize = 56;  // 52 mixtures and 4 of one kind; in each of the four sizes: 224 icons

// An icon of one colour: all its pixels are painted, inverting, or transparent when it is black.
inline IconImage plainIcon(int size, Color color, Color mask) {
  return {Surface(size, size, color), Surface(size, size, mask), {}};
}

// Icons of one size in 2, 16, 256 or many colours, with more or less painted, transparent and inverting pixels, and
// icons without a transparent pixel, without a painted one, of inverting pixels only and of one colour. The same in
// every run.
inline std::vector<IconImage> makeIconsOfSize(int size) {
  std::mt19937 numbers(static_cast<unsigned>(size) * 7919U);
  const auto below = [&numbers](int end) { return static_cast<int>(numbers() % static_cast<unsigned>(end)); };
  std::vector<IconImage> icons{transparentIcon(size), plainIcon(size, kBlack, kBlack),
                               plainIcon(size, rgb(200, 100, 3), kBlack), plainIcon(size, kWhite, kWhite)};
  while (icons.size() < kModelIconsPerSize) {
    const int colorCounts[] = {2, 16, 256, 1 << 24};
    const int colors = colorCounts[icons.size() % 4], paintedTenths = below(11);
    std::vector<Color> palette;
    for (int entry = 0; entry < std::min(colors, 256); ++entry) palette.push_back(below(1 << 24));
    IconImage icon = transparentIcon(size);
    for (int y = 0; y < size; ++y)
      for (int x = 0; x < size; ++x) {
        const bool isPainted = below(10) < paintedTenths;
        if (!isPainted && below(4) != 0) continue;
        icon.image.SetPixelV(x, y, colors > 256 ? below(1 << 24) : palette[static_cast<std::size_t>(below(colors))]);
        if (isPainted) icon.mask.SetPixelV(x, y, kBlack);
      }
    icons.push_back(icon);
  }
  return icons;
}
// The same, made once.
inline const std::vector<IconImage>& iconsOfSize(int size) {
  static std::map<int, std::vector<IconImage>> made;
  const auto [icons, isNew] = made.try_emplace(size);
  if (isNew) icons->second = makeIconsOfSize(size);
  return icons->second;
}

}  // namespace gp::test
