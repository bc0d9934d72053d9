// Filling an area of one colour on a Surface's drawing.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// Gives surface.fillColor to the pixels of exactly surfaceColor that hang together with (x, y) over their sides; there
// is no tolerance. False, and nothing done, when (x, y) is outside or has another colour.
bool ExtFloodFill(Surface& surface, int x, int y, Color surfaceColor);

}  // namespace gp
