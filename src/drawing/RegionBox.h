// The arithmetic of the region box: its two measures, its limits, what the pointer over it means, and its label. Pure
// functions on values in Editing Area pixels, except where icon pixels are named.
#pragma once

#include "drawing/DrawState.h"

#include <string>
#include <utility>

namespace gp {

// The Editing Area and the icon on it, in pixels.
struct RegionScale {
  int magnification = 1;
  int dispWidth = 0;
  int dispHeight = 0;
  int iconWidth = 0;
  int iconHeight = 0;
};

// A box in icon pixels, both corners included. A side shorter than a cell is the cell of its first corner; a side that
// ends on the last Editing Area pixel ends on the last icon pixel.
DrawRect pixelsOfRegion(const DrawRect& box, const RegionScale& scale);
// The box around icon pixels. Its right and bottom sides are on the grid lines behind the last pixels.
DrawRect boxOfPixels(const DrawRect& pixels, int magnification);
// Exchanges sides that are out of order. True if it exchanged any.
bool normalizeBox(DrawRect& box);
// Edges included.
bool isInBox(const DrawRect& box, double x, double y);
// True when a side is shorter than one Editing Area pixel: the box marks nothing.
bool isFlatBox(const DrawRect& box);

// Where the top left corner of the box may go: 70 percent of the box may leave the Editing Area on any side.
struct RegionLimits {
  int mRegionMinX = 0;
  int mRegionMinY = 0;
  int mRegionMaxX = 0;
  int mRegionMaxY = 0;
  bool allow(double left, double top) const;
  // Returns the corner on the grid of that magnification that is nearest to (left, top) and allowed.
  std::pair<double, double> nearest(double left, double top, int magnification) const;
};
RegionLimits limitsOfRegion(const DrawRect& box, const RegionScale& scale);

// The pointer over the Editing Area while Region is selected. Custom is the picture of the tool.
enum class RegionPointer { Default, Cross, Custom, HorizontalResize, VerticalResize, Move };
// For a region that exists. The bands along its sides are tested one after the other: the vertical ones by x alone,
// then the horizontal ones by y alone.
RegionPointer pointerOverRegion(const DrawRect& box, bool floating, double x, double y);

enum class RegionEdge { None = 0, Left = 1, Right = 2, Top = 3, Bottom = 4 };
// The side that a press takes hold of. Its bands are narrower outside and wider inside than the pointer's.
RegionEdge edgeUnderPress(const DrawRect& box, double x, double y);

// "Region: Start [1, 1]   W=3 H=2"; empty for a box without sides. The size of a side drawn up or left is one less.
std::string regionLabel(const DrawRect& box, const DrawRect& pixels);

}  // namespace gp
