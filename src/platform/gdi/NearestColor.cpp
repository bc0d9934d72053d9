#include "platform/gdi/NearestColor.h"

#include <limits>

namespace gp {
namespace {

constexpr int squared(int v) { return v * v; }

int squaredDistance(Color a, Color b) {
  return squared(redOf(a) - redOf(b)) + squared(greenOf(a) - greenOf(b)) + squared(blueOf(a) - blueOf(b));
}

}  // namespace

int GetNearestPaletteIndex(std::span<const Color> palette, Color color) {
  int nearest = -1;
  int least = std::numeric_limits<int>::max();
  for (std::size_t i = 0; i < palette.size(); ++i) {
    const int distance = squaredDistance(palette[i], color);
    if (distance >= least) continue;
    least = distance;
    nearest = static_cast<int>(i);
  }
  return nearest;
}

}  // namespace gp
