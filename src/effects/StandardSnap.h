// Bringing a single colour to one of the sixteen standard colours.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// The standard colour for a colour: itself if it is one, otherwise the one that its channels, each brought to the
// nearest standard level, are forced onto.
Color snapToStandard(Color color);

}  // namespace gp
