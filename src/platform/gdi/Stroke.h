// One drawing operation with a Surface's pen and brush. It first collects the pixels that pen and brush cover and then
// draws each of them once, so that overlapping parts do not cancel each other in invert mode.
#pragma once

#include "platform/gdi/Outlines.h"
#include "platform/gdi/Surface.h"

#include <cstdint>
#include <vector>

namespace gp {

class Stroke {
 public:
  // For shapes within the given box; the pen may reach over its edges. The surface must outlive the stroke.
  Stroke(Surface& surface, const ShapeBox& box);

  // True when the pen is wider than one pixel: it then draws end pixels and single pixels that a thin pen does not.
  bool isWide() const { return width_ > 1; }

  // Moves the pen along a path; a closed path returns to its first pixel.
  void pen(const PixelPath& path, bool closed);
  // Covers the pixels x1 to x2 of row y with the brush, except those that the pen covers.
  void brush(int y, int x1, int x2);

  // Draws all covered pixels: those of the pen in the given colour, those of the brush in the fill colour.
  void draw(Color penColor);

 private:
  enum class Cover : std::uint8_t { None, Brush, Pen };

  void thinPen(const PixelPath& path);
  void widePen(const PixelPath& path, bool closed);
  void joinDiagonal(Pixel a, Pixel b);
  void cover(int x, int y, Cover by);
  void drawRow(int y, Color penColor);

  Surface& surface_;
  const int width_;
  // The part of the Surface that the stroke can reach.
  ShapeBox area_;
  std::vector<Cover> covers_;
};

// Returns the smallest box that contains both pixels.
ShapeBox boxAround(Pixel a, Pixel b);

}  // namespace gp
