#include "effects/ui/EffectViews.h"

#include "effects/BlendPanel.h"
#include "effects/BrightnessPanel.h"
#include "effects/ConfinePanel.h"
#include "effects/Effects.h"
#include "effects/GradientPanel.h"
#include "effects/ResizePanel.h"
#include "effects/SettingsPanel.h"
#include "effects/SpherePanel.h"
#include "effects/TextPanel.h"
#include "effects/TexturePanel.h"
#include "effects/ThemePanel.h"
#include "effects/ui/BlendPanelView.h"
#include "effects/ui/BrightnessPanelView.h"
#include "effects/ui/ConfinePanelView.h"
#include "effects/ui/GradientPanelView.h"
#include "effects/ui/ResizePanelView.h"
#include "effects/ui/SettingsPanelView.h"
#include "effects/ui/SpherePanelView.h"
#include "effects/ui/TextPanelView.h"
#include "effects/ui/TexturePanelView.h"
#include "effects/ui/ThemePanelView.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

struct ViewRow {
  int number;
  EffectPanelView* (*make)(QWidget* parent, const Effects& effects);
};

template <class View, class Panel>
constexpr ViewRow kRowOf{Panel::kNumber, [](QWidget* parent, const Effects& effects) -> EffectPanelView* {
                           return new View(parent, effects.panel<Panel>());
                         }};

// Panels that have their own class.
constexpr std::array kViews{kRowOf<TextPanelView, TextPanel>,         kRowOf<SpherePanelView, SpherePanel>,
                            kRowOf<GradientPanelView, GradientPanel>, kRowOf<BrightnessPanelView, BrightnessPanel>,
                            kRowOf<ThemePanelView, ThemePanel>,       kRowOf<ConfinePanelView, ConfinePanel>,
                            kRowOf<BlendPanelView, BlendPanel>,       kRowOf<TexturePanelView, TexturePanel>,
                            kRowOf<ResizePanelView, ResizePanel>};

}  // namespace

EffectPanelView* makeEffectView(int number, QWidget* parent, const Effects& effects) {
  if (SettingsPanel* panel = effects.settingsPanel(number)) return new SettingsPanelView(parent, *panel);
  const auto* row = std::ranges::find(kViews, number, &ViewRow::number);
  return row == kViews.end() ? nullptr : row->make(parent, effects);
}

}  // namespace gp
