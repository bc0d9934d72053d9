// The pen of a Surface: filled boxes, lines, boxes, ellipses and arcs on its drawing, and bands, which are outlines
// that follow the mouse. Each call uses the Surface's penWidth, penStyle, drawMode, fillMode and fillColor. Drawing is
// clipped to the Surface.
//
// A pen of width 1 draws the platform's own pixels. A wider pen is a round nib that moves along those pixels and is
// always solid. Boxes, ellipses and arcs of widths up to 6 match the platform's pixels too; slanting lines match except
// for single pixels at their edges. The dotted pen of width 1 draws 3 pixels and skips 3 along the outline. In invert
// mode each pixel is inverted once, and the colours are ignored.
//
// Shapes that reach beyond kMaxPenPosition in any direction are not drawn.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

inline constexpr int kMaxPenPosition = 1 << 16;

// Fills the rectangle with the given opposite corners, both included, in copy mode, independent of the pen.
void FillBox(Surface& surface, int x1, int y1, int x2, int y2, Color color);

// A pen of width 1 does not draw the end pixel, so a line of length 0 draws nothing. A wider pen draws round ends.
void DrawLine(Surface& surface, int x1, int y1, int x2, int y2, Color color);

// Draws the outline through two opposite corners, in any order, both included. Equal corners draw one pixel with a thin
// pen. In solid fill mode the inside is filled with fillColor.
void DrawBox(Surface& surface, int x1, int y1, int x2, int y2, Color color);

// aspect is height divided by width. The radius is the longer half axis: the horizontal one if aspect is below 1,
// otherwise the vertical one. In solid fill mode the inside is filled with fillColor. A NaN or negative radius or
// aspect draws nothing.
void DrawEllipse(Surface& surface, double centerX, double centerY, double radius, double aspect, Color color);

// Draws the part of that outline between two angles in radians, counter-clockwise from the positive x axis. A pen of
// width 1 does not draw the pixel at the end. When both angles meet the same pixel, the whole outline is drawn.
void DrawEllipseArc(Surface& surface, double centerX, double centerY, double radius, double aspect, Color color,
                    double startAngle, double endAngle);

// Draw the same outlines as bands: dotted, of width 1, inverting the pixels below, so that clearDrawing() removes them.
// Afterwards pen style and draw mode are solid and copy; pen width and fill mode are unchanged.
void BandLine(Surface& surface, int x1, int y1, int x2, int y2);
void BandBox(Surface& surface, int x1, int y1, int x2, int y2);
void BandEllipse(Surface& surface, double centerX, double centerY, double radius, double aspect);

}  // namespace gp
