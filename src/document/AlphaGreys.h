// Alpha values as a Surface of greys, so that whatever draws on an image can draw on its alpha too: black is
// transparent, white is opaque.
#pragma once

#include "document/AlphaMatrix.h"
#include "platform/gdi/Surface.h"

namespace gp {

// The grey of an opaque pixel.
inline constexpr Color kOpaqueGrey = kWhite;

constexpr Color greyOf(int alpha) { return rgb(alpha, alpha, alpha); }

// Returns the greys of all values.
Surface greysOf(const AlphaMatrix& alpha);
// Returns the values of all greys, read from the red channel.
AlphaMatrix alphaOf(const Surface& greys);

}  // namespace gp
