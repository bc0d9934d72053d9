// What an icon looks like magnified. Pure functions: results depend on the arguments only, and nothing is kept.
//
// `image` and `mask` have the same size, the factor is at least 1, and a result is `factor` times as large. The icon
// pixel (x, y) covers the cell from (x * factor, y * factor); grid lines run over the first row and column of each cell
// but not along the edge of the icon.
#pragma once

#include "document/Grid.h"
#include "platform/gdi/Surface.h"

namespace gp {

// The icon with the grid over it. Where the Mask is white the ground shows, which is kGround or the pattern of the
// grid, inverted by an image that is not black there.
Surface magnified(const Surface& image, const Surface& mask, int factor, const Grid& grid);
// Draws the same at the top left corner of a target, which must be at least as large.
void drawMagnified(const Surface& image, const Surface& mask, int factor, const Grid& grid, Surface& target);

// A picture without ground and grid: each pixel becomes a square.
Surface enlarged(const Surface& picture, int factor);
// The grid alone over an icon of width x height: white except for lines or dots.
Surface gridAlone(int width, int height, int factor, const Grid& grid);
// The ground of a grid: its pattern tiled from the top left corner, or kGround. Sizes are in pixels of the result.
Surface groundOf(int width, int height, const Grid& grid);

}  // namespace gp
