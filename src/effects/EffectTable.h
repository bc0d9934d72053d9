// All effects, one row each. Menu entries, side panels, the options and the help of gpicon, and tests come from these
// rows. An effect's row is defined beside its function and listed in EffectTable.cpp.
#pragma once

#include "document/IconImage.h"
#include "effects/EffectValues.h"
#include "effects/Setting.h"

#include <span>
#include <string_view>

namespace gp {

struct EffectMenuEntry {
  int index;            // of mnuEffectsSub
  const char* caption;  // with "&"
  const char* key;      // "Ctrl+F4", empty for none
  const char* picture;  // name of the entry's picture, empty for none
};

// The side panel of an effect. Several effects may share one, which then shows the settings of one of them at a time.
struct EffectPanelPlace {
  int number;                    // of fraPanel
  const char* sample = "";       // objectName of the sample
  const char* sampleLabel = "";  // objectName of the label that shows the title; empty for the plain label "Sample"
  bool isGenerated = true;       // from the settings of its effects; false for a panel with its own class
};

// The side panel of effects that do not name another one.
inline constexpr EffectPanelPlace kSharedPanel{13, "picEffectsSample", "lblEffectsSample"};

// Returns the icon with the effect. `values` are those of the row's settings; the result has the size of `icon`.
using EffectFunction = IconImage (*)(const IconImage& icon, const EffectValues& values);

// Returns why the icon does not take the effect with these values; null when it takes it.
using EffectRefusal = const char* (*)(const IconImage& icon, const EffectValues& values);

struct EffectRow {
  const char* name = "";   // of gpicon's effect
  const char* title = "";  // shown on the side panel
  const char* help = "";   // one line for the help of gpicon
  EffectMenuEntry menu;
  EffectPanelPlace panel = kSharedPanel;
  std::span<const Setting> settings = {};
  EffectFunction apply = nullptr;   // null for an effect that the program does not have yet
  EffectRefusal refusal = nullptr;  // null for an effect that every icon takes
};

// Why the icon does not take the effect with these values; null when it takes it.
inline const char* refusalOf(const EffectRow& effect, const IconImage& icon, const EffectValues& values) {
  return effect.refusal ? effect.refusal(icon, values) : nullptr;
}

// Effects that the program does not have yet are included.
std::span<const EffectRow* const> effectTable();
// The effect that gpicon knows by this name, and the one of an index of mnuEffectsSub. Null when there is none or the
// program does not have it yet.
const EffectRow* findEffect(std::string_view name);
const EffectRow* findEffect(int menuIndex);

}  // namespace gp
