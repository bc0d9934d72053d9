#include "effects/EffectTable.h"

#include <algorithm>
#include <iterator>

namespace gp {

// Each is defined beside its function.
extern const EffectRow kButtonize, kEmbossed, kEngraved, kRaised, kShadowed, kDisabledImage;
extern const EffectRow kGradient, kSphere;

namespace {

// Not part of the program yet: a menu entry that is disabled.
constexpr EffectRow kText{.menu = {0, "&Text ....", "Ctrl+F2", "text"}, .panel = {5}};
constexpr EffectRow kBrightness{.menu = {6, "&Adjust Brightness Of Colors ....", "Ctrl+F6", "brightness"},
                                .panel = {9}};
constexpr EffectRow kSharpen{.menu = {7, "Shar&pen / Soften Image ....", "Ctrl+F7", ""}, .panel = {10}};
constexpr EffectRow kAntialias{.menu = {8, "A&ntialias ....", "Ctrl+F8", ""}, .panel = {11}};
constexpr EffectRow kColorTheme{.menu = {9, "Set Color The&me ....", "Ctrl+F9", ""}, .panel = {12}};
constexpr EffectRow kCast{.menu = {16, "&Cast ....", "", ""}};
constexpr EffectRow kGrayscale{.menu = {17, "&Grayscale ....", "", ""}};
constexpr EffectRow kInvert{.menu = {18, "&Invert / Negative ....", "", ""}};
constexpr EffectRow kSwapElements{.menu = {20, "Swap Elements Of Pi&xels ....", "", ""}, .panel = {14}};
constexpr EffectRow kBlend{.menu = {23, "Bl&end In Another Icon ....", "", ""}, .panel = {16}};
constexpr EffectRow kTexture{.menu = {24, "Texturi&ze Painted Surface ....", "", ""}, .panel = {17}};

// In the order of the menu. The comments are the indices of mnuEffectsSub.
constexpr const EffectRow* kEffects[] = {
    &kText,           // 0
    &kSphere,         // 2
    &kButtonize,      // 3
    &kGradient,       // 4
    &kBrightness,     // 6
    &kSharpen,        // 7
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

template <class Matches>
const EffectRow* findBuilt(Matches matches) {
  const auto* found =
      std::ranges::find_if(kEffects, [&](const EffectRow* effect) { return effect->apply && matches(*effect); });
  return found == std::end(kEffects) ? nullptr : *found;
}

}  // namespace

std::span<const EffectRow* const> effectTable() { return kEffects; }

const EffectRow* findEffect(std::string_view name) {
  return findBuilt([name](const EffectRow& effect) { return effect.name == name; });
}

const EffectRow* findEffect(int menuIndex) {
  return findBuilt([menuIndex](const EffectRow& effect) { return effect.menu.index == menuIndex; });
}

}  // namespace gp
