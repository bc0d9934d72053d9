#include "document/ui/MagnifiedView.h"

#include "document/ui/SurfacePainting.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace gp {
namespace {

constexpr int kCursorLine = 2;  // each of the two lines around the pixel cursor, device pixels at 100 %

bool comesFromKeyboard(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

}  // namespace

MagnifiedView::MagnifiedView(QWidget* parent, const QString& objectName, const QString& accessibleName,
                             const MagnifiedPicture& picture)
    : QWidget(parent), picture_(picture) {
  setObjectName(objectName);
  setAccessibleName(accessibleName);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_NoSystemBackground);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  resize(sizeHint());
}

int MagnifiedView::cells() const { return picture_.surface.width() / picture_.magnification; }

ScreenScale MagnifiedView::scale() const { return {cells(), picture_.magnification, devicePixelRatioF()}; }

QSize MagnifiedView::sizeHint() const {
  const int side = static_cast<int>(std::ceil(scale().deviceSize() / devicePixelRatioF()));
  return {side, side};
}

void MagnifiedView::refresh() {
  if (size() != sizeHint()) resize(sizeHint());
  cursor_.confine(cells());
  update();
  if (cursorShown_) accessibleValueChanged(this);
}

void MagnifiedView::refreshPart(int x, int y, int width, int height) {
  const ScreenScale through = scale();
  const double ratio = devicePixelRatioF();
  const auto low = [&](int source) { return static_cast<int>(std::floor(through.deviceOf(source) / ratio)) - 1; };
  const auto high = [&](int source) { return static_cast<int>(std::ceil(through.deviceOf(source) / ratio)) + 1; };
  update(QRect(QPoint(low(x), low(y)), QPoint(high(x + width), high(y + height))));
}

void MagnifiedView::paintEvent(QPaintEvent* event) {
  DevicePainter painter(this);
  const QRect icon(0, 0, scale().deviceSize(), scale().deviceSize());
  const QRect exposed = painter.toDevice(event->rect());
  if (!icon.contains(exposed)) painter.fillRect(exposed, QColor(toRgb(kGround)));
  const QRect part = exposed & icon;
  if (!part.isEmpty()) painter.drawImage(part.topLeft(), imageOf(picture_.surface, scale(), part));
  if (cursorShown_) paintCursor(painter);
}

// Black within white is visible on any colour.
void MagnifiedView::paintCursor(QPainter& painter) const {
  const int line = std::max(1, static_cast<int>(kCursorLine * devicePixelRatioF() / 2));
  QRect around = cursorRect();
  for (const Qt::GlobalColor color : {Qt::white, Qt::black}) {
    for (int i = 0; i < line; ++i) {
      painter.setPen(color);
      painter.drawRect(around.adjusted(0, 0, -1, -1));
      around.adjust(1, 1, -1, -1);
    }
  }
}

QRect MagnifiedView::cursorRect() const {
  const int cell = scale().cellSize();
  return {cursor_.position() * cell, QSize(cell + 1, cell + 1)};
}

QPointF MagnifiedView::sourceAt(const QPointF& position) const {
  const QPoint device = devicePointAt(this, position);
  return QPointF(scale().sourceOf(device.x()), scale().sourceOf(device.y()));
}

QPointF MagnifiedView::cursorCentre() const {
  const int m = picture_.magnification;
  return QPointF(cursor_.position() * m) + QPointF(m / 2, m / 2);
}

QPoint MagnifiedView::pixelCursorOnScreen() const {
  return mapToGlobal((QPointF(cursorRect().center()) / devicePixelRatioF()).toPoint());
}

void MagnifiedView::mousePressEvent(QMouseEvent* event) {
  showCursor(false);
  const QPoint source = sourceAt(event->position()).toPoint();
  cursor_.place({source.x() / picture_.magnification, source.y() / picture_.magnification}, cells());
  if (event->button() == Qt::LeftButton) hold(event);
  emit pressed(sourceAt(event->position()), event->button(), event->modifiers());
}

void MagnifiedView::hold(const QMouseEvent* event) {
  held_ = true;
  lastHeld_ = sourceAt(event->position());
}

// A window that opens while the button is held takes the release: the stroke ends at its last position.
void MagnifiedView::endHold() {
  if (std::exchange(held_, false)) emit released(lastHeld_, Qt::LeftButton, Qt::NoModifier);
}

void MagnifiedView::mouseMoveEvent(QMouseEvent* event) {
  // A pop-up menu, which the second button opens, also takes the release.
  if (!(event->buttons() & Qt::LeftButton)) endHold();
  if (held_) hold(event);
  emit moved(sourceAt(event->position()), event->modifiers());
}

void MagnifiedView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && !std::exchange(held_, false)) return;
  emit released(sourceAt(event->position()), event->button(), event->modifiers());
}

void MagnifiedView::leaveEvent(QEvent*) { emit left(); }

void MagnifiedView::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  if (event->key() == Qt::Key_Space) {
    showCursor(true);
    applyAtCursor(modifiers);
  } else if (modifiers == Qt::NoModifier && cursor_.move(event->key(), cells())) {
    showCursor(true);
    emit moved(cursorCentre(), modifiers);
    accessibleValueChanged(this);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void MagnifiedView::applyAtCursor(Qt::KeyboardModifiers modifiers) {
  emit pressed(cursorCentre(), Qt::LeftButton, modifiers);
  emit released(cursorCentre(), Qt::LeftButton, modifiers);
  accessibleValueChanged(this);
}

void MagnifiedView::showCursor(bool shown) {
  cursorShown_ = shown;
  update();
}

void MagnifiedView::focusInEvent(QFocusEvent* event) { showCursor(comesFromKeyboard(event->reason())); }

void MagnifiedView::focusOutEvent(QFocusEvent*) { showCursor(false); }

bool MagnifiedView::event(QEvent* event) {
  if (event->type() == QEvent::ScreenChangeInternal) refresh();
  if (event->type() == QEvent::WindowBlocked) endHold();
  return QWidget::event(event);
}

QString MagnifiedView::accessibleValue() const {
  return describePixel_ ? describePixel_(cursor_.position()) : QString();
}

}  // namespace gp
