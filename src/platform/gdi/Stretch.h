// Copying a rectangle of one Surface into a rectangle of another size, mirrored if wished. How pixels are dropped or
// made is the target's stretch mode. Nothing is kept or owned; parts outside either Surface are left out.
//
// BlackOnWhite and KeepOrDrop repeat pixels when they enlarge. When they reduce, several source pixels fall together:
// BlackOnWhite combines them with AND, so that dark details survive, and KeepOrDrop keeps the last column and the first
// row of them. Halftone is smooth: along an axis that is reduced each pixel is the average of the source under it,
// pixels cut by its edge counting by the part that lies inside; along an axis that is enlarged it lies between the two
// nearest source pixel centres and mixes them by distance.
#pragma once

#include "platform/gdi/RasterOps.h"
#include "platform/gdi/Surface.h"

namespace gp {

// Stretches the source rectangle over the target rectangle by target.stretchMode and combines it with op. A rectangle
// with a negative width covers the |width| columns up to and including its x, running leftwards; likewise upwards for
// a negative height. So x = W - 1, width = -W mirrors a picture in place. source and target may be the same Surface.
// False for an unknown code or mode or a length above a million (2^20); empty rectangles are a success that changes
// nothing.
bool StretchBlt(Surface& target, int x, int y, int width, int height, const Surface& source, int sourceX, int sourceY,
                int sourceWidth, int sourceHeight, RasterOp op);

// Sets the mode of StretchBlt into target and returns the former one.
StretchMode SetStretchBltMode(Surface& target, StretchMode mode);

}  // namespace gp
