// gpicon: what Glimmerpane's core knows of icon files, on the command line.
#include "cli/Subcommands.h"

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
};

constexpr std::array<Subcommand, 4> kSubcommands{{
    {"probe", "probe FILE...",
     "Prints the file's name, a tab, and nine numbers joined by \"/\": kind (0 no icon\n"
     "file, 1 one entry, 2 several), usable entries as far as the scan went, chosen\n"
     "entry, its width, height, colors and bits by the directory, colors and bits by\n"
     "the bitmap header. Colors are -1 for true color. Of several entries the first\n"
     "of 32x32 is chosen, or a later one of 32x32 with 8 bits, which ends the scan.",
     runProbe},
    {"list", "list [--json] FILE...",
     "Prints one line per image, parted by tabs: file, index, size, colors and bits by\n"
     "the directory, colors and bits by the bitmap header (0 for PNG), bytes, offset,\n"
     "encoding (bmp or png), usable or unusable. A width or height of 0 in the file is\n"
     "256. Usable images are square bitmaps of 16, 24, 32 or 48 pixels and of 1, 4, 8,\n"
     "24 or 32 bits. With --json, one array with an object for each file; bytes of a\n"
     "name that are not UTF-8 stand as \"\\udc80\" to \"\\udcff\".",
     runList},
    {"unpack", "unpack FILE... -d DIR",
     "Writes for every usable image NAME_INDEX.image.ppm, NAME_INDEX.mask.pgm (255\n"
     "transparent) and, with 32 bits, NAME_INDEX.alpha.pgm, as the editor shows them.\n"
     "NAME is the file's name without folder and extension; when two files share it,\n"
     "the later ones become NAME-2, NAME-3 and so on. DIR is made if it is not there.",
     runUnpack},
    {"resave", "resave IN.ico INDEX OUT.ico", "Loads one image as the editor does and saves it as the editor does.",
     runResave},
}};

void printHelp() {
  std::puts("gpicon - looks into Windows icon files, takes them apart and saves them again\n");
  for (const Subcommand& command : kSubcommands) std::printf("gpicon %s\n%s\n\n", command.usage, command.help);
  std::puts(
      "gpicon --help\nPrints this.\n\n"
      "Indices count from 0. Options end at \"--\". A bad file costs one line on stderr and\n"
      "not the others. Exit status: 0 done, 1 a file was bad or refused, 2 bad usage.");
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
  const int status = gp::cli::run(gp::cli::Arguments(argv + std::min(argc, 1), argv + argc));
  // Output that went nowhere, such as onto a full disk, is no success.
  if (std::fflush(stdout) == 0) return status;
  gp::cli::complain("stdout", "cannot be written");
  return gp::cli::kRefused;
}
