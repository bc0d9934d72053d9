// How Surfaces come onto widgets: straight from their pixels, a whole number of device pixels for each of theirs, never
// smoothed. Nothing is kept between two paint events.
#pragma once

#include "document/ScreenScale.h"
#include "platform/gdi/Surface.h"

#include <QImage>
#include <QPainter>
#include <QRect>

namespace gp {

// A painter whose unit is the device pixel, with the widget's corner on a whole one.
class DevicePainter : public QPainter {
 public:
  explicit DevicePainter(QWidget* widget);

  // The part of the widget that must be painted, and the whole widget, in device pixels.
  QRect toDevice(const QRect& logical) const;

 private:
  double ratio_;
};

// How far the corner of a widget is moved, in its own pixels, to come onto a whole device pixel.
QPointF deviceShift(const QWidget* widget);
// The device pixel of a widget under a position in its own pixels.
QPoint devicePointAt(const QWidget* widget, const QPointF& position);

QRgb toRgb(Color color);

// A part of what a Surface looks like through a scale; `part` is in device pixels and must lie inside.
QImage imageOf(const Surface& surface, const ScreenScale& scale, const QRect& part);

// Paints a Surface of one pixel a cell in the middle of an area, as large as whole factors allow. `area` is in
// device pixels; what does not fit is cut off evenly.
void paintCentred(DevicePainter& painter, const Surface& surface, const QRect& area, double ratio);

}  // namespace gp
