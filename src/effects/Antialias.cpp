#include "effects/Antialias.h"

#include "effects/Channels.h"
#include "effects/EffectTable.h"
#include "effects/PaintedPixels.h"

namespace gp {
namespace {

// Returns the value half way between two channels, rounded.
int halfway(int from, int to) { return roundToInteger(from + (to - from) / 2.0); }

Channels halfway(const Channels& from, const Channels& to) {
  return eachChannel([](int a, int b) { return halfway(a, b); }, from, to);
}

// Intended: the two columns are rounded before they meet.
Color meanAt(const Surface& picture, int x, int y) {
  const auto columnAt = [&picture, y](int column) {
    return halfway(channelsOf(picture.GetPixel(column, y)), channelsOf(picture.GetPixel(column, y + 1)));
  };
  return colorOfChannels(halfway(columnAt(x), columnAt(x + 1)));
}

IconImage antialias(const IconImage& icon, const EffectValues& /*values*/) {
  IconImage result{icon.image, icon.mask, {}};
  copyPainted(antialiasPicture(icon.image), icon.mask, result.image);
  return result;
}

}  // namespace

Surface antialiasPicture(const Surface& picture) {
  Surface result(picture.width(), picture.height());
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) result.SetPixelV(x, y, meanAt(picture, x, y));
  return result;
}

extern const EffectRow kAntialias{.name = "antialias",
                                  .title = "Antialiasing",
                                  .help = "smooth edges",
                                  .menu = {8, "A&ntialias ....", "Ctrl+F8", ""},
                                  .panel = {11, "picAntialias"},
                                  .apply = antialias};

}  // namespace gp
