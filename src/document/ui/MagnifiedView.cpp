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

constexpr int kLongStep = 8;  // of an arrow key with Ctrl, icon pixels

bool isReturn(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

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
  paintMarks(painter);
  if (cursorShown_) paintCursor(painter);
}

int MagnifiedView::markLine() const { return std::max(1, static_cast<int>(devicePixelRatioF())); }

// Black within white is visible on any colour.
void MagnifiedView::paintCursor(QPainter& painter) const {
  const int line = markLine();
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

QRect MagnifiedView::shownCursor() const {
  if (!cursorShown_) return {};
  const double ratio = devicePixelRatioF();
  const QRect cell = cursorRect();
  return QRectF(QPointF(cell.topLeft()) / ratio, QSizeF(cell.size()) / ratio).toAlignedRect();
}

void MagnifiedView::mousePressEvent(QMouseEvent* event) {
  giveUp();
  showCursor(false);
  const QPoint source = sourceAt(event->position()).toPoint();
  cursor_.place({source.x() / picture_.magnification, source.y() / picture_.magnification}, cells());
  if (event->button() == Qt::LeftButton) hold(event);
  emit pressed(sourceAt(event->position()), event->button(), event->modifiers(), false);
}

void MagnifiedView::hold(const QMouseEvent* event) {
  held_ = true;
  lastHeld_ = sourceAt(event->position()) / picture_.magnification;
}

// A window that opens while the button is held takes the release: the stroke ends at its last position. A drag by
// keyboard has not been confirmed yet.
void MagnifiedView::endHold() {
  giveUp();
  if (std::exchange(held_, false))
    emit released(lastHeld_ * picture_.magnification, Qt::LeftButton, Qt::NoModifier, false);
}

void MagnifiedView::mouseMoveEvent(QMouseEvent* event) {
  if (isHeldByKey()) return;
  // A pop-up menu, which the second button opens, also takes the release.
  if (!(event->buttons() & Qt::LeftButton)) endHold();
  if (held_) hold(event);
  emit moved(sourceAt(event->position()), event->modifiers(), false);
  if (held_) emit workedAt(QRect(event->position().toPoint(), QSize(1, 1)));
}

void MagnifiedView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && !std::exchange(held_, false)) return;
  emit released(sourceAt(event->position()), event->button(), event->modifiers(), false);
}

void MagnifiedView::leaveEvent(QEvent*) {
  if (!isHeldByKey()) emit left();
}

void MagnifiedView::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const bool again = event->isAutoRepeat() && event->key() == Qt::Key_Space;
  if (!again && !usesKey(event->key(), modifiers)) QWidget::keyPressEvent(event);
}

// While the mouse is held, the keys that would work too have no effect.
bool MagnifiedView::usesKey(int key, Qt::KeyboardModifiers modifiers) {
  const bool worksByKey = key == Qt::Key_Space || cellStep(key);
  if (held_) return worksByKey;
  if (isHeldByKey() && isReturn(key)) {
    releaseByKey(modifiers);
  } else if (isHeldByKey() && key == Qt::Key_Escape) {
    giveUp();
  } else if (key == Qt::Key_Space) {
    pressSpace(modifiers);
  } else {
    return moveCursor(key, modifiers);
  }
  return true;
}

bool MagnifiedView::moveCursor(int key, Qt::KeyboardModifiers modifiers) {
  const auto step = cellStep(key);
  if (!step || (modifiers & ~(Qt::ShiftModifier | Qt::ControlModifier))) return false;
  const QPoint way = *step * (modifiers & Qt::ControlModifier ? kLongStep : 1);
  const bool held = isHeldByKey();
  if (!held && (modifiers & Qt::ShiftModifier)) {
    emit sizeRequested(way);
    return true;
  }
  cursor_.place(cursor_.position() + way, cells());
  showCursor(true);
  emit moved(cursorCentre(), held ? heldModifiers_ | (modifiers & Qt::ShiftModifier) : Qt::NoModifier, true);
  emit workedAt(shownCursor());
  accessibleValueChanged(this);
  return true;
}

void MagnifiedView::pressSpace(Qt::KeyboardModifiers modifiers) {
  if (isHeldByKey()) return releaseByKey(modifiers);
  showCursor(true);
  emit pressed(cursorCentre(), Qt::LeftButton, modifiers, true);
  heldByKey_ = isHeld_ && isHeld_();
  heldModifiers_ = modifiers;
  if (!heldByKey_) emit released(cursorCentre(), Qt::LeftButton, modifiers, true);
  accessibleValueChanged(this);
}

// A tool that reads the modifier while it moves gets it also from the last key.
void MagnifiedView::releaseByKey(Qt::KeyboardModifiers modifiers) {
  if (modifiers & ~heldModifiers_) emit moved(cursorCentre(), heldModifiers_ | modifiers, true);
  heldByKey_ = false;
  emit released(cursorCentre(), Qt::LeftButton, modifiers, true);
  accessibleValueChanged(this);
}

// A command can have ended the drag.
bool MagnifiedView::isHeldByKey() {
  heldByKey_ = heldByKey_ && isHeld_();
  return heldByKey_;
}

void MagnifiedView::giveUp() {
  if (!isHeldByKey()) return;
  heldByKey_ = false;
  emit givenUp();
  accessibleValueChanged(this);
}

void MagnifiedView::showCursor(bool shown) {
  cursorShown_ = shown;
  update();
}

void MagnifiedView::focusInEvent(QFocusEvent* event) {
  showCursor(comesFromKeyboard(event->reason()));
  if (cursorShown_) emit workedAt(shownCursor());
}

void MagnifiedView::focusOutEvent(QFocusEvent*) {
  giveUp();
  showCursor(false);
}

bool MagnifiedView::event(QEvent* event) {
  if (event->type() == QEvent::ScreenChangeInternal) refresh();
  if (event->type() == QEvent::WindowBlocked) endHold();
  return QWidget::event(event);
}

QString MagnifiedView::accessibleValue() const {
  return describePixel_ ? describePixel_(cursor_.position()) : QString();
}

}  // namespace gp
