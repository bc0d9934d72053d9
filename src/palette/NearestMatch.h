// Brings a picture down to the colours of a palette without dithering: every pixel becomes the entry nearest to it.
#pragma once

#include "palette/clsGPDIB.h"

#include <span>

namespace gp {

// The entry with the least squared distance, the first among equals. A palette of no entry leaves the bitmap alone.
void matchToPalette(clsGPDIB& dib, std::span<const Color> palette);

}  // namespace gp
