// Reduces a PPM picture to an optimal palette of 256 colours with dithering and writes a bitmap file, so that the
// palette engine can be timed as a whole process beside other programs.
//
//     reduce IN.ppm OUT.bmp
#include "palette/clsGPPal.h"
#include "palette/clsGPPalDither.h"
#include "palette/clsGPPalSave.h"
#include "platform/files/Files.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace gp;

constexpr int kColors = 256;
constexpr int kLevels = 8;
constexpr int kBits = 8;
constexpr std::size_t kChannels = 3;
constexpr std::size_t kLongestHead = 64;

// Pixels of three bytes, top row first, after a header of four words and one blank. Returns an empty bitmap for any
// other format.
clsGPDIB readPicture(const std::string& path) {
  clsGPDIB dib;
  const auto file = readFile(path);
  if (!file) return dib;
  const std::span<const std::uint8_t> bytes = file->span();
  const auto start = bytes.first(std::min(bytes.size(), kLongestHead));
  const std::string head(start.begin(), start.end());
  int width = 0, height = 0, end = 0;
  if (std::sscanf(head.c_str(), "P6 %d %d 255%n", &width, &height, &end) != 2 || end == 0) return dib;
  const auto pixels = bytes.subspan(std::min(bytes.size(), static_cast<std::size_t>(end) + 1));
  if (!dib.CreateBlankDIB(width, height) || pixels.size() < dib.DIBBitsPtr().size() * kChannels) return {};
  const std::uint8_t* at = pixels.data();
  for (int y = height - 1; y >= 0; --y) {
    for (DibPixel& pixel : dib.row(y)) {
      pixel = {at[2], at[1], at[0], 0};
      at += kChannels;
    }
  }
  return dib;
}

}  // namespace

int main(int count, char** words) {
  if (count != 3) {
    std::fprintf(stderr, "usage: reduce IN.ppm OUT.bmp\n");
    return EXIT_FAILURE;
  }
  clsGPDIB dib = readPicture(words[1]);
  clsGPPal palette;
  palette.CreateOptimal(dib, kColors, kLevels);
  clsGPPalDither dither;
  dither.DitherToPalette256(dib, palette);
  if (clsGPPalSave().Save_BMP(words[2], dib, palette, dither, kBits)) return EXIT_SUCCESS;
  std::fprintf(stderr, "reduce: cannot make %s of %s\n", words[2], words[1]);
  return EXIT_FAILURE;
}
