#include "effects/ui/PointSampleView.h"

#include "document/ui/SurfacePainting.h"
#include "platform/qt/Contrast.h"
#include "platform/qt/FocusRing.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr std::array kPickingKeys{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space};

}  // namespace

PointSampleView::PointSampleView(QWidget* parent, const QString& objectName, const QString& tooltip,
                                 const Surface& picture, int side, SampleRoom room)
    : SampleView(parent, objectName, tooltip, picture, side, room) {
  setToolTip(tooltip);
  setFocusPolicy(Qt::StrongFocus);
}

void PointSampleView::setPoint(const QPoint& point) {
  if (picture().width() == 0) return;
  cursor_.place(point, picture().width());
  refresh();
}

QString PointSampleView::accessibleValue() const {
  if (picture().width() == 0) return {};
  return QString("%1, %2").arg(point().x()).arg(point().y());
}

int PointSampleView::factor() const { return std::max(1, place().width() / std::max(1, picture().width())); }

void PointSampleView::paintEvent(QPaintEvent* event) {
  SampleView::paintEvent(event);
  if (!hasFocus() || picture().width() == 0) return;
  DevicePainter painter(this);
  const int wide = qRound(kFocusRing * devicePixelRatioF()), line = std::max(1, qRound(devicePixelRatioF()));
  const QColor accent = accentOn(palette());
  paintRing(painter, place().adjusted(-line, -line, line, line), accent, wide);
  // Around the pixel, so that it stays visible; white within the accent colour is visible on any colour.
  const QRect pixel(place().topLeft() + point() * factor(), QSize(factor(), factor()));
  paintRing(painter, pixel.adjusted(-wide - line, -wide - line, wide + line, wide + line), accent, wide);
  paintRing(painter, pixel.adjusted(-line, -line, line, line), visibleOn(accent, Qt::white), line);
}

void PointSampleView::pick(const QPoint& point) {
  setPoint(point);
  emit picked(point.x(), point.y());
}

void PointSampleView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPoint position = devicePointAt(this, event->position());
  if (picture().width() == 0 || !place().contains(position)) return;
  // The operators of QPoint round.
  const QPoint inside = position - place().topLeft();
  pick({inside.x() / factor(), inside.y() / factor()});
}

void PointSampleView::keyPressEvent(QKeyEvent* event) {
  if (picture().width() == 0) {
    QWidget::keyPressEvent(event);
  } else if (std::ranges::find(kPickingKeys, event->key()) != kPickingKeys.end()) {
    pick(point());
  } else if (cursor_.move(event->key(), picture().width())) {
    refresh();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void PointSampleView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  setPoint(point());
}

}  // namespace gp
