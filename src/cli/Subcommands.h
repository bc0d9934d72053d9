// The subcommands of gpicon. Each takes its arguments and gives the exit status; a bad file costs one line on stderr
// and status 1, and the others are still done.
#pragma once

#include "cli/Console.h"

namespace gp::cli {

int runProbe(const Arguments& arguments);
int runList(const Arguments& arguments);
int runUnpack(const Arguments& arguments);
int runResave(const Arguments& arguments);

}  // namespace gp::cli
