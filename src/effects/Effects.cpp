#include "effects/Effects.h"

#include "drawing/Drawing.h"
#include "effects/BlendPanel.h"
#include "effects/BrightnessPanel.h"
#include "effects/ConfinePanel.h"
#include "effects/GradientPanel.h"
#include "effects/ResizePanel.h"
#include "effects/SettingsPanel.h"
#include "effects/SpherePanel.h"
#include "effects/TextPanel.h"
#include "effects/TexturePanel.h"
#include "effects/ThemePanel.h"

#include <algorithm>

namespace gp {

// Panels with their own class come first; panels of settings follow from the table of effects.
Effects::Effects(const Context& context, Document& document, Drawing& drawing, const EffectPorts& ports)
    : frame_(context, document, drawing.history) {
  panels_.push_back(std::make_unique<TextPanel>(frame_, ports.dialog, ports.text, drawing));
  panels_.push_back(std::make_unique<BrightnessPanel>(frame_));
  panels_.push_back(std::make_unique<ThemePanel>(frame_, ports.dialog));
  panels_.push_back(std::make_unique<ConfinePanel>(frame_));
  panels_.push_back(std::make_unique<ResizePanel>(frame_));
  panels_.push_back(std::make_unique<SpherePanel>(frame_, ports.dialog));
  panels_.push_back(std::make_unique<GradientPanel>(frame_, ports.dialog));
  panels_.push_back(std::make_unique<BlendPanel>(frame_));
  panels_.push_back(std::make_unique<TexturePanel>(frame_, ports.dialog, ports.pictures));
  for (const EffectRow* effect : effectTable())
    if (effect->panel.isGenerated && !find(effect->panel.number)) addSettingsPanel(effect->panel.number);
}

void Effects::addSettingsPanel(int number) {
  std::vector<const EffectRow*> effects;
  for (const EffectRow* effect : effectTable())
    if (effect->panel.number == number) effects.push_back(effect);
  panels_.push_back(std::make_unique<SettingsPanel>(frame_, std::move(effects)));
}

void Effects::open(int menuIndex) {
  if (const EffectRow* effect = findEffect(menuIndex)) find(effect->panel.number)->open(*effect);
}

void Effects::proceed(int number) {
  if (EffectPanel* panel = find(number)) panel->proceed();
}

EffectPanel* Effects::find(int number) const {
  const auto panel = std::ranges::find(panels_, number, &EffectPanel::number);
  return panel == panels_.end() ? nullptr : panel->get();
}

SettingsPanel* Effects::settingsPanel(int number) const { return dynamic_cast<SettingsPanel*>(find(number)); }

}  // namespace gp
