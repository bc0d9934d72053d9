#include "palette/NearestMatch.h"

#include "platform/gdi/NearestColor.h"

#include <cstdint>
#include <vector>

namespace gp {
namespace {

// The search through a palette is long and pictures repeat their colours: what was found for a colour is kept until
// another one needs its place.
class MetColors {
 public:
  explicit MetColors(std::span<const Color> palette) : palette_(palette), met_(kPlaces) {}

  DibPixel nearest(Color color) {
    Met& met = met_[placeOf(color)];
    if (met.color != color) met = {color, find(color)};
    return met.entry;
  }

 private:
  static constexpr int kPlaceBits = 12;
  static constexpr std::size_t kPlaces = std::size_t{1} << kPlaceBits;
  // Knuth's multiplier: near colours get places far from each other.
  static constexpr std::uint32_t kScatter = 2654435761U;

  struct Met {
    Color color = kNoColor;
    DibPixel entry;
  };

  static std::size_t placeOf(Color color) { return static_cast<std::uint32_t>(color) * kScatter >> (32 - kPlaceBits); }
  DibPixel find(Color color) const {
    return dibPixel(palette_[static_cast<std::size_t>(GetNearestPaletteIndex(palette_, color))]);
  }

  std::span<const Color> palette_;
  std::vector<Met> met_;
};

}  // namespace

void matchToPalette(clsGPDIB& dib, std::span<const Color> palette) {
  if (palette.empty()) return;
  MetColors met(palette);
  for (DibPixel& pixel : dib.DIBBitsPtr()) pixel = met.nearest(colorOf(pixel));
}

}  // namespace gp
