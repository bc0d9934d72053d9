#include "cli/AnimatedCommandRows.h"
#include "cli/CommandTable.h"
#include "cli/EffectOptions.h"
#include "cli/ExtractingCommandRows.h"
#include "cli/Help.h"
#include "cli/LookingCommandRows.h"
#include "cli/Subcommands.h"

#include <algorithm>
#include <array>

namespace gp::cli {
namespace {

constexpr std::array kMakingRows = std::to_array<Command>({
    {.name = "make",
     .usage = "make OUT.ico PICTURE... [--from PICTURE] [--sizes 16,24,...] [--bits BITS] [--png-above SIZE]\n"
              "            [--filter FILTER] [--dither DITHER] [--hotspot X,Y] [--json] [--force]",
     .summary = "an icon or cursor file from PNG and BMP pictures",
     .help = "Makes an icon file with one image of each PICTURE, a PNG or BMP file of 256x256 at\n"
             "most, in this order, and then one for each of the sizes, scaled from the PICTURE\n"
             "after --from, of 4096x4096 at most. Without --sizes these are 16, 24, 32, 48, 64,\n"
             "128 and 256. A size that a PICTURE has is not scaled. A picture that is not square\n"
             "is centered. An OUT named .cur becomes a cursor file.\n"
             "  --bits       auto (if not given), 32, 24, 8, 4 or 1 bits per pixel. auto is 32 for\n"
             "               alpha between 0 and 255, else what the colors need: 1, 4, 8 or 24.\n"
             "               Colors that do not fit are reduced to 256 computed ones, to the 16\n"
             "               standard ones, or to black and white. Pixels with an alpha below 128\n"
             "               are transparent in the mask\n"
             "  --png-above  larger sizes are stored as PNG (64 if not given)\n"
             "  --filter     box (if not given), the mean of an area, or lanczos, which is sharper\n"
             "  --dither     none (if not given) or floyd, when colors are reduced\n"
             "  --hotspot    of a cursor, in pixels of the first PICTURE, or else of the one after\n"
             "               --from; the other images get it in proportion (0,0 if not given)\n"
             "Prints one line per image, parted by tabs: index, size, bits, encoding (bmp or png),\n"
             "bytes, scaled or unscaled, and the PICTURE. With --json, one array with an object for\n"
             "each; nothing when OUT is \"-\". Refused when two images have the same size and bits,\n"
             "and when OUT is already there, which --force replaces.",
     .example = "make app.ico small.png --from logo.png --sizes 32,48,256",
     .run = runMake},
});

constexpr std::array kIconRows = std::to_array<Command>({
    {.name = "unpack",
     .usage = "unpack FILE... -d DIR [--png] [--force] [--max-size MB]",
     .summary = "the pictures in files, as PNG or as image, mask and alpha",
     .help = "Writes for every usable image NAME_INDEX.image.ppm, NAME_INDEX.mask.pgm (255\n"
             "transparent) and, with 32 bits, NAME_INDEX.alpha.pgm, as the editor shows them.\n"
             "With --png, writes every image of every size that can be decoded as NAME_INDEX.png:\n"
             "the bytes of a PNG picture as they are, and a bitmap with alpha, which is 0 where its\n"
             "mask is set, unless its 32 bits have alpha. Depth and size are the image's own.\n"
             "Of an animated cursor, writes image and mask of each frame as the editor opens it,\n"
             "32x32 on white, INDEX from 0; --png does not take animated cursors.\n"
             "NAME is the file's name without folder and extension; when two files share it,\n"
             "the later ones become NAME-2, NAME-3 and so on. DIR is made if it is not there.\n"
             "Files that are there already are kept and complained of; --force replaces them,\n"
             "but never links and files with several names. One call writes 256 MB and 100000\n"
             "files at most, or as much as --max-size says.",
     .example = "unpack --png app.ico -d pictures",
     .run = runUnpack},
    {.name = "split",
     .usage = "split FILE... -d DIR [--force] [--max-size MB]",
     .summary = "every image, or frame of an animated cursor, as a file",
     .help = "Writes every image of every size, PNG pictures too, as a single-icon file with\n"
             "the image's bytes as they are: NAME_SIZE_COLOR.ico, where SIZE is the height and\n"
             "COLOR the colors, or the bits and \"bpp\" for true color, by the directory:\n"
             "NAME_32_256.ico, NAME_48_32bpp.ico. No two of one call get the same name: the\n"
             "later ones become NAME_32_256-2.ico and so on, and none gets the name of an input\n"
             "that stands in DIR. DIR, --force and --max-size are as with unpack. An image that\n"
             "is not all there costs a complaint and not the others. The frames of an animated\n"
             "cursor are written as they are: NAME_1.cur, NAME_2.cur and so on, .ico for icons.",
     .example = "split app.ico -d icons",
     .run = runSplit},
    {.name = "bmp",
     .usage = "bmp IN.ico INDEX OUT.bmp [--background RRGGBB]",
     .summary = "one image as a bitmap",
     .help = "Writes one image as a bitmap, as the editor does. Transparent pixels get the\n"
             "background, without it C0C0C0; alpha is blended over C0C0C0 with any background.\n"
             "The bitmap has 1 bit for black and white, 4 for the standard colors, 8 for up to\n"
             "256 colors, which become a palette of their own, and 24 for more.",
     .example = "bmp app.ico 0 app.bmp --background FFFFFF",
     .run = runBmp},
    {.name = "shades",
     .usage = "shades IN.ico INDEX OUT.pgm",
     .summary = "the alpha of one image as shades of gray",
     .help = "Writes the alpha of one image as a graymap: opaque is black, transparent is white,\n"
             "and so is what the mask makes transparent. Refused without alpha.",
     .example = "shades app.ico 0 alpha.pgm",
     .run = runShades},
    {.name = "resave",
     .usage = "resave IN.ico INDEX OUT.ico",
     .summary = "loads one image and saves it, as the editor does",
     .help = "Loads one image as the editor does and saves it as the editor does.",
     .example = "resave old.ico 0 new.ico",
     .run = runResave},
    {.name = "reduce",
     .usage = "reduce IN.ico INDEX OUT.ico --to COLORS --method METHOD [--threshold N]",
     .summary = "one image with fewer colors",
     .help = "Brings one image down to fewer colors and saves it as resave does. True color\n"
             "icons stay true color. Refused with alpha, or when there are so few colors already.\n"
             "  --to 256  optimal, system\n"
             "  --to 16   optimized, nearest, vga\n"
             "  --to 2    cutoff, weighted, ordered\n"
             "With cutoff, pixels whose mean channel is below N, without it 128, become black and\n"
             "the others transparent.",
     .example = "reduce app.ico 0 app16.ico --to 16 --method nearest",
     .run = runReduce},
    {.name = "effect",
     .usage = "effect IN.ico INDEX OUT.ico NAME\n"
              "            | FILE... NAME --all -d DIR [--force] [--max-size MB]\n"
              "           ",
     .summary = "applies an effect to one image, or to all images of files",
     .help = "Applies an effect to one image and saves it as resave does. With --all, applies it to\n"
             "every image of each FILE that takes it and writes the FILE under its name into DIR:\n"
             "the images with the effect as replace puts them in, all others as they are. A FILE\n"
             "without an image that takes the effect is not written, and of two FILEs of one name\n"
             "only the first. DIR, --force and --max-size are as with unpack; INDEX does not go\n"
             "with --all, and a FILE whose name is a number is ./0. Images with alpha are refused\n"
             "unless the effect takes it.",
     .example = "effect app.ico 0 disabled.ico disabled",
     .run = runEffect,
     .moreUsage = effectUsage,
     .moreHelp = effectHelp},
    {.name = "alpha",
     .usage = "alpha IN.ico INDEX OUT.ico --set N [--area X,Y,W,H]",
     .summary = "sets alpha values of one image",
     .help = "Gives the painted pixels of an area, without --area of the whole image, the alpha N,\n"
             "0 to 255, and saves the image with 32 bits. An image without alpha gets 255 in all\n"
             "pixels first. 0 is written as 1, which looks the same: a 0 would be read as 255.",
     .example = "alpha app.ico 0 soft.ico --set 128 --area 0,0,16,4",
     .run = runAlpha},
    {.name = "to24",
     .usage = "to24 IN.ico INDEX OUT.ico [--palette]\n"
              "            | FILE... --all -d DIR [--palette] [--force] [--max-size MB]",
     .summary = "one image, or all images of files, without alpha as they looked",
     .help = "Mixes the colors of one image with C0C0C0 as its alpha says, and saves it with 24\n"
             "bits, or with --palette in the bits that its colors need. Pixels whose alpha is 0\n"
             "percent become transparent. Refused without alpha. With --all, converts every image\n"
             "of each FILE that has alpha and writes the FILE under its name into DIR: all other\n"
             "images as they are. A FILE without alpha is not written, and of two FILEs of one\n"
             "name only the first. DIR, --force and --max-size are as with unpack; INDEX does not\n"
             "go with --all, and a FILE whose name is a number is ./0.",
     .example = "to24 app.ico 0 app24.ico",
     .run = runTo24},
    {.name = "replace",
     .usage = "replace FILE INDEX ICON.ico [--image N] [-o OUT]",
     .summary = "replaces one image of a file",
     .help = "Puts ICON.ico in the place of one image. The icon is loaded and saved as the\n"
             "editor does; of several images it has, N, or without --image the one that probe\n"
             "chooses. Refused when another image of the file has its size and colors.",
     .example = "replace app.ico 2 better.ico",
     .run = runReplace},
    {.name = "add",
     .usage = "add FILE... ICON.ico [--at N] [--image N] [-o OUT]",
     .summary = "adds an image to files",
     .help = "Adds ICON.ico to each file, as its image number N counted from 1, without --at\n"
             "behind the last one. Loading and refusals as with replace. -o goes with one FILE.",
     .example = "add app.ico small.ico --at 1",
     .run = runAdd},
    {.name = "remove",
     .usage = "remove FILE INDEX [-o OUT]",
     .summary = "takes an image out of a file",
     .help = "Takes one image out. The last one stays.",
     .example = "remove app.ico 3 -o smaller.ico",
     .run = runRemove},
    {.name = "reorder",
     .usage = "reorder FILE 3,1,2 [-o OUT]",
     .summary = "changes the sequence of the images",
     .help = "Puts the images into another sequence: here the third first. The numbers count\n"
             "from 1, and each must stand there once.",
     .example = "reorder app.ico 3,1,2",
     .run = runReorder},
    {.name = "salvage",
     .usage = "salvage FILE -o OUT",
     .summary = "corrects the directory of a file by its bitmap headers",
     .help = "Writes a copy whose directory takes width, height and bits from the bitmap\n"
             "headers. Images and color counts stay, and entries of PNG pictures too. Refused\n"
             "when the directory states a width or height above 128.",
     .example = "salvage broken.ico -o whole.ico",
     .run = runSalvage},
    {.name = "strip",
     .usage = "strip FILE... [-o OUT] [--json]",
     .summary = "makes files smaller without changing a pixel",
     .help = "Leaves out the chunks of PNG pictures that gpicon and most programs ignore, such as\n"
             "texts, times, color profiles and further frames, and colors of palettes that no pixel\n"
             "uses: a bitmap whose colors fit into a smaller palette gets fewer bits. Prints file,\n"
             "bytes before and bytes after, parted by tabs, or with --json an array of objects;\n"
             "nothing when OUT is \"-\". A file that cannot become smaller is not written. -o goes\n"
             "with one FILE.",
     .example = "strip icons/*.ico",
     .run = runStrip},
});

constexpr std::array kRowsAboutGpicon = std::to_array<Command>({
    {.name = "manual",
     .usage = "manual",
     .summary = "prints the manual page",
     .help = "Prints the manual page of gpicon in the language of man.",
     .example = "manual | man -l -",
     .run = runManual},
    {.name = "completions",
     .usage = "completions SHELL",
     .summary = "prints what a shell needs to complete commands",
     .help = "Prints the completions of commands and options for bash, zsh or fish.",
     .example = "completions bash > ~/.local/share/bash-completion/completions/gpicon",
     .run = runCompletions},
    {.name = "help",
     .usage = "help [COMMAND]",
     .summary = "describes all commands, or one with an example",
     .help = "Describes one command and shows an example of it, or describes all. COMMAND --help\n"
             "does the same. gpicon --version prints the version.",
     .example = "help check",
     .run = runHelp},
});

template <std::size_t... counts>
constexpr auto joined(const std::array<Command, counts>&... parts) {
  std::array<Command, (counts + ...)> rows{};
  auto end = rows.begin();
  ((end = std::ranges::copy(parts, end).out), ...);
  return rows;
}

constexpr auto kRows =
    joined(kMakingRows, kLookingCommandRows, kIconRows, kExtractingCommandRows, kAnimatedCommandRows, kRowsAboutGpicon);

}  // namespace

std::span<const Command> commandTable() { return kRows; }

}  // namespace gp::cli
