// The pixels under the tip of a pen on its way round the platform's shapes, in order. Plain values, no Surface.
//
// An ellipse is walked with an integer error term, one quadrant for all four. Boxes of shapes are half open: right and
// bottom are one behind the last pixel.
#pragma once

#include <vector>

namespace gp {

struct Pixel {
  int x = 0, y = 0;
  bool operator==(const Pixel&) const = default;
};
using PixelPath = std::vector<Pixel>;

struct ShapeBox {
  int left = 0, top = 0, right = 0, bottom = 0;

  int width() const { return right - left; }
  int height() const { return bottom - top; }
  bool isEmpty() const { return right <= left || bottom <= top; }
};

enum class ArcDirection { CounterClockwise, Clockwise };

// From (x1, y1) to (x2, y2), both included. A position half way between two pixels takes the upper or left one.
PixelPath linePath(Pixel from, Pixel to);

// Once round a box that is not empty, clockwise from its top left pixel, which is not repeated.
PixelPath rectanglePath(const ShapeBox& box);

// Once round the ellipse that fills a box, counter-clockwise from the right end of its upper half. Pixels on the axes
// stand in it twice in succession; in boxes a pixel or two wide or high, others may as well. The tips of very slender
// upright ellipses are missing, as on the platform.
PixelPath ellipsePath(const ShapeBox& box);

// The part of the ellipse's path from the direction of start to that of end, seen from the middle of the box; the
// whole path, beginning there, when both directions meet the same pixel. Its last pixel is the end, which a thin pen
// leaves out. In a box one pixel wide only the pixels around the middle belong to it.
PixelPath arcPath(const ShapeBox& box, Pixel start, Pixel end, ArcDirection direction);

}  // namespace gp
