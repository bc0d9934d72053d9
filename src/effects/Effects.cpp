#include "effects/Effects.h"

#include "effects/ButtonizePanel.h"
#include "effects/ConfinePanel.h"
#include "effects/DisabledImagePanel.h"
#include "effects/ShadesPanel.h"

#include <algorithm>
#include <array>
#include <span>

namespace gp {
namespace {

struct EffectRow {
  std::span<const int> commands;  // indices of mnuEffectsSub
  int number;                     // of its Panel
  std::unique_ptr<EffectPanel> (*make)(EffectFrame& frame);
};

template <class Panel>
constexpr EffectRow kRowOf{Panel::kCommands, Panel::kNumber, [](EffectFrame& frame) -> std::unique_ptr<EffectPanel> {
                             return std::make_unique<Panel>(frame);
                           }};

// Each effect is one row.
constexpr std::array kEffects{kRowOf<ButtonizePanel>, kRowOf<ShadesPanel>, kRowOf<DisabledImagePanel>,
                              kRowOf<ConfinePanel>};

const EffectRow* findCommand(int command) {
  const auto* row = std::ranges::find_if(kEffects, [command](const EffectRow& effect) {
    return std::ranges::find(effect.commands, command) != effect.commands.end();
  });
  return row == kEffects.end() ? nullptr : row;
}

}  // namespace

Effects::Effects(const Context& context, Document& document, UndoHistory& history)
    : frame_(context, document, history) {
  for (const EffectRow& row : kEffects) panels_.push_back(row.make(frame_));
}

bool Effects::has(int command) const { return findCommand(command) != nullptr; }

void Effects::open(int command) {
  if (const EffectRow* row = findCommand(command)) find(row->number)->open(command);
}

void Effects::proceed(int number) {
  if (EffectPanel* panel = find(number)) panel->proceed();
}

EffectPanel* Effects::find(int number) const {
  const auto panel = std::ranges::find(panels_, number, &EffectPanel::number);
  return panel == panels_.end() ? nullptr : panel->get();
}

}  // namespace gp
