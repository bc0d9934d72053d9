// Paints Surfaces on widgets directly from their pixels: each pixel becomes a whole number of device pixels, without
// smoothing. Keeps nothing between two paint events.
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

// The distance from the corner of a widget to the nearest whole device pixel, in the widget's own pixels.
QPointF deviceShift(const QWidget* widget);
// Returns the device pixel of a widget at a position in the widget's pixels.
QPoint devicePointAt(const QWidget* widget, const QPointF& position);

QRgb toRgb(Color color);

// A part of a Surface as a scale shows it. `part` is in device pixels and must lie inside.
QImage imageOf(const Surface& surface, const ScreenScale& scale, const QRect& part);

// Paints a Surface of one pixel per cell in the middle of an area, with `ratio` device pixels per pixel, rounded down.
// `area` is in device pixels; what does not fit is cut off evenly.
void paintCentred(DevicePainter& painter, const Surface& surface, const QRect& area, double ratio);

}  // namespace gp
