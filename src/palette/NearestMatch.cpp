#include "palette/NearestMatch.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace gp {
namespace {

// Searches a palette as GetNearestPaletteIndex does, several times as fast: each channel is an array of short numbers,
// so that the compiler compares eight entries at a time.
class PaletteSearch {
 public:
  static constexpr int kIndexBits = 13;

  explicit PaletteSearch(std::span<const Color> palette) {
    for (const Color color : palette) {
      red_.push_back(static_cast<std::int16_t>(redOf(color)));
      green_.push_back(static_cast<std::int16_t>(greenOf(color)));
      blue_.push_back(static_cast<std::int16_t>(blueOf(color)));
    }
  }

  // The palette has 1 to 2^kIndexBits entries.
  std::size_t find(Color color) const {
    const int red = redOf(color), green = greenOf(color), blue = blueOf(color);
    // The index is in the low bits, so that the first one of several least distances wins.
    int least = std::numeric_limits<int>::max(), index = 0;
    for (std::size_t i = 0; i < red_.size(); ++i, ++index) {
      const int distance = square(red_[i] - red) + square(green_[i] - green) + square(blue_[i] - blue);
      least = std::min(least, distance << kIndexBits | index);
    }
    return static_cast<std::size_t>(least & ((1 << kIndexBits) - 1));
  }

 private:
  static int square(int difference) {
    const auto narrow = static_cast<std::int16_t>(difference);
    return narrow * narrow;
  }

  std::vector<std::int16_t> red_, green_, blue_;
};

// A cache of matches: searching the palette is slow and pictures repeat their colours. A match is kept until another
// colour needs its slot.
class MatchCache {
 public:
  explicit MatchCache(std::span<const Color> palette) : palette_(palette), search_(palette), matches_(kSlots) {}

  DibPixel nearest(Color color) {
    Match& match = matches_[slotOf(color)];
    if (match.color != color) match = {color, find(color)};
    return match.entry;
  }

 private:
  static constexpr int kSlotBits = 12;
  static constexpr std::size_t kSlots = std::size_t{1} << kSlotBits;
  // Knuth's multiplier, which maps similar colours to distant slots.
  static constexpr std::uint32_t kScatter = 2654435761U;

  struct Match {
    Color color = kNoColor;
    DibPixel entry;
  };

  static std::size_t slotOf(Color color) { return static_cast<std::uint32_t>(color) * kScatter >> (32 - kSlotBits); }
  DibPixel find(Color color) const { return dibPixel(palette_[search_.find(color)]); }

  std::span<const Color> palette_;
  PaletteSearch search_;
  std::vector<Match> matches_;
};

}  // namespace

void matchToPalette(clsGPDIB& dib, std::span<const Color> palette) {
  if (palette.empty()) return;
  MatchCache matches(palette);
  for (DibPixel& pixel : dib.DIBBitsPtr()) pixel = matches.nearest(colorOf(pixel));
}

}  // namespace gp
