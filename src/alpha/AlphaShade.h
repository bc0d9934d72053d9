// Alpha values as shades of grey: opaque is black and transparent is white, as in a Mask.
#pragma once

#include "document/AlphaMatrix.h"
#include "platform/gdi/Surface.h"

namespace gp {

// Returns the grey level of an alpha value, from 0 to 255.
int shadeOf(int alpha);
// Draws the shade of each painted pixel, which is black in `mask`. Other pixels of `target` do not change. All three
// must have the same size.
void shadeAlpha(const Surface& mask, const AlphaMatrix& alpha, Surface& target);

}  // namespace gp
