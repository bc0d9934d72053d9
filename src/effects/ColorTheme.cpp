#include "effects/ColorTheme.h"

#include "effects/EffectTable.h"
#include "effects/HueLightness.h"
#include "effects/PaintedPixels.h"

namespace gp {
namespace {

IconImage colorTheme(const IconImage& icon, const EffectValues& values) {
  return withColorTheme(icon, values.color(0), values.number(1));
}

constexpr Setting kSettings[] = {{.option = "color",
                                  .kind = SettingKind::Rgb,
                                  .isRequired = true,
                                  .help = "a color of the hue that all painted pixels take"},
                                 {.option = "percent",
                                  .to = kFullPercent,
                                  .first = kFullPercent,
                                  .applies = [](const EffectValues& values) { return hasPercent(values.color(0)); },
                                  .goesWith = "a --color of hue 0",
                                  .help = "how much of the saturation stays"}};

}  // namespace

bool hasPercent(Color theme) { return rgbToHLS(theme).hue == 0; }

IconImage withColorTheme(const IconImage& icon, Color theme, int percent) {
  const float hue = rgbToHLS(theme).hue;
  const double part = hasPercent(theme) ? percent / static_cast<double>(kFullPercent) : 1;
  return mapPainted(icon, [hue, part](Color color) {
    const HueLightness parts = rgbToHLS(color);
    return hlsToRGB({hue, parts.lightness, parts.saturation * part});
  });
}

extern const EffectRow kColorTheme{.name = "theme",
                                   .title = "Set color theme",
                                   .help = "shades of one hue",
                                   .menu = {9, "Set Color The&me ....", "Ctrl+F9", ""},
                                   .panel = {.number = 12, .sample = "picColorTheme(0)", .isGenerated = false},
                                   .settings = kSettings,
                                   .apply = colorTheme};

}  // namespace gp
