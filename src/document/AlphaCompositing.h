// Composes an icon with alpha over a ground: for saving it as a bitmap, for the alpha views and for previews.
#pragma once

#include "document/AlphaMatrix.h"
#include "platform/gdi/Surface.h"

namespace gp {

// Returns an alpha value in percent of 255, without the fraction: 0 for 0 to 2, 50 for 128, 99 for 254, 100 for 255.
int alphaPercent(int alpha);

// Returns a colour blended over the colour `ground` by the percentage of an alpha value.
Color blendOver(Color ground, Color color, int alpha);

// Blends each opaque pixel (black in `mask`) of `image` over the ground by its alpha value and writes it to `target`.
// Other pixels of `target` do not change. All four must have the same size.
void composeAlpha(const Surface& mask, const Surface& image, const AlphaMatrix& alpha, Surface& target,
                  Color ground = kGround);

}  // namespace gp
