// Copies a rectangle of one Surface into a rectangle of another size, optionally mirrored. The target's stretch mode
// selects how pixels are combined. Rectangles are clipped to both Surfaces.
//
// BlackOnWhite and KeepOrDrop repeat pixels when they enlarge. When they reduce, a target pixel covers several source
// pixels: BlackOnWhite combines them with AND, so that dark details survive, and KeepOrDrop keeps the last column and
// the first row. Halftone is smooth: along a reduced axis each pixel is the average of the source pixels under it,
// weighted by the covered part; along an enlarged axis it is interpolated between the two nearest source pixel centres.
#pragma once

#include "platform/gdi/RasterOps.h"
#include "platform/gdi/Surface.h"

namespace gp {

// Stretches the source rectangle to the target rectangle with target.stretchMode and combines it with op. A rectangle
// with a negative width covers the |width| columns up to and including its x, in reverse order; a negative height works
// the same way upwards. So x = W - 1, width = -W mirrors a picture in place. source and target may be the same Surface.
// Returns false for an unknown code or mode or a length above 2^20; empty rectangles change nothing and succeed.
bool StretchBlt(Surface& target, int x, int y, int width, int height, const Surface& source, int sourceX, int sourceY,
                int sourceWidth, int sourceHeight, RasterOp op);

// Sets the mode that StretchBlt uses for target and returns the former one.
StretchMode SetStretchBltMode(Surface& target, StretchMode mode);

}  // namespace gp
