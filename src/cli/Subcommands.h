// The subcommands of gpicon. Each parses its arguments and returns the exit status. For a bad file it prints one line
// on stderr, continues with the other files and returns 1.
#pragma once

#include "cli/Console.h"

namespace gp::cli {

// Making.
int runMake(const Arguments& arguments);
// Looking.
int runProbe(const Arguments& arguments);
int runList(const Arguments& arguments);
int runCheck(const Arguments& arguments);
int runInfo(const Arguments& arguments);
int runShow(const Arguments& arguments);
// Taking apart.
int runUnpack(const Arguments& arguments);
int runSplit(const Arguments& arguments);
int runExtract(const Arguments& arguments);
int runFind(const Arguments& arguments);
int runScan(const Arguments& arguments);
int runBmp(const Arguments& arguments);
int runShades(const Arguments& arguments);
// Writing.
int runResave(const Arguments& arguments);
int runReduce(const Arguments& arguments);
int runEffect(const Arguments& arguments);
int runAlpha(const Arguments& arguments);
int runTo24(const Arguments& arguments);
int runReplace(const Arguments& arguments);
int runAdd(const Arguments& arguments);
int runRemove(const Arguments& arguments);
int runReorder(const Arguments& arguments);
int runSalvage(const Arguments& arguments);
int runStrip(const Arguments& arguments);
// Animated cursors, and the cursors of X11 and Wayland.
int runAni(const Arguments& arguments);
int runXcursor(const Arguments& arguments);
int runUnxcursor(const Arguments& arguments);

// About gpicon.
int runManual(const Arguments& arguments);
int runCompletions(const Arguments& arguments);

}  // namespace gp::cli
