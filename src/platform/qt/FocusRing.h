// The mark of the keyboard focus: a ring in the accent colour, the same on every control. ProgramStyle draws it on the
// controls that it paints; widgets that paint themselves call these functions.
#pragma once

#include <QColor>
#include <QPalette>
#include <QRect>

class QPainter;

namespace gp {

inline constexpr int kFocusRing = 2;  // width, in device-independent pixels

// Returns the accent colour, made visible on the ground.
QColor accentOn(const QColor& ground, const QPalette& palette);
// The same on the window's ground.
QColor accentOn(const QPalette& palette);

// Paints a ring inside the edge of `around`. `width` is in the painter's units.
void paintRing(QPainter& painter, const QRect& around, const QColor& color, int width);
// Paints the mark of the focus; the painter has `ratio` units to a device-independent pixel.
void paintFocusRing(QPainter& painter, const QRect& around, const QColor& color, double ratio = 1);

}  // namespace gp
