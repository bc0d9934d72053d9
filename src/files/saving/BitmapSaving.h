// Saves a picture as a bitmap file of the depth that its colours require.
#pragma once

#include "document/IconContainerRec.h"
#include "document/IconImage.h"
#include "platform/gdi/Surface.h"

#include <string>

namespace gp {

// An icon as it is saved in a bitmap, with `ground` in place of transparent pixels. The Mask distinguishes these from
// opaque silver pixels. Alpha values are always blended over the usual background.
Surface composedForBitmap(const IconImage& icon, const IconContainerRec& record, Color ground);

// Writes 1 bit per pixel for black and white, 4 for the sixteen standard colours, 8 for up to 256 colours and 24 for
// more. A picture of 256 colours gets its own palette. Replaces an existing file. False when the file cannot be
// written.
[[nodiscard]] bool saveByColors(const Surface& picture, const std::string& path);

}  // namespace gp
