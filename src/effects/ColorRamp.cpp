#include "effects/ColorRamp.h"

#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace gp {
namespace {

constexpr double kHalf = 0.5;

int mixedChannel(int a, int b, int steps, int i) { return roundToByte(a + static_cast<double>(b - a) / steps * i); }

}  // namespace

Color ColorRamp::at(int i) const {
  if (entries_.empty()) return before_;
  return entries_[static_cast<std::size_t>(std::clamp(i, 1, size())) - 1];
}

ColorRamp makeColorRamp(Color colorA, Color colorB, int steps) {
  std::vector<Color> entries;
  for (int i = 1; i <= std::abs(steps); ++i)
    entries.push_back(rgb(mixedChannel(redOf(colorA), redOf(colorB), steps, i),
                          mixedChannel(greenOf(colorA), greenOf(colorB), steps, i),
                          mixedChannel(blueOf(colorA), blueOf(colorB), steps, i)));
  return {colorA, std::move(entries)};
}

int pointDistance(double x1, double y1, double x2, double y2) {
  return Int(std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2)) + kHalf);
}

void drawRings(Surface& target, double x, double y, const ColorRamp& ramp, int last) {
  for (int row = 0; row < target.height(); ++row) {
    std::uint32_t* pixels = target.rowForWriting(row, 0, target.width());
    for (int column = 0; column < target.width(); ++column)
      pixels[column] = storedForm(ramp.at(std::min(pointDistance(column, row, x, y), last)));
  }
}

}  // namespace gp
