// Composes an icon over the program's ground. Where the Mask is black, the image's pixel is shown. Where the Mask is
// white, the ground is shown, inverted by image pixels that are not black.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// Draws the icon over target's back colour, at its top left corner, as its new picture. target keeps its size.
void composeIcon(const Surface& image, const Surface& mask, Surface& target);
// Returns the icon over kGround on a Surface of the image's size.
Surface composedIcon(const Surface& image, const Surface& mask);

}  // namespace gp
