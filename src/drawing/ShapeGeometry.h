// Geometry of rubber bands: squares and circles that stay inside the icon, and the ellipse that fills a rectangle. Pure
// functions on rectangles; corners can be in any order.
#pragma once

#include "drawing/DrawState.h"

namespace gp {

// Moves the second corner so that the rectangle becomes a square with its longer side, reduced to the right and bottom
// limit; left and top have no limit. A rectangle without width or height changes only at the limit.
void constrainToSquare(DrawRect& rect, double limit);
// The same for the drawing, the band and the region rectangle, on an icon of `size` pixels.
void constrainToSquare(DrawState& state, int size, int magnification);

struct OvalGeometry {
  double mOvalCenterX = 0;
  double mOvalCenterY = 0;
  double mOvalRadius = 0;  // the longer half axis
  double mOvalAspect = 0;  // height divided by width
};

// Computes the ellipse that fills a rectangle and returns the rectangle's width. A width of 0 leaves `oval` unchanged:
// there is nothing to draw. A height of 0 gives a flat ellipse.
double ovalGeometry(const DrawRect& rect, OvalGeometry& oval);

}  // namespace gp
