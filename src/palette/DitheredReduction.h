// The dithered reductions that are shared by saving bitmaps and reducing an icon's colours. Each fills the palette,
// stores the packed rows in `dither` and the dithered picture in `dib`.
#pragma once

#include "palette/clsGPDIB.h"
#include "palette/clsGPPal.h"
#include "palette/clsGPPalDither.h"

namespace gp {

// Reduces to 256 colours computed from the picture.
void ditherToOptimal(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither);
// Reduces to the sixteen standard colours.
void ditherToStandard(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither);
// Reduces to black and white. With a mean brightness of 0 the picture is not dithered: all but black becomes white.
void ditherToMono(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither);

}  // namespace gp
