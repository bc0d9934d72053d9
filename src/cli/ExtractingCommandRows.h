// The rows of the commands that find icons in files of other kinds.
#pragma once

#include "cli/CommandTable.h"
#include "cli/Subcommands.h"

#include <array>

namespace gp::cli {

inline constexpr std::array kExtractingCommandRows = std::to_array<Command>({
    {.name = "extract",
     .usage = "extract [--list | --json] FILE... [--jobs N]\n"
              "            | FILE... -d DIR [--index N] [--size 16|32 | --group] [--jobs N] [--force]\n"
              "            [--max-size MB]",
     .summary = "the icons inside programs, libraries and animated cursors",
     .help = "Prints one line per icon, parted by tabs: file, index, its number as \"#101\" or its\n"
             "name, and its images as \"32x32x4 16x16x8\": width, height and bits by its directory.\n"
             "Programs and libraries are .exe, .dll, .icl, .mun and any other file of the PE or NE\n"
             "format. Icons with a name come first, both ascending; of several languages the\n"
             "first in the file counts, and cursors are not listed. An icon or cursor file is one\n"
             "icon, and an animated cursor one for each frame as it is played. The content of a\n"
             "FILE decides what it is.\n"
             "With --json, one array with an object for each FILE: kind (pe, ne, ico, cur, ani or\n"
             "lnk) and icons, each with index, id or name, language, and images as list prints\n"
             "them; of pe and ne they have an id, and encoding is none where an image is missing. A shell\n"
             "link has target, iconFile and iconIndex as it states them, and no icons.\n"
             "With -d, writes each icon, or with --index one, as NAME_INDEX.ico: one picture of\n"
             "32x32, or 16x16 with --size, of the image that is nearest to it, with its alpha. With\n"
             "--group, all images, their bytes as they are, as one file; a missing image costs a\n"
             "complaint and not the others, and cursors and their frames are named .cur. NAME,\n"
             "DIR, --force and --max-size are as with unpack. --jobs is the number of FILEs at\n"
             "once, all cores if not given; the output is the same.",
     .example = "extract setup.exe --group -d icons",
     .run = runExtract},
    {.name = "scan",
     .usage = "scan [--json] FILE...\n"
              "            | FILE... -d DIR [--index N] [--force] [--max-size MB]",
     .summary = "icons in any file, by their bitmap headers",
     .help = "Finds icons in a file of any kind by what their bitmap headers look like: square, of\n"
             "16, 24, 32 or 48 pixels, in 1, 4, 8, 24 or 32 bits, all their bytes there. Prints one\n"
             "line for each, parted by tabs: file, index, size, bits, offset in the file and bytes.\n"
             "With --json, one array with an object for each FILE. With -d, writes each, or with\n"
             "--index one, as NAME_INDEX.ico; NAME, DIR, --force and --max-size are as with unpack.",
     .example = "scan old.icl -d icons",
     .run = runScan},
    {.name = "find",
     .usage = "find FOLDER [--recursive] [--pattern LIST] [--jobs N]\n"
              "            | FOLDER -d DIR [--recursive] [--pattern LIST] [--small] [--serial] [--max N]\n"
              "            [--jobs N] [--force]",
     .summary = "the programs of a folder that have icons, and their icons",
     .help = "Prints one line for each file of FOLDER with icons inside, parted by a tab: file and\n"
             "number of icons. LIST has the patterns of the names, \"*.exe\" if not given, in any case.\n"
             "With --recursive, the folders in it come first, from the last to the first; links to\n"
             "folders are not followed. Files without icons and folders that cannot be read are\n"
             "passed over.\n"
             "With -d, saves the icons as the editor does, one picture of 32x32 each, or 16x16 with\n"
             "--small: BASE<i>_x.ico with BASE of the program's name and i from 0, or with --serial\n"
             "<n>_BASE.ico with n from 0 over all of them. DIR must be there. At most N are saved\n"
             "with --max. Files that are there already, and a second program of one name, are kept\n"
             "and complained of; --force replaces the former. The last line is \"Total: N icons\".\n"
             "--jobs is as with extract.",
     .example = "find ~/.wine --recursive --pattern \"*.exe;*.dll\" -d icons --serial",
     .run = runFind},
});

}  // namespace gp::cli
