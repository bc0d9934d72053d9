#include "effects/Brightness.h"

#include "effects/EffectTable.h"
#include "effects/PaintedPixels.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace gp {
namespace {

constexpr int kPercent = 100;
constexpr int kHighestLevel = 255;
constexpr BrightnessOf kInTurn[] = {BrightnessOf::Red, BrightnessOf::Green, BrightnessOf::Blue, BrightnessOf::Overall};

IconImage brightness(const IconImage& icon, const EffectValues& values) {
  BrightnessTable table;
  for (std::size_t i = 0; i < std::size(kInTurn); ++i) table.change(kInTurn[i], values.number(i));
  return table.on(icon);
}

constexpr Setting optionNamed(const char* name, const char* help) {
  return {.option = name, .from = -kPercent, .to = kPercent, .help = help};
}
constexpr Setting kSettings[] = {optionNamed("red", "percent by which red becomes brighter"),
                                 optionNamed("green", "percent by which green becomes brighter"),
                                 optionNamed("blue", "percent by which blue becomes brighter"),
                                 optionNamed("overall", "percent by which all become brighter, after the others")};

}  // namespace

BrightnessTable::BrightnessTable() {
  for (auto& levels : levels_) std::iota(levels.begin(), levels.end(), 0);
}

void BrightnessTable::change(BrightnessOf channel, int percent) {
  for (std::size_t i = 0; i < kChannelCount; ++i) {
    if (channel != BrightnessOf::Overall && static_cast<std::size_t>(channel) != i) continue;
    for (int& level : levels_[i]) level = std::min(level * (percent + kPercent) / kPercent, kHighestLevel);
  }
}

IconImage BrightnessTable::on(const IconImage& icon) const {
  return mapPainted(icon, [this](Color color) {
    const auto changed = [](int level, const auto& levels) { return levels[static_cast<std::size_t>(level)]; };
    const Channels channels = channelsOf(color);
    return rgb(changed(channels[0], levels_[0]), changed(channels[1], levels_[1]), changed(channels[2], levels_[2]));
  });
}

extern const EffectRow kBrightness{.name = "brightness",
                                   .title = "Adjust brightness of colors",
                                   .help = "brighter or darker colors",
                                   .menu = {6, "&Adjust Brightness Of Colors ....", "Ctrl+F6", "brightness"},
                                   .panel = {.number = 9, .sample = "picBrightness", .isGenerated = false},
                                   .settings = kSettings,
                                   .apply = brightness,
                                   .needs = NeededOptions::AtLeastOne};

}  // namespace gp
