// Flips, quarter turns and rotation of an icon or of the content of a region, as pure functions. Image, Mask and
// alpha values are transformed alike.
#pragma once

#include "document/IconImage.h"

namespace gp {

using IconTransform = IconImage (*)(const IconImage& icon);

// Mirror left and right, or top and bottom.
IconImage flippedHorizontally(const IconImage& icon);
IconImage flippedVertically(const IconImage& icon);
// Turn counter-clockwise and clockwise. Width and height are exchanged.
IconImage turnedLeft(const IconImage& icon);
IconImage turnedRight(const IconImage& icon);

// Whether rotating by the angle, of -360 to 360 degrees, changes nothing.
bool isWholeTurn(double angleDegrees);
// Returns the icon rotated about its middle, not smoothed; positive angles turn counter-clockwise. It keeps its size
// and loses the corners outside it; vacated pixels are transparent, with an alpha value of 255.
IconImage rotatedIcon(const IconImage& icon, double angleDegrees);

}  // namespace gp
