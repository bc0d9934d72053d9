// The files that options of gpicon's effects name: icons to blend in, and patterns.
#pragma once

#include "cli/EffectOptions.h"

namespace gp::cli {

// Reads the file that one of the effect's options names, if there is one, and sets the pictures of the values. False,
// after an error message, for a file that the effect cannot use.
bool readEffectFile(const EffectRow& effect, const GivenOptions& options, EffectValues& values);

}  // namespace gp::cli
