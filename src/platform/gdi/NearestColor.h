// Matches a colour against the entries of a palette, as the platform does.
#pragma once

#include "platform/gdi/Surface.h"

#include <span>

namespace gp {

// Returns the index of the entry with the least squared distance in red, green and blue, the first one among equals; -1
// for an empty palette.
int GetNearestPaletteIndex(std::span<const Color> palette, Color color);

}  // namespace gp
