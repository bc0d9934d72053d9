// Converts between Surfaces and Qt's images, pixel for pixel. Both directions copy.
#pragma once

#include "platform/gdi/Surface.h"

#include <QImage>

namespace gp {

// Blends transparent pixels with the colour `ground`.
Surface surfaceOf(const QImage& image, Color ground);
// Returns the colours as they are, and `ground` for fully transparent pixels.
Surface colorsOf(const QImage& image, Color ground);
// Returns the alpha values as greys: black is transparent, white is opaque.
Surface alphaGreysOf(const QImage& image);

// Returns an image without transparency.
QImage opaqueImageOf(const Surface& surface);
// Returns an image whose alpha values are the greys of another Surface of the same size.
QImage imageWithAlpha(const Surface& surface, const Surface& alpha);

}  // namespace gp
