// One drawing operation with a Surface's pen and brush. It first collects which pixels the pen and the brush cover and
// then draws each of them once, so that overlapping parts do not undo each other in invert mode.
#pragma once

#include "platform/gdi/Outlines.h"
#include "platform/gdi/Surface.h"

#include <cstdint>
#include <vector>

namespace gp {

class Stroke {
 public:
  // For shapes within the given box; the pen may reach over its edges. Refers to surface while it lives.
  Stroke(Surface& surface, const ShapeBox& box);

  // Whether the pen is wider than one pixel: it then covers ends and single pixels that a thin one leaves out.
  bool isWide() const { return width_ > 1; }

  // Moves the pen along a path; a closed one leads back to its first pixel.
  void pen(const PixelPath& path, bool closed);
  // Covers the pixels x1 to x2 of row y with the brush where the pen does not.
  void brush(int y, int x1, int x2);

  // Draws everything: the pen in the given colour, the brush in the fill colour.
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
  // The part of the Surface that may be reached.
  ShapeBox area_;
  std::vector<Cover> covers_;
};

// The box that reaches from one position to the other, both included.
ShapeBox boxAround(Pixel a, Pixel b);

}  // namespace gp
