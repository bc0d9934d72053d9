// The rows of the commands that print what files contain.
#pragma once

#include "cli/CommandTable.h"
#include "cli/Subcommands.h"

#include <array>

namespace gp::cli {

inline constexpr std::array kLookingCommandRows = std::to_array<Command>({
    {.name = "probe",
     .usage = "probe [--json] FILE...",
     .summary = "kind, size and depth of a file, as numbers",
     .help = "Prints the file's name, a tab, and nine numbers joined by \"/\": kind (0 no icon\n"
             "file, 1 one entry, 2 several), usable entries as far as the scan went, chosen\n"
             "entry, its width, height, colors and bits by the directory, colors and bits by\n"
             "the bitmap header. Colors are -1 for true color. A PNG picture states all of them\n"
             "itself, as 32 bits with alpha and 24 without. Of several entries the first\n"
             "of 32x32 is chosen, or a later one of 32x32 with 8 bits, which ends the scan.\n"
             "Of a cursor file, which its content shows and not its name, there are three\n"
             "numbers: 1 for a cursor that the editor takes, its colors and its bits by the\n"
             "bitmap header; 0/0/0 for others. Of an animated cursor, a file that begins with\n"
             "RIFF or is named .ani, the number is that of its frames as they are played, or 0 if\n"
             "it cannot be read. With --json, the numbers as an array.",
     .example = "probe *.ico",
     .run = runProbe},
    {.name = "list",
     .usage = "list [--json] FILE...",
     .summary = "one line per image of a file",
     .help =
         "Prints one line per image, parted by tabs: file, index, size, colors and bits by\n"
         "the directory, colors and bits by the bitmap header (0 for PNG), bytes, offset,\n"
         "encoding (bmp or png), usable or unusable. A width or height of 0 in the file is\n"
         "256. Usable images are square, of 16, 24, 32 or 48 pixels, and either bitmaps of\n"
         "1, 4, 8, 24 or 32 bits or PNG pictures, whose size is their own. With --json, one\n"
         "array with an object for each file; bytes of a name that are not UTF-8 become \"\\udc80\" to \"\\udcff\".\n"
         "Lines of cursor files end with two more columns, the hot spot's x and y (with\n"
         "--json: kind \"cur\", \"hotspotX\", \"hotspotY\"). A cursor's directory states no\n"
         "depth: both pairs of colors and bits are the bitmap header's. Usable is a first\n"
         "image of 32x32 at offset 22 with its hot spot inside. Of an animated cursor, a line\n"
         "for the film comes first: file, ani, title, artist, frames, steps, rate and flags by\n"
         "its header, the tables of rates and of the sequence, and what the editor opens: the\n"
         "jiffies of each frame, the hot spot's x and y (\"-\" for what is missing). Lines of its\n"
         "images state, of the picture that is drawn: file, index, size, colors, bits, bytes\n"
         "and offset of the frame, encoding, usable or unusable, and the hot spot.",
     .example = "list --json app.ico | python3 -m json.tool",
     .run = runList},
    {.name = "info",
     .usage = "info FILE [INDEX] [--json]",
     .summary = "the properties of images, and their bytes when saved",
     .help = "Prints one line for the image, without INDEX for each image that the editor opens,\n"
             "parted by tabs: file, index, size, colors and bits by the directory, colors and bits\n"
             "by the bitmap header, present colors and bits, number of colors used, and the bytes\n"
             "when saved to a single-icon file. Colors are -1 for true color. Transparent pixels\n"
             "count with their black. With --json, an array of objects.",
     .example = "info app.ico 0",
     .run = runInfo},
    {.name = "check",
     .usage = "check [--json] FILE...",
     .summary = "what directory, headers and pixels of a file contradict each other in",
     .help = "Prints one line for each place where directory, headers and pixels of an icon or\n"
             "cursor file contradict each other, parted by tabs: file, index, what, and what\n"
             "the directory, the header and the pixels state of it (\"-\" for nothing). What is\n"
             "  width, height  the size; PNG pictures are asked too\n"
             "  colors, bits   the depth; last, the depth that the pixels need\n"
             "  bytes          fewer stated than the image needs; \"incomplete\" for a cut PNG\n"
             "  png            \"damaged\": a PNG picture that cannot be read\n"
             "  offset         inside the directory; last, where that ends\n"
             "  end            behind the file's end; last, the file's size\n"
             "  pixels         palette index beyond the colors that the header states\n"
             "  alpha          pixels that the alpha calls transparent (0) and the mask painted,\n"
             "                 which open opaque; last, their number\n"
             "  shared         the same bytes as another image\n"
             "  same           size and colors of an image before it\n"
             "  hotspotX, hotspotY  outside the picture; last, its width or height\n"
             "  count          more entries stated than the file holds (index \"-\")\n"
             "Old icons that state colors but no bits are healthy. Exit status 1 if there is any.\n"
             "Of an animated cursor, the third value is what its header states and the last one\n"
             "what it holds: size (of the file without 8 bytes, or whole), frames, steps, rates,\n"
             "sequence (an index beyond the frames, or flag and table without each other: 1 and 0),\n"
             "end and picture (a frame that is cut off or cannot be drawn). Then comes the message\n"
             "of the editor if it does not open the file, or what a save will not keep of it:\n"
             "\"Will not be kept: \" and alpha, sequence, other sizes, rates above 90.\n"
             "With --json, one array with an object for each, and null for nothing.",
     .example = "check --json app.ico",
     .run = runCheck},
    {.name = "show",
     .usage = "show FILE... [--color WHEN] [--width COLUMNS]",
     .summary = "the images of a file as colored text",
     .help = "Prints each image of every size that can be decoded: a line with the file, index and\n"
             "size, parted by tabs, and lines of half blocks, two pixels in each. Pixels with an\n"
             "alpha below 128 show the ground. Images wider than COLUMNS (80 if not given) are\n"
             "scaled down. Colors are 24-bit sequences of terminals. WHEN is always, never, or auto\n"
             "(if not given): in a terminal, unless NO_COLOR is set. Without colors, the blocks\n"
             "show which pixels are not transparent.",
     .example = "show app.ico --width 48",
     .run = runShow},
});

}  // namespace gp::cli
