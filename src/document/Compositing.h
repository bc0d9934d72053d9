// The look of an icon on the program's ground: the ground where the Mask is white, inverted by a picture that is not
// black there, and the picture where the Mask is black.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// Draws the icon on target's back colour, from its top left corner, as its new picture. target keeps its size.
void composeIcon(const Surface& image, const Surface& mask, Surface& target);
// The same on a Surface of the image's size with kGround behind.
Surface composedIcon(const Surface& image, const Surface& mask);

}  // namespace gp
