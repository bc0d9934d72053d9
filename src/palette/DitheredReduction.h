// The reductions with dithering that saving bitmaps and reducing an icon's colours share. The palette is filled, the
// dither keeps the rows, and the bitmap shows the result.
#pragma once

#include "palette/clsGPDIB.h"
#include "palette/clsGPPal.h"
#include "palette/clsGPPalDither.h"

namespace gp {

// To 256 colours that are chosen for the picture.
void ditherToOptimal(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither);
// To the sixteen standard colours.
void ditherToStandard(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither);
// To black and white. A picture whose mean rounds to black is not dithered; what is not black in it counts as white.
void ditherToMono(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither);

}  // namespace gp
