// The rows of the commands on animated cursors and on X cursor files.
#pragma once

#include "cli/CommandTable.h"
#include "cli/Subcommands.h"

#include <array>

namespace gp::cli {

inline constexpr std::array kAnimatedCommandRows = std::to_array<Command>({
    {.name = "xcursor",
     .usage = "xcursor FILE -o OUT",
     .summary = "an X cursor file from a cursor or an animated cursor",
     .help = "Converts FILE, a .cur or .ani file of any sizes, depths and number of frames, to what\n"
             "X11 and Wayland desktops show: every image of every size, of several with one size\n"
             "the deepest, with its alpha and its own hot spot. The nominal size is the longer side.\n"
             "Steps are written as they are played, a jiffy as 1/60 second. Without alpha, pixels\n"
             "are opaque where the mask is black; pixels that invert the screen become opaque, in\n"
             "the color that they have on white.",
     .example = "xcursor busy.ani -o cursors/watch",
     .run = runXcursor},
    {.name = "unxcursor",
     .usage = "unxcursor FILE -o OUT.cur|OUT.ani [--size N]",
     .summary = "a cursor or an animated cursor from an X cursor file",
     .help = "Converts FILE, an X cursor file, to 32 bits with alpha. The ending of OUT decides\n"
             "between a cursor, which cannot move, and an animated cursor, whose frames each have\n"
             "an image of every size. With - for OUT, a file that moves becomes an animated cursor.\n"
             "  --size  only the nominal size that is nearest to N\n"
             "Refused are images of more than 256x256, and sizes of one file that move with\n"
             "different times. An .ani file states the times in jiffies, and also in milliseconds,\n"
             "from which xcursor makes the same times again.",
     .example = "unxcursor /usr/share/icons/Adwaita/cursors/watch -o watch.ani --size 32",
     .run = runUnxcursor},
});

}  // namespace gp::cli
