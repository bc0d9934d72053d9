// gpicon: inspects and changes icon files on the command line, with Glimmerpane's core.
#include "cli/EffectOptions.h"
#include "cli/Subcommands.h"
#include "platform/files/FileWriting.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace gp::cli {
namespace {

struct Subcommand {
  std::string_view name;
  const char* usage;
  const char* help;
  int (*run)(const Arguments& arguments);
  // What tables add to the usage and to the help; null for nothing.
  std::string (*moreUsage)() = nullptr;
  std::string (*moreHelp)() = nullptr;
};

std::string withMore(const char* text, std::string (*more)()) { return more ? text + more() : text; }

constexpr std::array<Subcommand, 14> kSubcommands{{
    {"probe", "probe FILE...",
     "Prints the file's name, a tab, and nine numbers joined by \"/\": kind (0 no icon\n"
     "file, 1 one entry, 2 several), usable entries as far as the scan went, chosen\n"
     "entry, its width, height, colors and bits by the directory, colors and bits by\n"
     "the bitmap header. Colors are -1 for true color. A PNG picture tells all of them\n"
     "itself, as 32 bits with alpha and 24 without. Of several entries the first\n"
     "of 32x32 is chosen, or a later one of 32x32 with 8 bits, which ends the scan.\n"
     "Of a cursor file, which its content tells and not its name, there are three\n"
     "numbers: 1 for a cursor that the editor takes, its colors and its bits by the\n"
     "bitmap header; 0/0/0 for others.",
     runProbe},
    {"list", "list [--json] FILE...",
     "Prints one line per image, parted by tabs: file, index, size, colors and bits by\n"
     "the directory, colors and bits by the bitmap header (0 for PNG), bytes, offset,\n"
     "encoding (bmp or png), usable or unusable. A width or height of 0 in the file is\n"
     "256. Usable images are square, of 16, 24, 32 or 48 pixels, and either bitmaps of\n"
     "1, 4, 8, 24 or 32 bits or PNG pictures, whose size is their own. With --json, one\n"
     "array with an object for each file; bytes of a name that are not UTF-8 stand as\n"
     "\"\\udc80\" to \"\\udcff\".\n"
     "Lines of cursor files end with two more columns, the hot spot's x and y (with\n"
     "--json: kind \"cur\", \"hotspotX\", \"hotspotY\"). A cursor's directory tells no\n"
     "depth: both pairs of colors and bits are the bitmap header's. Usable is a first\n"
     "image of 32x32 at offset 22 with its hot spot inside.",
     runList},
    {"check", "check FILE...",
     "Prints one line for each place where directory, headers and pixels of an icon or\n"
     "cursor file contradict each other, parted by tabs: file, index, what, and what\n"
     "the directory, the header and the pixels tell of it (\"-\" for nothing). What is\n"
     "  width, height  the size; PNG pictures are asked too\n"
     "  colors, bits   the depth; last, the depth that the pixels need\n"
     "  bytes          fewer told than the image needs; \"incomplete\" for a cut PNG\n"
     "  png            \"damaged\": a PNG picture that cannot be read\n"
     "  offset         inside the directory; last, where that ends\n"
     "  end            behind the file's end; last, the file's size\n"
     "  pixels         palette index beyond the colors that the header tells\n"
     "  alpha          pixels that the alpha calls transparent (0) and the mask painted,\n"
     "                 which open opaque; last, their number\n"
     "  shared         the same bytes as another image\n"
     "  same           size and colors of an image before it\n"
     "  hotspotX, hotspotY  outside the picture; last, its width or height\n"
     "  count          more entries told than the file holds (index \"-\")\n"
     "Old icons that tell colors but no bits are healthy. Exit status 1 if there is any.",
     runCheck},
    {"unpack", "unpack FILE... -d DIR [--force] [--max-size MB]",
     "Writes for every usable image NAME_INDEX.image.ppm, NAME_INDEX.mask.pgm (255\n"
     "transparent) and, with 32 bits, NAME_INDEX.alpha.pgm, as the editor shows them.\n"
     "NAME is the file's name without folder and extension; when two files share it,\n"
     "the later ones become NAME-2, NAME-3 and so on. DIR is made if it is not there.\n"
     "Files that are there already are kept and complained of; --force replaces them,\n"
     "but never links and files with several names. One call writes 256 MB and 100000\n"
     "files at most, or as much as --max-size says.",
     runUnpack},
    {"split", "split FILE... -d DIR [--force] [--max-size MB]",
     "Writes every image of every size, PNG pictures too, as a single-icon file with\n"
     "the image's bytes as they are: NAME_SIZE_COLOR.ico, where SIZE is the height and\n"
     "COLOR the colors, or the bits and \"bpp\" for true color, by the directory:\n"
     "NAME_32_256.ico, NAME_48_32bpp.ico. No two of one call get the same name: the\n"
     "later ones become NAME_32_256-2.ico and so on, and none gets the name of an input\n"
     "that stands in DIR. DIR, --force and --max-size are as with unpack. An image that\n"
     "is not all there costs a complaint and not the others.",
     runSplit},
    {"bmp", "bmp IN.ico INDEX OUT.bmp [--background RRGGBB]",
     "Writes one image as a bitmap, as the editor does. Transparent pixels get the\n"
     "background, without it C0C0C0; alpha is blended over C0C0C0 with any background.\n"
     "The bitmap has 1 bit for black and white, 4 for the standard colors, 8 for up to\n"
     "256 colors, which become a palette of their own, and 24 for more.",
     runBmp},
    {"resave", "resave IN.ico INDEX OUT.ico", "Loads one image as the editor does and saves it as the editor does.",
     runResave},
    {"reduce", "reduce IN.ico INDEX OUT.ico --to COLORS --method METHOD [--threshold N]",
     "Brings one image down to fewer colors and saves it as resave does. True color\n"
     "icons stay true color. Refused with alpha, or when there are so few colors already.\n"
     "  --to 256  optimal, system\n"
     "  --to 16   optimized, nearest, vga\n"
     "  --to 2    cutoff, weighted, ordered\n"
     "With cutoff, pixels whose mean channel is below N, without it 128, become black and\n"
     "the others transparent.",
     runReduce},
    {"effect", "effect IN.ico INDEX OUT.ico NAME",
     "Applies an effect to one image and saves it as resave does. Refused with alpha.", runEffect, effectUsage,
     effectHelp},
    {"replace", "replace FILE INDEX ICON.ico [--image N] [-o OUT]",
     "Puts ICON.ico in the place of one image. The icon is loaded and saved as the\n"
     "editor does; of several images it has, N, or without --image the one that probe\n"
     "chooses. Refused when another image of the file has its size and colors.",
     runReplace},
    {"add", "add FILE... ICON.ico [--at N] [--image N] [-o OUT]",
     "Adds ICON.ico to each file, as its image number N counted from 1, without --at\n"
     "behind the last one. Loading and refusals as with replace. -o goes with one FILE.",
     runAdd},
    {"remove", "remove FILE INDEX [-o OUT]", "Takes one image out. The last one stays.", runRemove},
    {"reorder", "reorder FILE 3,1,2 [-o OUT]",
     "Puts the images into another sequence: here the third first. The numbers count\n"
     "from 1, and each must stand there once.",
     runReorder},
    {"salvage", "salvage FILE -o OUT",
     "Writes a copy whose directory takes width, height and bits from the bitmap\n"
     "headers. Images and color counts stay, and entries of PNG pictures too. Refused\n"
     "when the directory tells a width or height above 128.",
     runSalvage},
}};

void printHelp() {
  std::puts("gpicon - looks into Windows icon and cursor files, takes icon files apart and changes them\n");
  for (const Subcommand& command : kSubcommands)
    std::printf("gpicon %s\n%s\n\n", withMore(command.usage, command.moreUsage).c_str(),
                withMore(command.help, command.moreHelp).c_str());
  std::puts(
      "gpicon --help\nPrints this.\n\n"
      "Indices and styles count from 0. Options end at \"--\". Colors are six hexadecimal\n"
      "digits, red first. replace, add, remove, reorder and salvage write to OUT, replacing\n"
      "it, or else the file itself; bmp, resave, reduce and effect replace OUT, which may be\n"
      "IN.ico. At every moment a file has its whole former or its whole new content, also\n"
      "when it cannot be written. None writes anything when it refuses. A bad file costs one\n"
      "line on stderr and not the others; control characters of names are printed as \\x0A.\n"
      "Exit status: 0 done, 1 a file was bad or refused, 2 bad usage.");
}

bool isHelp(const std::string& argument) { return argument == "--help" || argument == "-h" || argument == "help"; }

int run(const Arguments& arguments) {
  if (arguments.empty()) return badUsage("no subcommand given");
  const Arguments rest(arguments.begin() + 1, arguments.end());
  if (isHelp(arguments.front()) || (!rest.empty() && rest.front() == "--help")) {
    printHelp();
    return kDone;
  }
  const auto command = std::ranges::find(kSubcommands, arguments.front(), &Subcommand::name);
  if (command == kSubcommands.end()) return badUsage("unknown subcommand " + arguments.front());
  return command->run(rest);
}

}  // namespace
}  // namespace gp::cli

int main(int argc, char** argv) {
  gp::ignoreWriteSignals();
  const int status = gp::cli::run(gp::cli::Arguments(argv + std::min(argc, 1), argv + argc));
  // Output that could not be written, for example to a full disk, is a failure.
  if (std::fflush(stdout) == 0) return status;
  gp::cli::complain("stdout", "cannot be written");
  return gp::cli::kRefused;
}
