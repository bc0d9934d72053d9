// The pixels of the Current Icon as a value.
#pragma once

#include "document/IconImage.h"

namespace gp {

struct EditState;

// Returns image, Mask and alpha of the Current Icon. An icon without an alpha channel, or whose container has no values
// for it, has no alpha values.
IconImage currentIcon(const EditState& state);

// Replaces the pixels of the Current Icon by others of its size; pixels without alpha values are opaque. Returns false
// when they are the same. Marks no change and shows nothing: callers do.
bool replacePixels(EditState& state, const IconImage& icon);

}  // namespace gp
