// All effects, one row each. Menu entries, side panels, the options and the help of gpicon, and tests come from these
// rows. An effect's row is defined beside its function and listed in EffectTable.cpp.
#pragma once

#include "document/IconImage.h"
#include "effects/EffectValues.h"
#include "effects/Setting.h"
#include "platform/ports/MessageBoxes.h"

#include <span>
#include <string_view>
#include <vector>

namespace gp {

struct EffectMenuEntry {
  int index = -1;            // of mnuEffectsSub; -1 for none
  const char* caption = "";  // with "&"
  const char* key = "";      // "Ctrl+F4", empty for none
  const char* picture = "";  // name of the entry's picture, empty for none
};

// The side panel of an effect. Several effects may share one, which then shows the settings of one of them at a time.
struct EffectPanelPlace {
  int number;                    // of fraPanel
  const char* sample = "";       // objectName of the sample
  const char* sampleLabel = "";  // objectName of the label that shows the title; empty for the plain label "Sample"
  bool isGenerated = true;       // from the settings of its effects; false for a panel with its own class
  const char* remark = "";       // below the settings
};

// The side panel of effects that do not name another one.
inline constexpr EffectPanelPlace kSharedPanel{13, "picEffectsSample", "lblEffectsSample"};

// Returns the icon with the effect. `values` are those of the row's settings. The result has the size of `icon` unless
// the row says otherwise.
using EffectFunction = IconImage (*)(const IconImage& icon, const EffectValues& values);

// Why an icon does not take an effect; without a text when it takes it.
struct Refusal {
  constexpr Refusal(const char* reason = nullptr, BoxIcon boxIcon = BoxIcon::None) : text(reason), icon(boxIcon) {}

  const char* text;
  BoxIcon icon;  // of the editor's box
};
using EffectRefusal = Refusal (*)(const IconImage& icon, const EffectValues& values);

// How many of its options an effect must be given by gpicon, besides those that are required by themselves.
enum class NeededOptions { None, AtLeastOne, ExactlyOne };

struct EffectRow {
  const char* name = "";   // of gpicon's effect; empty when gpicon has other rows for it
  const char* title = "";  // shown on the side panel
  const char* help = "";   // one line for the help of gpicon
  EffectMenuEntry menu = {};
  EffectPanelPlace panel = kSharedPanel;
  std::span<const Setting> settings = {};
  EffectFunction apply = nullptr;   // null for one that the class of its panel makes, and that gpicon does not have
  EffectRefusal refusal = nullptr;  // null for an effect that every icon takes with all values
  NeededOptions needs = NeededOptions::None;
  bool takesAlpha = false;   // the icon may have alpha values, which the effect passes on; false: they are refused
  bool changesSize = false;  // the result has another size, so gpicon does not apply it to all images of a file
};

// Why the icon does not take the effect with these values.
inline Refusal refusalOf(const EffectRow& effect, const IconImage& icon, const EffectValues& values) {
  return effect.refusal ? effect.refusal(icon, values) : Refusal();
}

// The effects of the menu.
std::span<const EffectRow* const> effectTable();
// The effects of gpicon.
std::vector<const EffectRow*> commandLineEffects();
// The effect that gpicon knows by this name, and the one of an index of mnuEffectsSub. Null when there is none.
const EffectRow* findEffect(std::string_view name);
const EffectRow* findEffect(int menuIndex);

}  // namespace gp
