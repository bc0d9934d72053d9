#include "palette/DitheredReduction.h"

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

}  // namespace gp
