// The side panel of effects that are settings and a pure function: their controls, generated from the settings, and one
// sample. A panel shows one of its effects at a time.
#pragma once

#include "document/EditState.h"
#include "effects/EffectPanel.h"
#include "effects/EffectTable.h"

#include <map>
#include <vector>

namespace gp {

class SettingsPanel final : public EffectPanel {
 public:
  // `effects` are those of one panel; there is at least one. The rows must outlive the panel.
  SettingsPanel(EffectFrame& frame, std::vector<const EffectRow*> effects);

  // `effect` is one of the panel's.
  void open(const EffectRow& effect) override;

  // The effects of the panel, and the one that it shows.
  const std::vector<const EffectRow*>& effects() const { return effects_; }
  const EffectRow& effect() const { return *effect_; }
  // True for a setting of the effect that the panel shows.
  bool shows(const Setting& setting) const;

  // What the control of a setting shows: the index in its list, or 1 for a ticked box. Choices are kept until the
  // program ends. `choose` ignores a choice that the control does not have and a setting of another panel.
  int choiceOf(const Setting& setting) const { return choices_.at(&setting); }
  void choose(const Setting& setting, int choice);
  // The colour that a box of an Rgb selects. It can change while the panel is visible.
  const Color& currentColor() const { return frame().state().mCurrentColor; }
  // The values of the shown effect's settings.
  EffectValues values() const;

 protected:
  IconImage apply(const IconImage& icon) const override { return effect_->apply(icon, values()); }
  bool mayProceed() override;

 private:
  const std::vector<const EffectRow*> effects_;
  const EffectRow* effect_;
  std::map<const Setting*, int> choices_;
};

}  // namespace gp
