#include "files/BitmapSaving.h"

#include "files/ColorCount.h"
#include "palette/clsGPDIB.h"
#include "palette/clsGPPal.h"
#include "palette/clsGPPalDither.h"
#include "palette/clsGPPalSave.h"
#include "platform/files/BitmapFile.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr int kFullPalette = 256;
constexpr int kTreeLevels = 8;
constexpr int kMonoDivisor = 15;

struct Depth {
  int colors;
  int bits;
  void (*reduce)(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither);
};

void reduceTo256(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither) {
  palette.CreateOptimal(dib, kFullPalette, kTreeLevels);
  dither.DitherToPalette256(dib, palette);
}

void reduceTo16(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither) {
  palette.CreatePalette16();
  dither.DitherToPalette16(dib, palette);
}

void reduceTo2(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither) {
  palette.CreatePalette2();
  dither.DitherToBlackAndWhite(dib, kMonoDivisor);
}

constexpr std::array<Depth, 3> kDepths{{{256, 8, reduceTo256}, {16, 4, reduceTo16}, {2, 1, reduceTo2}}};

}  // namespace

bool saveByColors(const Surface& picture, const std::string& path) {
  int colors = 0;
  GetColorBitCount_Image(picture, colors);
  const auto depth = std::ranges::find(kDepths, colors, &Depth::colors);
  if (depth == kDepths.end()) return writeBitmap(picture, path);
  clsGPDIB dib;
  clsGPPal palette;
  clsGPPalDither dither;
  dib.CreateDIBFromPic(picture);
  depth->reduce(dib, palette, dither);
  return clsGPPalSave().Save_BMP(path, dib, palette, dither, depth->bits);
}

}  // namespace gp
