#include "colour/ui/SwatchPainting.h"

#include "document/ui/SurfacePainting.h"
#include "platform/qt/FocusRing.h"

#include <QString>
#include <QWidget>

namespace gp {

QString colorText(Color color) {
  return QString("RGB: %1, %2, %3").arg(redOf(color)).arg(greenOf(color)).arg(blueOf(color));
}

void paintSwatch(QWidget& widget, Color color) {
  DevicePainter painter(&widget);
  const double ratio = widget.devicePixelRatioF();
  QRect place = painter.toDevice(widget.rect());
  if (widget.hasFocus()) {
    paintFocusRing(painter, place, accentOn(widget.palette()), ratio);
    const int ring = qRound(kFocusRing * ratio);
    place.adjust(ring, ring, -ring, -ring);
  }
  painter.fillRect(place, widget.palette().color(QPalette::WindowText));
  painter.fillRect(place.adjusted(1, 1, -1, -1), QColor(toRgb(color)));
}

}  // namespace gp
