// The arithmetic of rubber bands: squares and circles that stay inside the icon, and the ellipse that fills a
// rectangle. Pure functions on rectangles; corners may be in any order.
#pragma once

#include "drawing/DrawState.h"

namespace gp {

// Moves the second corner so that the rectangle becomes a square of its longer side, or of what the right and bottom
// limits leave of it; the left and top may be passed. A rectangle without width or height stays as it is but for the
// limits.
void constrainToSquare(DrawRect& rect, double limit);
// The same for the drawing, the band and the region rectangle, on an icon of `size` pixels.
void constrainToSquare(DrawState& state, int size, int magnification);

struct OvalGeometry {
  double mOvalCenterX = 0;
  double mOvalCenterY = 0;
  double mOvalRadius = 0;  // the longer half axis
  double mOvalAspect = 0;  // height over width
};

// The ellipse from corner to corner, and the rectangle's width as the result. A width of 0 leaves `oval` as it was:
// there is nothing to draw, while a height of 0 makes a flat ellipse.
double ovalGeometry(const DrawRect& rect, OvalGeometry& oval);

}  // namespace gp
