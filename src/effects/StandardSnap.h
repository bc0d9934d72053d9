// Replaces a single colour by one of the sixteen standard colours.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// Returns the standard colour for a colour: the colour itself if it is one, otherwise the one that the table gives for
// its channels, each rounded to the nearest standard level.
Color snapToStandard(Color color);

}  // namespace gp
