// The options of gpicon's effects: what the table of effects says about their names, values and help.
#pragma once

#include "cli/Console.h"
#include "effects/EffectTable.h"

#include <map>
#include <optional>
#include <string>

namespace gp::cli {

// The text of each option that is given, by its name without "--"; empty for a Flag.
using GivenOptions = std::map<std::string, std::string, std::less<>>;

// Takes the options that any effect has out of the arguments. Nothing, after a complaint, when one is given twice or
// without its value.
std::optional<GivenOptions> takeEffectOptions(Arguments& arguments);

// The values of the effect's settings: those that are given, otherwise the first ones. Nothing, after a complaint, for
// an option that the effect does not have, one that it needs and that is not given, one that has no part in the result,
// and a value that is not allowed.
std::optional<EffectValues> valuesOf(const EffectRow& effect, const GivenOptions& options);

// " [--color RRGGBB] [--style N]": all options, as the usage of the subcommand lists them.
std::string effectUsage();
// The lines of gpicon's help that describe the effects and their options.
std::string effectHelp();

}  // namespace gp::cli
