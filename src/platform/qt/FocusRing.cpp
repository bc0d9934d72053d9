#include "platform/qt/FocusRing.h"

#include "platform/qt/Contrast.h"

#include <QPainter>

namespace gp {

// An inactive window has no focus, so the colours of the active one are those that count.
QColor accentOn(const QColor& ground, const QPalette& palette) {
  return visibleOn(ground, palette.color(QPalette::Active, QPalette::Highlight));
}

QColor accentOn(const QPalette& palette) {
  return accentOn(palette.color(QPalette::Active, QPalette::Window), palette);
}

void paintRing(QPainter& painter, const QRect& around, const QColor& color, int width) {
  const QRegion ring = QRegion(around) - around.adjusted(width, width, -width, -width);
  for (const QRect& side : ring) painter.fillRect(side, color);
}

void paintFocusRing(QPainter& painter, const QRect& around, const QColor& color, double ratio) {
  paintRing(painter, around, color, qRound(kFocusRing * ratio));
}

}  // namespace gp
