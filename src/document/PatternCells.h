// The cells that a patterned grid lays under the icon: small fixed pictures, exact to the pixel, never scaled. They
// live as long as the program.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

inline constexpr int kPatternCellCount = 3;
inline constexpr int kPatternCellSize = 8;

// Returns `picTileSource(index)`: 0 has a gray ground, 1 a light blue one, 2 a turquoise one. Any other index returns
// the gray cell.
const Surface& patternCell(int index);

}  // namespace gp
