#include "colour/ColorCount.h"

#include "colour/ColorTables.h"

#include <algorithm>
#include <array>
#include <set>

namespace gp {
namespace {

constexpr int kTableSize = 256;

// The table of the colour count. Intended quirks: the search includes one entry past the colours, which is zero, so
// black is not counted; the first new colour overwrites entry 0, so the corner's colour counts only if it occurs again.
class ColorTable {
 public:
  explicit ColorTable(std::uint32_t corner) { entries_[0] = corner; }
  // Returns false when the table is full.
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
      if (color == previous) continue;  // the same as the previous pixel
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

int CountColors(const Surface& surface) {
  std::set<std::uint32_t> colors;
  for (const std::uint32_t pixel : surface.pixels()) colors.insert(pixel & kColorBits);
  return static_cast<int>(colors.size());
}

}  // namespace gp
