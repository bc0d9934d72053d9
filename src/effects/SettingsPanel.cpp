#include "effects/SettingsPanel.h"

#include <algorithm>
#include <utility>

namespace gp {

SettingsPanel::SettingsPanel(EffectFrame& frame, std::vector<const EffectRow*> effects)
    : EffectPanel(frame, effects.front()->panel.number), effects_(std::move(effects)), effect_(effects_.front()) {
  for (const EffectRow* effect : effects_)
    for (const Setting& setting : effect->settings) choices_.emplace(&setting, firstChoice(setting));
}

void SettingsPanel::open(const EffectRow& effect) {
  if (!frame().mayApply()) return;
  effect_ = &effect;
  show();
}

bool SettingsPanel::shows(const Setting& setting) const {
  return std::ranges::any_of(effect_->settings, [&setting](const Setting& shown) { return &shown == &setting; });
}

void SettingsPanel::choose(const Setting& setting, int choice) {
  const auto chosen = choices_.find(&setting);
  if (chosen == choices_.end() || choice < 0 || choice >= choiceCount(setting)) return;
  chosen->second = choice;
  preview();
}

bool SettingsPanel::mayProceed() { return frame().mayApply(*effect_, values()); }

EffectValues SettingsPanel::values() const {
  EffectValues values;
  for (const Setting& setting : effect_->settings)
    values.append(valueOfChoice(setting, choiceOf(setting), currentColor()));
  return values;
}

}  // namespace gp
