// The cells of the film strip, onto which the pictures of frames are copied.
#pragma once

#include "platform/gdi/Surface.h"

#include <array>

namespace gp {

// Two cells of 60 x 50 pixels: a piece of dark film with holes at its sides and a white place for the picture; the
// second one, that of the current frame, with a bright frame around this place and bright holes.
std::array<Surface, 2> filmCells();

}  // namespace gp
