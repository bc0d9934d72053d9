// The look of an icon with alpha on the program's ground: for saving as a bitmap and for the alpha views.
#pragma once

#include "document/AlphaMatrix.h"
#include "platform/gdi/Surface.h"

namespace gp {

// Blends every opaque pixel (black in `mask`) of `image` over the ground by its alpha value and writes it to `target`;
// transparent pixels of `target` stay. All four must have the same size.
void composeAlpha(const Surface& mask, const Surface& image, const AlphaMatrix& alpha, Surface& target);

}  // namespace gp
