// The grey, etched look of a toolbar button that cannot be pressed.
#pragma once

#include "document/IconImage.h"

namespace gp {

// The icon's dark painted pixels in grey with a white edge to the bottom right. Colours with a channel of 153 or more
// drop out; an icon of such alone becomes empty.
IconImage disabledImage(const Surface& image, const Surface& mask);

}  // namespace gp
