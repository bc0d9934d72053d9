// Surfaces from Qt's images and back, pixel for pixel. Both directions copy.
#pragma once

#include "platform/gdi/Surface.h"

#include <QImage>

namespace gp {

// What shows through transparent pixels takes the colour of `ground`.
Surface surfaceOf(const QImage& image, Color ground);
// An image without transparency.
QImage opaqueImageOf(const Surface& surface);

}  // namespace gp
