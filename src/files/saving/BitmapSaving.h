// Saving a picture as a bitmap file of the depth that its colours need.
#pragma once

#include "document/IconContainerRec.h"
#include "document/IconImage.h"
#include "platform/gdi/Surface.h"

#include <string>

namespace gp {

// The look of an icon for a bitmap, with `ground` in place of transparent pixels. The Mask tells these from opaque
// silver pixels. Alpha values blend over the usual ground, whatever that colour is.
Surface composedForBitmap(const IconImage& icon, const IconContainerRec& record, Color ground);

// Writes 1 bit a pixel for black and white, 4 for the sixteen standard colours, 8 for up to 256 colours and 24 for
// more. Up to 256 colours the picture goes through palette and dither, so that one of 256 colours gets a palette of its
// own. An existing file is replaced. False when the file cannot be written.
[[nodiscard]] bool saveByColors(const Surface& picture, const std::string& path);

}  // namespace gp
