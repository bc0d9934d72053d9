// The effect that a call of gpicon names, with its values.
#pragma once

#include "cli/EffectOptions.h"
#include "cli/EntryLoading.h"

#include <optional>
#include <string>

namespace gp::cli {

struct ChosenEffect {
  const EffectRow& row;
  EffectValues values;
};
// Nothing, after a complaint, for a name that no effect has, for options that it does not take, and for a file that one
// of them names and that it cannot use; `status` is then the exit status.
std::optional<ChosenEffect> chooseEffect(const std::string& name, const GivenOptions& options, int& status);

// Why an icon does not take the effect; null when it takes it.
const char* reasonAgainst(const ChosenEffect& effect, const LoadedIcon& loaded);
// Returns the icon with the effect, which it must take.
IconImage applied(const ChosenEffect& effect, const IconImage& icon);

}  // namespace gp::cli
