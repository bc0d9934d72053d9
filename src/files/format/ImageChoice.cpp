#include "files/format/ImageChoice.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <tuple>

namespace gp {
namespace {

constexpr std::size_t kMostImagesTried = 16;  // of an icon with many damaged ones

std::tuple<int, int> rank(const ImageTrait& image, int size) {
  return {std::abs(image.width - size) + std::abs(image.height - size), -image.bits};
}

}  // namespace

std::vector<std::size_t> imagesToTry(std::span<const ImageTrait> images, int size) {
  std::vector<std::size_t> order(images.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, {}, [&](std::size_t i) { return rank(images[i], size); });
  std::vector<std::size_t> tried;
  const auto offsetOf = [&](std::size_t i) { return images[i].offset; };
  for (const std::size_t i : order) {
    if (tried.size() == kMostImagesTried) break;
    if (std::ranges::find(tried, images[i].offset, offsetOf) == tried.end()) tried.push_back(i);
  }
  return tried;
}

}  // namespace gp
