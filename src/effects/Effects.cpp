#include "effects/Effects.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

struct EffectRow {
  int index;
  void (*open)(Effects& effects);
};

constexpr std::array<EffectRow, 6> kEffects{{
    {3, [](Effects& effects) { effects.buttonize.open(); }},
    {11, [](Effects& effects) { effects.shades.open(ReliefKind::Embossed); }},
    {12, [](Effects& effects) { effects.shades.open(ReliefKind::Engraved); }},
    {13, [](Effects& effects) { effects.shades.open(ReliefKind::Raised); }},
    {14, [](Effects& effects) { effects.shades.open(ReliefKind::Shadowed); }},
    {21, [](Effects& effects) { effects.disabledImage.open(); }},
}};

}  // namespace

Effects::Effects(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, MessagePump& pump)
    : frame_(state, editor, display, boxes, pump) {}

void Effects::mnuEffectsSub(int index) {
  const auto row = std::ranges::find(kEffects, index, &EffectRow::index);
  if (row != kEffects.end()) row->open(*this);
}

}  // namespace gp
