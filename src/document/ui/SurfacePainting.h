// Paints Surfaces on widgets directly from their pixels, at an integer number of device pixels per Surface pixel, never
// smoothed. Keeps no state between paint events.
#pragma once

#include "document/ScreenScale.h"
#include "platform/gdi/Surface.h"

#include <QImage>
#include <QPainter>
#include <QRect>

namespace gp {

// A painter in units of device pixels, with the widget's corner at an integer device pixel.
class DevicePainter : public QPainter {
 public:
  explicit DevicePainter(QWidget* widget);

  // Converts a rectangle from the widget's pixels to device pixels, rounded outwards.
  QRect toDevice(const QRect& logical) const;

 private:
  double ratio_;
};

// Returns the offset, in the widget's pixels, that moves its corner to an integer device pixel.
QPointF deviceShift(const QWidget* widget);
// Returns the device pixel of a widget at a position in the widget's pixels.
QPoint devicePointAt(const QWidget* widget, const QPointF& position);

QRgb toRgb(Color color);

// Returns a part of a Surface seen through a scale; `part` is in device pixels and must lie inside.
QImage imageOf(const Surface& surface, const ScreenScale& scale, const QRect& part);

// Paints a Surface in the middle of an area, each pixel enlarged to an integer number of device pixels by `ratio`.
// `area` is in device pixels; a Surface that does not fit is cut off evenly.
void paintCentred(DevicePainter& painter, const Surface& surface, const QRect& area, double ratio);

}  // namespace gp
