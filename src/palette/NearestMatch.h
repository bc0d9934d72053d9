// Reduces a picture to the colours of a palette without dithering: each pixel becomes its nearest entry.
#pragma once

#include "palette/clsGPDIB.h"

#include <span>

namespace gp {

// Uses the entry with the least squared distance, the first one among equals. An empty palette changes nothing; a
// palette has 8192 entries at most.
void matchToPalette(clsGPDIB& dib, std::span<const Color> palette);

}  // namespace gp
