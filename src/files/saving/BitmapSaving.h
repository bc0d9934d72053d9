// Saving a picture as a bitmap file of the depth that its colours need.
#pragma once

#include "document/EditState.h"
#include "platform/gdi/Surface.h"

#include <string>

namespace gp {

// The look of the Current Icon for a bitmap, with a colour behind transparent pixels, which are told from real silver
// by the Mask. Alpha values blend over the usual ground whatever that colour is.
Surface composedForBitmap(const EditState& state, Color ground);

// Writes 1 bit a pixel for black and white, 4 for the sixteen standard colours, 8 for up to 256 colours and 24 for
// more. Up to 256 colours the picture goes through palette and dither, so that one of 256 colours gets a palette of its
// own. An existing file is replaced. False when the file cannot be written.
[[nodiscard]] bool saveByColors(const Surface& picture, const std::string& path);

}  // namespace gp
