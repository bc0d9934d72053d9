#include "palette/DitheredReduction.h"

#include "palette/MonoDiffusion.h"

namespace gp {
namespace {

constexpr int kFullPalette = 256;
constexpr int kTreeLevels = 8;

}  // namespace

void ditherToOptimal(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither) {
  palette.CreateOptimal(dib, kFullPalette, kTreeLevels);
  dither.DitherToPalette256(dib, palette);
}

void ditherToStandard(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither) {
  palette.CreatePalette16();
  dither.DitherToPalette16(dib, palette);
}

void ditherToMono(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither) {
  palette.CreatePalette2();
  // The Mask of an opaque icon has hardly a white pixel: with a threshold of 0 all pixels would become white.
  if (meanBrightness(dib) == 0)
    dither.TakeBlackAndWhite(dib);
  else
    dither.DitherToBlackAndWhite(dib, kMonoDamping);
}

}  // namespace gp
