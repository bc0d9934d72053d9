#include "colour/ui/MixSwatch.h"

#include "document/ui/SurfacePainting.h"
#include "platform/qt/Accessibility.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace gp {

MixSwatch::MixSwatch(QWidget* parent, const QString& objectName, const QString& accessibleName)
    : QAbstractButton(parent) {
  setObjectName(objectName);
  setAccessibleName(accessibleName);
  setFocusPolicy(Qt::TabFocus);
  setMouseTracking(true);
  setColor(kBlack);
}

void MixSwatch::setColor(Color color) {
  color_ = color;
  setDescription(this, QString("RGB: %1, %2, %3").arg(redOf(color)).arg(greenOf(color)).arg(blueOf(color)));
  update();
}

void MixSwatch::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const int line = hasFocus() ? 2 : 1;
  const QRect whole = painter.toDevice(rect());
  painter.fillRect(whole, palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText));
  painter.fillRect(whole.adjusted(line, line, -line, -line), QColor(toRgb(color_)));
}

void MixSwatch::mousePressEvent(QMouseEvent* event) { event->accept(); }

void MixSwatch::mouseMoveEvent(QMouseEvent*) { emit hovered(); }

void MixSwatch::mouseReleaseEvent(QMouseEvent* event) {
  if (rect().contains(event->position().toPoint())) click();
}

void MixSwatch::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    click();
  else
    QAbstractButton::keyPressEvent(event);
}

void MixSwatch::focusInEvent(QFocusEvent* event) {
  QAbstractButton::focusInEvent(event);
  emit hovered();
}

}  // namespace gp
