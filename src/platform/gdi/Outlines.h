// The pixels that a pen visits along the outlines of the platform's shapes, in order. Independent of any Surface.
//
// An ellipse is computed with an integer error term for one quadrant and mirrored. Shape boxes are half open: right and
// bottom are one past the last pixel.
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

// Returns the pixels of a line, both ends included. Positions halfway between two pixels become the upper or left one.
PixelPath linePath(Pixel from, Pixel to);

// Returns the outline of a non-empty box, clockwise from its top left pixel, which is not repeated.
PixelPath rectanglePath(const ShapeBox& box);

// Returns the outline of the ellipse that fills a box, counter-clockwise from the right end of its upper half. It
// contains the pixels on the axes twice in succession, and in boxes one or two pixels wide or high possibly others. The
// tips of very narrow upright ellipses are missing, as on the platform. Empty for an empty box.
PixelPath ellipsePath(const ShapeBox& box);

// Returns the part of the ellipse's path between the directions of `start` and `end`, seen from the middle of the box;
// the whole path, from there, when both directions meet the same pixel. A thin pen does not draw its last pixel. In a
// box one pixel wide only the pixels around the middle belong to it.
PixelPath arcPath(const ShapeBox& box, Pixel start, Pixel end, ArcDirection direction);

}  // namespace gp
