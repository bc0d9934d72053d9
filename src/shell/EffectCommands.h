// The entries of the Effects menu that come from the table of effects.
#pragma once

#include "shell/CommandTable.h"

#include <vector>

namespace gp {

// Returns the commands with a row for each effect, in the place that its index gives it in the Effects menu.
std::vector<Command> withEffects(std::span<const Command> commands);

}  // namespace gp
