// Draws an image of an icon as the platform does, on a ground of one colour and at another size.
#pragma once

#include "document/IconImage.h"
#include "platform/gdi/Surface.h"

namespace gp {

// Draws the icon as flags 3 of the platform's drawing do: blended with the ground by its alpha values, without the
// mask; or, without alpha values, (ground AND mask) XOR colours.
Surface drawnOn(const IconImage& icon, Color ground);

// The picture at side x side pixels. Pixels are repeated or dropped.
Surface scaledTo(const Surface& picture, int side);

}  // namespace gp
