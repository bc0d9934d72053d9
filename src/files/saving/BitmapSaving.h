// Saves a picture as a bitmap file of the depth that its colours require.
#pragma once

#include "document/IconContainerRec.h"
#include "document/IconImage.h"
#include "platform/gdi/Surface.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gp {

// An icon as it is saved in a bitmap, with `ground` in place of transparent pixels. The Mask distinguishes these from
// opaque silver pixels. Alpha values are always blended over the usual background.
Surface composedForBitmap(const IconImage& icon, const IconContainerRec& record, Color ground);

// A bitmap file with 1 bit per pixel for black and white, 4 for the sixteen standard colours, 8 for up to 256 colours
// and 24 for more. A picture of 256 colours gets its own palette. Empty for a picture without pixels.
std::vector<std::uint8_t> composeByColors(const Surface& picture);
// Writes that file, replacing an existing one. False when it cannot be written.
[[nodiscard]] bool saveByColors(const Surface& picture, const std::string& path);

}  // namespace gp
