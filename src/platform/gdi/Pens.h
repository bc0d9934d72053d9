// The pen of a Surface: filled boxes, lines, boxes, ellipses and arcs on its drawing, and the bands, which are outlines
// that follow the mouse. The Surface's penWidth, penStyle, drawMode, fillMode and fillColor hold for each call; nothing
// else is kept. What lies outside the Surface is left out.
//
// A pen of width 1 draws the platform's own pixels. A wider pen is a round nib that is moved along those pixels, and is
// always solid; boxes, ellipses and arcs of widths up to 6 are the platform's own pixels too, slanting lines its own
// but for single pixels at their edges. The dotted pen of width 1 draws 3 pixels and leaves out 3, along the outline.
// In invert mode every pixel is replaced by its inverse once, the colours being ignored.
//
// Pens do not reach beyond kMaxPenPosition in either direction: shapes that do are not drawn.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

inline constexpr int kMaxPenPosition = 1 << 16;

// Fills the rectangle with the given opposite corners, both included, in copy mode and whatever the pen is.
void FillBox(Surface& surface, int x1, int y1, int x2, int y2, Color color);

// With a pen of width 1 the end pixel is not drawn, so that a line without length draws nothing; a wider pen has round
// ends around both ends.
void DrawLine(Surface& surface, int x1, int y1, int x2, int y2, Color color);

// The outline through the opposite corners, in any order, both included: equal corners draw one pixel with a thin pen.
// In solid fill mode the inside takes the fill colour.
void DrawBox(Surface& surface, int x1, int y1, int x2, int y2, Color color);

// aspect is height over width. The longer half axis is the radius: the horizontal one where aspect is below 1,
// otherwise the vertical one. In solid fill mode the inside takes the fill colour. A radius or aspect that is no
// number or negative draws nothing.
void DrawEllipse(Surface& surface, double centerX, double centerY, double radius, double aspect, Color color);

// The part of that ellipse's outline between two angles in radians, counter-clockwise from the positive x axis. With a
// pen of width 1 the pixel at the end is not drawn. Where both angles point at the same pixel the whole outline is.
void DrawEllipseArc(Surface& surface, double centerX, double centerY, double radius, double aspect, Color color,
                    double startAngle, double endAngle);

// The same outlines as bands: dotted, of width 1, inverting what is there, so that clearDrawing() takes them away. Pen
// style and draw mode are solid and copy afterwards; the pen width and the fill mode stay as they were.
void BandLine(Surface& surface, int x1, int y1, int x2, int y2);
void BandBox(Surface& surface, int x1, int y1, int x2, int y2);
void BandEllipse(Surface& surface, double centerX, double centerY, double radius, double aspect);

}  // namespace gp
