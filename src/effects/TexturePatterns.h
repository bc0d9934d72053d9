// The three patterns that the program has for textures, in shades of grey. Each can be repeated without a seam.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// Width and height of a pattern in pixels.
inline constexpr int kPatternSide = 48;

inline constexpr int kStoredPatterns = 3;
// Returns woven cloth for index 0, brushed metal for 1, and grain for 2.
const Surface& storedPattern(int index);

}  // namespace gp
