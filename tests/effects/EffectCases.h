// Icons and values for tests that run over all effects of the table.
#pragma once

#include "document/IconSizes.h"
#include "effects/EffectTable.h"

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace gp::test {

// The effects of the menu that are a function of icon and values.
inline std::vector<const EffectRow*> pixelEffects() {
  std::vector<const EffectRow*> effects;
  for (const EffectRow* effect : effectTable())
    if (effect->apply) effects.push_back(effect);
  return effects;
}

// Of these, the effects whose side panel is made from their settings.
inline std::vector<const EffectRow*> effectsOfGeneratedPanels() {
  std::vector<const EffectRow*> effects = pixelEffects();
  std::erase_if(effects, [](const EffectRow* effect) { return !effect->panel.isGenerated; });
  return effects;
}

// The effects of the menu and those of gpicon only.
inline std::vector<const EffectRow*> allEffects() {
  std::vector<const EffectRow*> effects = pixelEffects();
  for (const EffectRow* effect : commandLineEffects())
    if (std::ranges::find(effects, effect) == effects.end()) effects.push_back(effect);
  return effects;
}

inline std::vector<IconImage> generatedIcons(int size);

// A picture in many colours, of the size of a pattern.
inline Surface customPattern() {
  constexpr int kSide = 48;
  Surface pattern(kSide, kSide);
  for (int y = 0; y < kSide; ++y)
    for (int x = 0; x < kSide; ++x) pattern.SetPixelV(x, y, rgb(x * 31 % 256, y * 47 % 256, x * y % 256));
  return pattern;
}

// What the file of a setting contains: of an icon file one icon of each size, of two kinds; of a picture file a
// pattern.
inline std::vector<IconImage> contentOf(const Setting& setting, int kind = 0) {
  if (setting.kind == SettingKind::PictureFile) return {{customPattern(), Surface(), {}}};
  std::vector<IconImage> icons;
  if (setting.kind == SettingKind::IconFile)
    for (const int size : kIconSides) icons.push_back(generatedIcons(size)[kind == 0 ? 2 : 1]);
  return icons;
}

// The effect's first values, and the content of its file if it has one.
inline EffectValues firstValuesOf(const EffectRow& effect) {
  EffectValues values = firstValues(effect.settings);
  for (const Setting& setting : effect.settings)
    if (const auto content = contentOf(setting); !content.empty()) values.setPictures(content);
  return values;
}

// The values that gpicon makes of the options that the effect needs: the first ones, with one flag where one is needed.
inline EffectValues usualValues(const EffectRow& effect) {
  EffectValues values = firstValuesOf(effect);
  if (effect.needs == NeededOptions::ExactlyOne) values.set(0, 1);
  return values;
}

// All values that a setting allows; of a colour and a point three, of a long range about twenty with both ends. Of an
// icon file the kinds of its content.
inline std::vector<int> valuesToTry(const Setting& setting) {
  if (setting.kind == SettingKind::IconFile) return {0, 1};
  if (setting.kind == SettingKind::Rgb || setting.kind == SettingKind::Levels)
    return {kBlack, kWhite, rgb(255, 128, 1)};
  if (setting.kind == SettingKind::Point) return {pointValue(15, 3), pointValue(11, 11), pointValue(5, 12)};
  const int step = std::max(1, (highestValue(setting) - lowestValue(setting)) / 20);
  std::vector<int> values;
  for (int value = lowestValue(setting); value < highestValue(setting); value += step) values.push_back(value);
  values.push_back(highestValue(setting));
  return values;
}

// The size of the result that an effect makes of an icon of that size.
inline int sizeAfter(const EffectRow& effect, const EffectValues& values, int size) {
  return effect.changesSize ? kIconSides.at(static_cast<std::size_t>(values.number(0))) : size;
}

// Whether the setting has a part in the result with these values.
inline bool hasPart(const Setting& setting, const EffectValues& values) {
  return !setting.applies || setting.applies(values);
}

// The effect's first values with one setting changed, and the first setting so that the changed one has a part.
inline EffectValues valuesWith(const EffectRow& effect, std::size_t setting, int value) {
  EffectValues values = firstValuesOf(effect);
  if (effect.settings[setting].kind == SettingKind::IconFile)
    values.setPictures(contentOf(effect.settings[setting], value));
  else
    values.set(setting, value);
  if (hasPart(effect.settings[setting], values)) return values;
  for (const int first : valuesToTry(effect.settings.front())) {
    values.set(0, first);
    if (hasPart(effect.settings[setting], values)) break;
  }
  return values;
}

// Whether gpicon can be given the values. An effect that needs exactly one of its options has flags only.
inline bool areGivable(const EffectRow& effect, const EffectValues& values) {
  int flags = 0;
  for (std::size_t i = 0; i < effect.settings.size(); ++i) flags += values.flag(i) ? 1 : 0;
  return effect.needs != NeededOptions::ExactlyOne || flags == 1;
}

// The usual values, and then each value of each setting while the others have their first ones.
inline std::vector<EffectValues> valuesToTry(const EffectRow& effect) {
  std::vector<EffectValues> all{usualValues(effect)};
  for (std::size_t i = 0; i < effect.settings.size(); ++i)
    for (const int value : valuesToTry(effect.settings[i])) all.push_back(valuesWith(effect, i, value));
  std::erase_if(all, [&effect](const EffectValues& values) { return !areGivable(effect, values); });
  return all;
}

// Writes the content of a setting's file and returns its path.
using FileFor = std::function<std::string(const Setting& setting, const EffectValues& values)>;

// The words that give gpicon an effect's values.
inline std::vector<std::string> optionsFor(const EffectRow& effect, const EffectValues& values,
                                           const FileFor& fileFor) {
  std::vector<std::string> words;
  for (std::size_t i = 0; i < effect.settings.size(); ++i) {
    const Setting& setting = effect.settings[i];
    const bool isFlag = setting.kind == SettingKind::Flag;
    if (isFlag && !values.flag(i)) continue;
    if (values.number(i) == kMiddlePoint || !hasPart(setting, values)) continue;
    words.push_back("--" + std::string(setting.option));
    if (isFlag) continue;
    const int value = values.number(i);
    words.push_back(isFile(setting, value) ? fileFor(setting, values) : textOfValue(setting, value));
  }
  return words;
}

// The words that gpicon cannot do without, with the usual values.
inline std::vector<std::string> neededOptions(const EffectRow& effect, const FileFor& fileFor) {
  std::vector<std::string> words;
  for (const Setting& setting : effect.settings)
    if (setting.isRequired || (effect.needs != NeededOptions::None && words.empty())) {
      words.push_back("--" + std::string(setting.option));
      if (setting.kind == SettingKind::Flag) continue;
      words.push_back(isFile(setting, setting.first) ? fileFor(setting, usualValues(effect))
                                                     : textOfValue(setting, setting.first));
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
