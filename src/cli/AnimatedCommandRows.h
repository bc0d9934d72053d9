// The rows of the commands on animated cursors and on X cursor files.
#pragma once

#include "cli/CommandTable.h"
#include "cli/Subcommands.h"

#include <array>

namespace gp::cli {

inline constexpr std::array kAnimatedCommandRows = std::to_array<Command>({
    {.name = "ani",
     .usage = "ani build FRAME... -o OUT.ani [--jiffies J[,J...]] [--hotspot X,Y]\n"
              "            ani set FILE.ani [--jiffies J] [--jiffies-of N J] [--below N] [--above N]\n"
              "            [--remove N] [--up N] [--down N] [--load N ICON.ico] [--take N FILE]\n"
              "            [--hotspot X,Y] [-o OUT.ani]\n"
              "            ani icon FILE.ani N OUT.ico",
     .summary = "makes and changes animated cursors, and takes frames out",
     .help = "build makes an animated cursor of icon and cursor files of 32x32 without alpha, each a\n"
             "frame of 30 jiffies, or of J: one for all, or one for each frame. The hot spot is 0,0\n"
             "without --hotspot. A jiffy of 1 to 90 is 1/60 second.\n"
             "set applies its options from left to right, each as often as it is given, and saves\n"
             "the file. N counts the frames from 1; there are 70 at most.\n"
             "  --jiffies     of all frames; --jiffies-of those of one\n"
             "  --below       a blank frame below frame N; --above one above it\n"
             "  --remove      removes frame N\n"
             "  --up          swaps frame N with the one above; --down with the one below\n"
             "  --load        ICON.ico becomes the picture of frame N\n"
             "  --take        the same by way of the editor, which also opens cursors and files with\n"
             "                several icons, and takes its gray of C0C0C0 for the ground\n"
             "What a film does not keep of FILE.ani, such as alpha, is named on stderr.\n"
             "icon saves frame N as an icon. The first frame of a film cannot be blank.",
     .example = "ani set busy.ani --remove 2 --jiffies 6 --hotspot 15,15",
     .run = runAni},
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
