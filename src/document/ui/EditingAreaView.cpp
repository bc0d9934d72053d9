#include "document/ui/EditingAreaView.h"

#include "document/EditState.h"
#include "document/ui/SurfacePainting.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace gp {
namespace {

constexpr int kSmallestRoom = 400;  // picDispContainer at the smallest size of the form, pixels
constexpr int kCursorLine = 2;      // each of the two lines around the pixel cursor, device pixels at 100 %
constexpr QRgb kRoomOutline = 0xFF808080;

bool comesFromKeyboard(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

}  // namespace

EditingAreaView::EditingAreaView(QWidget* parent, const EditState& state) : QWidget(parent), state_(state) {
  setObjectName("picDisp");
  setAccessibleName("Editing Area");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_NoSystemBackground);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  resize(sizeHint());
}

int EditingAreaView::cells() const { return state_.picDisp.width() / state_.gMagnification; }

ScreenScale EditingAreaView::scale() const { return {cells(), state_.gMagnification, devicePixelRatioF()}; }

QSize EditingAreaView::sizeHint() const {
  const int side = static_cast<int>(std::ceil(scale().deviceSize() / devicePixelRatioF()));
  return {side, side};
}

void EditingAreaView::refresh() {
  if (size() != sizeHint()) resize(sizeHint());
  cursor_.confine(cells());
  update();
  if (cursorShown_) accessibleValueChanged(this);
}

void EditingAreaView::refreshPart(int x, int y, int width, int height) {
  const ScreenScale through = scale();
  const double ratio = devicePixelRatioF();
  const auto low = [&](int source) { return static_cast<int>(std::floor(through.deviceOf(source) / ratio)) - 1; };
  const auto high = [&](int source) { return static_cast<int>(std::ceil(through.deviceOf(source) / ratio)) + 1; };
  update(QRect(QPoint(low(x), low(y)), QPoint(high(x + width), high(y + height))));
}

void EditingAreaView::paintEvent(QPaintEvent* event) {
  DevicePainter painter(this);
  const QRect icon(0, 0, scale().deviceSize(), scale().deviceSize());
  const QRect exposed = painter.toDevice(event->rect());
  if (!icon.contains(exposed)) painter.fillRect(exposed, QColor(toRgb(kGround)));
  const QRect part = exposed & icon;
  if (!part.isEmpty()) painter.drawImage(part.topLeft(), imageOf(state_.picDisp, scale(), part));
  if (cursorShown_) paintCursor(painter);
}

// Black within white, so that it shows on any colour and for any eye.
void EditingAreaView::paintCursor(QPainter& painter) const {
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

QRect EditingAreaView::cursorRect() const {
  const int cell = scale().cellSize();
  return {cursor_.position() * cell, QSize(cell + 1, cell + 1)};
}

QPointF EditingAreaView::sourceAt(const QPointF& position) const {
  const QPoint device = devicePointAt(this, position);
  return QPointF(scale().sourceOf(device.x()), scale().sourceOf(device.y()));
}

QPointF EditingAreaView::cursorCentre() const {
  const int m = state_.gMagnification;
  return QPointF(cursor_.position() * m) + QPointF(m / 2, m / 2);
}

QPoint EditingAreaView::pixelCursorOnScreen() const {
  return mapToGlobal((QPointF(cursorRect().center()) / devicePixelRatioF()).toPoint());
}

void EditingAreaView::mousePressEvent(QMouseEvent* event) {
  showCursor(false);
  const QPoint source = sourceAt(event->position()).toPoint();
  cursor_.place({source.x() / state_.gMagnification, source.y() / state_.gMagnification}, cells());
  if (event->button() == Qt::LeftButton) hold(event);
  emit pressed(sourceAt(event->position()), event->button(), event->modifiers());
}

void EditingAreaView::hold(const QMouseEvent* event) {
  held_ = true;
  lastHeld_ = sourceAt(event->position());
}

// A box that comes up over a held button swallows its release: the stroke ends where it is.
void EditingAreaView::endHold() {
  if (std::exchange(held_, false)) emit released(lastHeld_, Qt::LeftButton, Qt::NoModifier);
}

void EditingAreaView::mouseMoveEvent(QMouseEvent* event) {
  // The release may also have gone to a pop-up menu, which the second button opens.
  if (!(event->buttons() & Qt::LeftButton)) endHold();
  if (held_) hold(event);
  emit moved(sourceAt(event->position()), event->modifiers());
}

void EditingAreaView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && !std::exchange(held_, false)) return;
  emit released(sourceAt(event->position()), event->button(), event->modifiers());
}

void EditingAreaView::leaveEvent(QEvent*) { emit left(); }

void EditingAreaView::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  if (event->key() == Qt::Key_Space) {
    showCursor(true);
    applyAtCursor(modifiers);
  } else if (event->key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier) {
    emit popUpRequested(pixelCursorOnScreen());
  } else if (modifiers == Qt::NoModifier && cursor_.move(event->key(), cells())) {
    showCursor(true);
    emit moved(cursorCentre(), modifiers);
    accessibleValueChanged(this);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void EditingAreaView::applyAtCursor(Qt::KeyboardModifiers modifiers) {
  emit pressed(cursorCentre(), Qt::LeftButton, modifiers);
  emit released(cursorCentre(), Qt::LeftButton, modifiers);
  accessibleValueChanged(this);
}

void EditingAreaView::showCursor(bool shown) {
  cursorShown_ = shown;
  update();
}

void EditingAreaView::focusInEvent(QFocusEvent* event) { showCursor(comesFromKeyboard(event->reason())); }

void EditingAreaView::focusOutEvent(QFocusEvent*) { showCursor(false); }

void EditingAreaView::contextMenuEvent(QContextMenuEvent* event) {
  // The mouse's way to the menu is its press, which has been told already.
  if (event->reason() == QContextMenuEvent::Keyboard) emit popUpRequested(pixelCursorOnScreen());
}

bool EditingAreaView::event(QEvent* event) {
  if (event->type() == QEvent::ScreenChangeInternal) refresh();
  if (event->type() == QEvent::WindowBlocked) endHold();
  return QWidget::event(event);
}

QString EditingAreaView::accessibleValue() const {
  if (!state_.current().present || !describePixel_) return {};
  return describePixel_(cursor_.position());
}

EditingAreaRoom::EditingAreaRoom(QWidget* parent, const EditState& state)
    : QWidget(parent), view_(new EditingAreaView(this, state)) {
  setObjectName("picDispContainer");
  setMinimumSize(kSmallestRoom, kSmallestRoom);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void EditingAreaRoom::refresh() {
  const QSize before = view_->size();
  view_->refresh();
  if (view_->size() == before) return;
  centre();
  update();
}

void EditingAreaRoom::centre() { view_->move((width() - view_->width()) / 2, (height() - view_->height()) / 2); }

void EditingAreaRoom::resizeEvent(QResizeEvent*) {
  centre();
  emit resized(size());
}

void EditingAreaRoom::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(toRgb(kGround)));
  painter.setPen(QColor(kRoomOutline));
  painter.drawRect(view_->geometry().adjusted(-1, -1, 0, 0));
}

}  // namespace gp
