// Icons and values for tests that run over all effects of the table.
#pragma once

#include "document/IconSizes.h"
#include "effects/EffectTable.h"

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace gp::test {

// The effects that the program has.
inline std::vector<const EffectRow*> builtEffects() {
  std::vector<const EffectRow*> effects;
  for (const EffectRow* effect : effectTable())
    if (effect->apply) effects.push_back(effect);
  return effects;
}

// Those of them whose panel comes from their settings.
inline std::vector<const EffectRow*> effectsOfGeneratedPanels() {
  std::vector<const EffectRow*> effects = builtEffects();
  std::erase_if(effects, [](const EffectRow* effect) { return !effect->panel.isGenerated; });
  return effects;
}

// All values that a setting allows; of a colour and a point three, of a long range some, with both ends.
inline std::vector<int> valuesToTry(const Setting& setting) {
  if (setting.kind == SettingKind::Rgb) return {kBlack, kWhite, rgb(255, 128, 1)};
  if (setting.kind == SettingKind::Point) return {pointValue(15, 3), pointValue(11, 11), pointValue(5, 12)};
  constexpr int kManyValues = 16;
  std::vector<int> values;
  const int step = std::max(1, (highestValue(setting) - lowestValue(setting)) / kManyValues);
  for (int value = lowestValue(setting); value < highestValue(setting); value += step) values.push_back(value);
  values.push_back(highestValue(setting));
  return values;
}

// The effect's first values with one setting changed, and the first setting so that the changed one has a meaning.
inline EffectValues valuesWith(const EffectRow& effect, std::size_t setting, int value) {
  EffectValues values = firstValues(effect.settings);
  values.set(setting, value);
  const auto applies = effect.settings[setting].applies;
  if (!applies || applies(values)) return values;
  for (const int first : valuesToTry(effect.settings[0])) {
    values.set(0, first);
    if (applies(values)) break;
  }
  return values;
}

// The first values, and then each value of each setting while the others have their first ones.
inline std::vector<EffectValues> valuesToTry(const EffectRow& effect) {
  std::vector<EffectValues> all{firstValues(effect.settings)};
  for (std::size_t i = 0; i < effect.settings.size(); ++i)
    for (const int value : valuesToTry(effect.settings[i])) all.push_back(valuesWith(effect, i, value));
  return all;
}

// The words that give gpicon an effect's values.
inline std::vector<std::string> optionsFor(const EffectRow& effect, const EffectValues& values) {
  std::vector<std::string> words;
  for (std::size_t i = 0; i < effect.settings.size(); ++i) {
    const Setting& setting = effect.settings[i];
    const bool isFlag = setting.kind == SettingKind::Flag;
    if (isFlag && !values.flag(i)) continue;
    if (values.number(i) == kMiddlePoint || (setting.applies && !setting.applies(values))) continue;
    words.push_back("--" + std::string(setting.option));
    if (!isFlag) words.push_back(textOfValue(setting, values.number(i)));
  }
  return words;
}

// Icons of one size: without a painted pixel, painted all over in shades, and two mixtures of painted, transparent and
// inverting pixels. The same in every run.
inline std::vector<IconImage> generatedIcons(int size) {
  IconImage full = transparentIcon(size), sparse = full, dense = full;
  std::mt19937 numbers(20261122);
  const auto below = [&numbers](int end) { return static_cast<int>(numbers() % static_cast<unsigned>(end)); };
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) {
      full.image.SetPixelV(x, y, rgb(x * 5, y * 5, (x + y) * 2));
      full.mask.SetPixelV(x, y, kBlack);
      for (const auto& [icon, tenths] : {std::pair{&sparse, 2}, std::pair{&dense, 7}}) {
        const bool isPainted = below(10) < tenths, isInverting = below(10) == 0;
        if (isPainted || isInverting) icon->image.SetPixelV(x, y, rgb(below(256), below(256), below(256)));
        if (isPainted) icon->mask.SetPixelV(x, y, kBlack);
      }
    }
  return {transparentIcon(size), full, sparse, dense};
}

inline bool samePixels(const Surface& a, const Surface& b) {
  return a.width() == b.width() && a.height() == b.height() && std::ranges::equal(a.pixels(), b.pixels());
}
inline bool samePixels(const IconImage& a, const IconImage& b) {
  return samePixels(a.image, b.image) && samePixels(a.mask, b.mask);
}

}  // namespace gp::test
