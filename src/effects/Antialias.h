// Smooths a picture without regard to what is painted.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// Returns the picture with each pixel replaced by the mean of itself and its neighbours to the right, below, and below
// to the right. The last column and row fade towards black, because what is outside counts as black.
Surface antialiasPicture(const Surface& picture);

}  // namespace gp
