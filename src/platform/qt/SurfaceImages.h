// Converts between Surfaces and Qt's images, pixel for pixel. Both directions copy.
#pragma once

#include "platform/gdi/Surface.h"

#include <QImage>

namespace gp {

// Blends transparent pixels with the colour `ground`.
Surface surfaceOf(const QImage& image, Color ground);
// Returns an image without transparency.
QImage opaqueImageOf(const Surface& surface);

}  // namespace gp
