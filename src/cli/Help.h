// What gpicon prints about itself.
#pragma once

#include "cli/CommandTable.h"

namespace gp::cli {

// Without arguments describes all commands, with the name of one this one. Returns the exit status.
int runHelp(const Arguments& arguments);

void printHelp();
// The usage of a command, what it does, and an example.
void printHelpOf(const Command& command);

// How options, colours, files and exit statuses are treated by all commands.
const char* commonHelp();

}  // namespace gp::cli
