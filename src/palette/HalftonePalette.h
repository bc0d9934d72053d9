// The platform's halftone palette: the twenty system colours, half of them at each end, and between them the part of a
// cube of colours that they leave free. It is what pictures are matched to when no palette of their own is wanted.
#pragma once

#include "platform/gdi/Surface.h"

#include <array>

namespace gp {

extern const std::array<Color, 256> kHalftonePalette;

}  // namespace gp
