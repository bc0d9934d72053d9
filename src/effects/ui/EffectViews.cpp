#include "effects/ui/EffectViews.h"

#include "effects/ButtonizePanel.h"
#include "effects/ConfinePanel.h"
#include "effects/DisabledImagePanel.h"
#include "effects/Effects.h"
#include "effects/ShadesPanel.h"
#include "effects/ui/ButtonizePanelView.h"
#include "effects/ui/ConfinePanelView.h"
#include "effects/ui/DisabledImagePanelView.h"
#include "effects/ui/ShadesPanelView.h"

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

constexpr std::array kViews{kRowOf<ButtonizePanelView, ButtonizePanel>, kRowOf<ShadesPanelView, ShadesPanel>,
                            kRowOf<DisabledImagePanelView, DisabledImagePanel>, kRowOf<ConfinePanelView, ConfinePanel>};

}  // namespace

EffectPanelView* makeEffectView(int number, QWidget* parent, const Effects& effects) {
  const auto* row = std::ranges::find(kViews, number, &ViewRow::number);
  return row == kViews.end() ? nullptr : row->make(parent, effects);
}

}  // namespace gp
