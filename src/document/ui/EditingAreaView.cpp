#include "document/ui/EditingAreaView.h"

#include "document/EditState.h"
#include "document/ui/EmptyArea.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/FocusRing.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>

namespace gp {
namespace {

constexpr int kSmallestRoom = 400;  // picDispContainer at the smallest size of the form, pixels
constexpr QRgb kRoomOutline = 0xFF808080;

}  // namespace

EditingAreaView::EditingAreaView(QWidget* parent, const EditState& state)
    : MagnifiedView(parent, "picDisp", "Editing Area", {state.picDisp, state.gMagnification}), state_(state) {}

QString EditingAreaView::accessibleValue() const {
  return state_.current().present ? MagnifiedView::accessibleValue() : QString();
}

void EditingAreaView::paintEvent(QPaintEvent* event) {
  MagnifiedView::paintEvent(event);
  if (!state_.current().present) paintEmptyArea(*this);
}

// The ring around the view belongs to its parent.
void EditingAreaView::focusInEvent(QFocusEvent* event) {
  MagnifiedView::focusInEvent(event);
  parentWidget()->update();
}

void EditingAreaView::focusOutEvent(QFocusEvent* event) {
  MagnifiedView::focusOutEvent(event);
  parentWidget()->update();
}

void EditingAreaView::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  if (event->key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier)
    emit popUpRequested(pixelCursorOnScreen());
  else
    MagnifiedView::keyPressEvent(event);
}

void EditingAreaView::contextMenuEvent(QContextMenuEvent* event) {
  // The mouse opens the menu by its press, which has been reported already.
  if (event->reason() == QContextMenuEvent::Keyboard) emit popUpRequested(pixelCursorOnScreen());
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
  if (!view_->hasFocus()) return;
  constexpr int kAround = 1 + kFocusRing;
  paintFocusRing(painter, view_->geometry().adjusted(-kAround, -kAround, kAround, kAround),
                 accentOn(QColor(toRgb(kGround)), palette()));
}

}  // namespace gp
