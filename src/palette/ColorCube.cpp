#include "palette/ColorCube.h"

#include <algorithm>
#include <array>
#include <limits>

namespace gp {
namespace {

constexpr int kSteps = 16;
constexpr int kStepWidth = 17;  // 15 steps reach 255
constexpr int kEntries = 256;

using Steps = std::array<std::int32_t, kSteps>;

// Returns the step nearest to a channel's value; the odd step width excludes ties.
constexpr std::size_t stepOf(std::uint8_t channel) { return (channel + kStepWidth / 2) / kStepWidth; }

// Returns the squared distance of a channel to each step, shifted left to make room for an entry's index.
Steps distances(int channel) {
  Steps squares;
  for (int i = 0; i < kSteps; ++i) {
    const int distance = channel - i * kStepWidth;
    squares[static_cast<std::size_t>(i)] = distance * distance * kEntries;
  }
  return squares;
}

struct EntryDistances {
  Steps red, green, blue;
  std::int32_t index;
};

// Repeated entries are left out, because they are never the first among equals.
std::vector<EntryDistances> distancesOf(std::span<const Color> palette) {
  std::vector<EntryDistances> entries;
  for (std::size_t i = 0; i < palette.size(); ++i) {
    const auto earlier = palette.first(i);
    if (std::ranges::find(earlier, palette[i]) != earlier.end()) continue;
    entries.push_back({distances(redOf(palette[i])), distances(greenOf(palette[i])), distances(blueOf(palette[i])),
                       static_cast<std::int32_t>(i)});
  }
  return entries;
}

// Computes one line of the cube along red. Distance and index form one number: its minimum is the first among equals.
Steps nearestAlongRed(const std::vector<EntryDistances>& entries, std::size_t green, std::size_t blue) {
  Steps least;
  least.fill(std::numeric_limits<std::int32_t>::max());
  for (const EntryDistances& entry : entries) {
    const std::int32_t base = entry.green[green] + entry.blue[blue] + entry.index;
    for (std::size_t k = 0; k < least.size(); ++k) least[k] = std::min(least[k], base + entry.red[k]);
  }
  return least;
}

std::size_t place(std::size_t red, std::size_t green, std::size_t blue) {
  return (blue * kSteps + green) * kSteps + red;
}

}  // namespace

ColorCube::ColorCube(std::span<const Color> palette) : cube_(kSteps * kSteps * kSteps) {
  const std::vector<EntryDistances> entries = distancesOf(palette);
  for (std::size_t blue = 0; blue < kSteps; ++blue) {
    for (std::size_t green = 0; green < kSteps; ++green) {
      const Steps nearest = nearestAlongRed(entries, green, blue);
      for (std::size_t red = 0; red < kSteps; ++red)
        cube_[place(red, green, blue)] = static_cast<std::uint8_t>(nearest[red] % kEntries);
    }
  }
}

std::uint8_t ColorCube::at(std::uint8_t red, std::uint8_t green, std::uint8_t blue) const {
  return cube_[place(stepOf(red), stepOf(green), stepOf(blue))];
}

}  // namespace gp
