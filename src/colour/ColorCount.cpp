#include "colour/ColorCount.h"

#include "colour/ColorTables.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr int kTableSize = 256;

// The table of the count test. It is searched one entry beyond the colours it has, where a zero stands, and its first
// new colour overwrites entry 0: black is free, and the corner's colour counts only if it comes again. Kept as it is.
class ColorTable {
 public:
  explicit ColorTable(std::uint32_t corner) { entries_[0] = corner; }
  // False when the table is full.
  bool take(std::uint32_t color) {
    const auto end = entries_.begin() + count_ + 1;
    if (std::find(entries_.begin(), end, color) != end) return true;
    entries_[static_cast<std::size_t>(count_)] = color;
    return ++count_ < kTableSize;
  }

 private:
  std::array<std::uint32_t, kTableSize> entries_{};
  int count_ = 0;
};

bool fitsColorTable(const Surface& surface) {
  if (surface.pixels().empty()) return false;
  const auto pixels = surface.pixels();
  const int width = surface.width();
  std::uint32_t previous = pixels[0] & kColorBits;
  ColorTable table(previous);
  for (int x = 0; x < width; ++x) {
    for (int y = 0; y < surface.height(); ++y) {
      const std::uint32_t color = pixels[static_cast<std::size_t>(y) * width + x] & kColorBits;
      if (color == previous) continue;  // it has just been found
      previous = color;
      if (!table.take(color)) return false;
    }
  }
  return true;
}

template <class Test>
bool allPixels(const Surface& surface, Test test) {
  const auto pixels = surface.pixels();
  return std::all_of(pixels.begin(), pixels.end(),
                     [test](std::uint32_t pixel) { return test(static_cast<Color>(pixel & kColorBits)); });
}

bool isBlackOrWhite(Color color) { return color == kBlack || color == kWhite; }

}  // namespace

void GetColorBitCount_Image(const Surface& surface, int& count) {
  if (allPixels(surface, isBlackOrWhite))
    count = 2;
  else if (allPixels(surface, isStandardColor))
    count = 16;
  else
    count = fitsColorTable(surface) ? kTableSize : kTrueColor;
}

}  // namespace gp
