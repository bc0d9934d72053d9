// How well two colours can be distinguished, and colours that can.
#pragma once

#include <QColor>

namespace gp {

// Outlines, fills and marks that show a state have at least this contrast to what is behind them.
inline constexpr double kLeastContrast = 3;

// Returns the contrast ratio of two opaque colours as accessibility guidelines define it: 1 for equal colours, 21 for
// black and white.
double contrastOf(const QColor& a, const QColor& b);

// Returns the colour at `eighths` of the way from one colour to another.
QColor between(const QColor& from, const QColor& to, int eighths);

// Returns `wanted`, lightened or darkened as far as kLeastContrast to `ground` requires.
QColor visibleOn(const QColor& ground, const QColor& wanted);

}  // namespace gp
