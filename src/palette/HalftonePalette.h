// The platform's halftone palette: ten of the twenty system colours at each end, and between them a part of a colour
// cube. Pictures are matched to it when no other palette is requested.
#pragma once

#include "platform/gdi/Surface.h"

#include <array>

namespace gp {

extern const std::array<Color, 256> kHalftonePalette;

}  // namespace gp
