// Filters that harden or soften a whole picture.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

enum class Filter { SharpenStrong, Sharpen, Original, Soften, SoftenStrong };  // in the order of cboSharpenSoften

// Returns the filtered picture. Pixels whose neighbours are outside keep their colour: row and column 0 when it is
// sharpened, one at each border when it is softened, two when it is softened strongly.
Surface doSharpenSoften(const Surface& picture, Filter filter);

}  // namespace gp
