#include "shell/EffectCommands.h"

#include "effects/EffectTable.h"
#include "shell/CommandBodies.h"
#include "shell/CommandNeeds.h"

#include <algorithm>

namespace gp {
namespace {

constexpr const char* kMenu = "mnuEffects";

Command commandOf(const EffectRow& effect) {
  const EffectMenuEntry& entry = effect.menu;
  return {"mnuEffectsSub", entry.index, kMenu,       entry.caption, entry.key,
          entry.picture,   needs::icon, Commits::No, nullptr,       bodies::callWithIndex<&Effects::open>};
}

}  // namespace

std::vector<Command> withEffects(std::span<const Command> commands) {
  std::vector<Command> rows(commands.begin(), commands.end());
  for (const EffectRow* effect : effectTable()) {
    const auto next = std::ranges::find_if(rows, [effect](const Command& row) {
      return row.parent == std::string_view(kMenu) && row.index > effect->menu.index;
    });
    rows.insert(next, commandOf(*effect));
  }
  return rows;
}

}  // namespace gp
