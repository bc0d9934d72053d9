// Flood fill of an area of one colour on a Surface's drawing.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// Sets the pixels of exactly surfaceColor that are connected with (x, y) across their sides to surface.fillColor.
// Returns false and changes nothing when (x, y) is outside or has another colour.
bool ExtFloodFill(Surface& surface, int x, int y, Color surfaceColor);

}  // namespace gp
