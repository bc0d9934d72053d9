#include "palette/NearestMatch.h"

#include "platform/gdi/NearestColor.h"

#include <cstdint>
#include <vector>

namespace gp {
namespace {

// A cache of matches: searching the palette is slow and pictures repeat their colours. A match is kept until another
// colour needs its slot.
class MatchCache {
 public:
  explicit MatchCache(std::span<const Color> palette) : palette_(palette), matches_(kSlots) {}

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
  DibPixel find(Color color) const {
    return dibPixel(palette_[static_cast<std::size_t>(GetNearestPaletteIndex(palette_, color))]);
  }

  std::span<const Color> palette_;
  std::vector<Match> matches_;
};

}  // namespace

void matchToPalette(clsGPDIB& dib, std::span<const Color> palette) {
  if (palette.empty()) return;
  MatchCache matches(palette);
  for (DibPixel& pixel : dib.DIBBitsPtr()) pixel = matches.nearest(colorOf(pixel));
}

}  // namespace gp
