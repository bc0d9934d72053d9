// gpicon effect --all: applies an effect to all images of many files, which are written to a folder.
#pragma once

#include "cli/ChosenEffect.h"
#include "cli/Console.h"
#include "cli/OutputFolder.h"

namespace gp::cli {

// Parses "FILE... NAME -d DIR [--force] [--max-size MB]" and applies the effect. Returns the exit status.
int runEffectOnAll(const Arguments& arguments, const GivenOptions& options);

// Writes each file under its name into the folder, with every image that takes the effect replaced as `replace` does
// it. Returns kBadUsage, after a complaint, for an effect that changes the size of icons, otherwise the exit status.
int applyToAll(const ChosenEffect& effect, const FolderArguments& given);

}  // namespace gp::cli
