#include "effects/EffectTable.h"

#include <algorithm>
#include <iterator>

namespace gp {

// Each is defined beside its function.
extern const EffectRow kButtonize, kEmbossed, kEngraved, kRaised, kShadowed, kDisabledImage;
extern const EffectRow kText, kSphere, kGradient;
extern const EffectRow kBrightness, kSharpenSoften, kColorTheme, kAntialias, kCast, kGrayscale, kInvert, kSwapElements;
extern const EffectRow kBlend, kTexture;
extern const EffectRow kSharpen, kSoften, kSwap;
extern const EffectRow kResize, kRotate, kFlip, kTurn;

namespace {

// In the order of the menu. The comments are the indices of mnuEffectsSub.
constexpr const EffectRow* kEffects[] = {
    &kText,           // 0
    &kSphere,         // 2
    &kButtonize,      // 3
    &kGradient,       // 4
    &kBrightness,     // 6
    &kSharpenSoften,  // 7
    &kAntialias,      // 8
    &kColorTheme,     // 9
    &kEmbossed,       // 11
    &kEngraved,       // 12
    &kRaised,         // 13
    &kShadowed,       // 14
    &kCast,           // 16
    &kGrayscale,      // 17
    &kInvert,         // 18
    &kSwapElements,   // 20
    &kDisabledImage,  // 21
    &kBlend,          // 23
    &kTexture,        // 24
};

// Effects of gpicon only: the editor has them under another row of its menu, or in another menu.
constexpr const EffectRow* kWithoutPanel[] = {&kSharpen, &kSoften, &kSwap, &kResize, &kRotate, &kFlip, &kTurn};

const EffectRow* firstOf(auto&& effects, auto matches) {
  const auto found = std::ranges::find_if(effects, [&](const EffectRow* effect) { return matches(*effect); });
  return found == std::end(effects) ? nullptr : *found;
}

}  // namespace

std::span<const EffectRow* const> effectTable() { return kEffects; }

std::vector<const EffectRow*> commandLineEffects() {
  std::vector<const EffectRow*> effects;
  std::ranges::copy_if(kEffects, std::back_inserter(effects),
                       [](const EffectRow* effect) { return effect->apply && *effect->name; });
  std::ranges::copy(kWithoutPanel, std::back_inserter(effects));
  return effects;
}

const EffectRow* findEffect(std::string_view name) {
  return firstOf(commandLineEffects(), [name](const EffectRow& effect) { return effect.name == name; });
}

const EffectRow* findEffect(int menuIndex) {
  return firstOf(kEffects, [menuIndex](const EffectRow& effect) { return effect.menu.index == menuIndex; });
}

}  // namespace gp
