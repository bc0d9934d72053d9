// The platform's shapes, drawn in half open boxes with the Surface's pen, brush and draw mode. The functions in Pens.h
// are built on these. Drawing is clipped to the Surface; boxes and positions beyond kMaxPenPosition draw nothing.
#pragma once

#include "platform/gdi/Outlines.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/Surface.h"

namespace gp {

// A thin pen does not draw the last pixel; a wide pen draws both ends, rounded.
void LineTo(Surface& surface, Pixel from, Pixel to, Color color);
// Exchanges sides given in the wrong order. An empty box draws nothing, nor does a box of one pixel with a thin pen. In
// solid fill mode the inside is filled with fillColor. The same holds for Ellipse.
void Rectangle(Surface& surface, ShapeBox box, Color color);
void Ellipse(Surface& surface, ShapeBox box, Color color);
// Draws the part of the ellipse's outline between the directions of two points, seen from the middle of the box. A thin
// pen does not draw its last pixel.
void Arc(Surface& surface, ShapeBox box, Pixel start, Pixel end, Color color,
         ArcDirection direction = ArcDirection::CounterClockwise);

}  // namespace gp
