#include "effects/Cast.h"

#include "effects/Channels.h"
#include "effects/EffectTable.h"
#include "effects/PaintedPixels.h"

#include <cstdlib>

namespace gp {
namespace {

// Intended: a flat area takes the levels as its colour, and edges differ from it. A coloured relief, not a tint.
Color castAt(const Surface& image, int x, int y, Color levels) {
  const auto cast = [](int level, int own, int neighbour) { return std::abs(level + neighbour - own); };
  return colorOfChannels(eachChannel(cast, channelsOf(levels), channelsOf(image.GetPixel(x, y)),
                                     channelsOf(image.GetPixel(x + 1, y + 1))));
}

IconImage applyCast(const IconImage& icon, const EffectValues& values) {
  Surface relief(icon.width(), icon.height());
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x) relief.SetPixelV(x, y, castAt(icon.image, x, y, values.color(0)));
  IconImage result{icon.image, icon.mask, {}};
  copyPainted(relief, icon.mask, result.image);
  return result;
}

constexpr Setting kSettings[] = {{.option = "levels",
                                  .kind = SettingKind::Levels,
                                  .first = kMiddleLevels,
                                  .isRequired = true,
                                  .control = "cboCast",
                                  .label = "     Red                Greeen            Blue",
                                  .help = "the color that a flat area takes"}};

}  // namespace

int sliderOf(Color levels) {
  return roundToInteger((redOf(levels) + greenOf(levels) + blueOf(levels)) / static_cast<double>(kChannelCount));
}

Color levelsAfterSlide(Color levels, int position) {
  const int change = position - sliderOf(levels);
  return colorOfChannels(eachChannel([change](int level) { return level + change; }, channelsOf(levels)));
}

extern const EffectRow kCast{.name = "cast",
                             .title = "Cast",
                             .help = "a relief in one color",
                             .menu = {16, "&Cast ....", "", ""},
                             .settings = kSettings,
                             .apply = applyCast};

}  // namespace gp
