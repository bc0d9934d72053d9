// The platform's shapes, drawn in half open boxes with the Surface's pen, brush and draw mode; the primitives in Pens.h
// put them to use. Nothing is kept. Parts outside the Surface are left out; boxes and positions beyond kMaxPenPosition
// draw nothing.
#pragma once

#include "platform/gdi/Outlines.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/Surface.h"

namespace gp {

// A line without its last pixel where the pen is thin, with round ends around both where it is wide.
void LineTo(Surface& surface, Pixel from, Pixel to, Color color);
// Sides given in the wrong order are exchanged first; an empty box draws nothing, and neither does a box of one pixel
// when the pen is thin. In solid fill mode the inside takes the fill colour. The same holds for Ellipse.
void Rectangle(Surface& surface, ShapeBox box, Color color);
void Ellipse(Surface& surface, ShapeBox box, Color color);
// The part of the ellipse's outline between the directions of two points, seen from the middle of the box. A thin pen
// leaves out its last pixel.
void Arc(Surface& surface, ShapeBox box, Pixel start, Pixel end, Color color,
         ArcDirection direction = ArcDirection::CounterClockwise);

}  // namespace gp
