#include "document/ui/EditingAreaView.h"

#include "document/EditState.h"
#include "document/ui/EmptyArea.h"
#include "document/ui/RegionMark.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/FocusRing.h"

#include <QContextMenuEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace gp {
namespace {

constexpr int kSmallestRoom = 400;  // picDispContainer at the smallest size of the form, pixels
constexpr int kScrollStep = 20;     // of an arrow of a scroll bar; a notch of the wheel is three of them
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

void EditingAreaView::paintMarks(QPainter& painter) const {
  if (state_.screen.regionOutline.shown) paintRegionMark(painter, state_.screen.regionOutline, scale(), markLine());
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
    : QAbstractScrollArea(parent), view_(new EditingAreaView(viewport(), state)) {
  setObjectName("picDispContainer");
  setMinimumSize(kSmallestRoom, kSmallestRoom);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  horizontalScrollBar()->setAccessibleName("Scroll Editing Area horizontally");
  verticalScrollBar()->setAccessibleName("Scroll Editing Area vertically");
  connect(view_, &EditingAreaView::workedAt, this, &EditingAreaRoom::scrollTo);
}

void EditingAreaRoom::refresh() {
  const QSize before = view_->size();
  view_->refresh();
  if (view_->size() != before) layOut();
}

void EditingAreaRoom::zoom(ZoomStep step) {
  zoomAround(step, positionToKeep());
  if (const QRect cursor = view_->shownCursor(); !cursor.isEmpty()) scrollTo(cursor);
}

QPointF EditingAreaRoom::positionToKeep() const {
  if (const QRect cursor = view_->shownCursor(); !cursor.isEmpty()) return QRectF(cursor).center();
  const QPoint mouse = viewport()->mapFromGlobal(QCursor::pos());
  const QRect visible = viewport()->rect();
  return view_->mapFrom(viewport(), visible.contains(mouse) ? mouse : visible.center());
}

// The icon has the same point at the same place before and after.
void EditingAreaRoom::zoomAround(ZoomStep step, const QPointF& position) {
  const QPointF place = position + view_->pos();
  const double before = view_->width();
  emit zoomRequested(step);
  const QPointF corner = place - position * (view_->width() / before);
  horizontalScrollBar()->setValue(qRound(-corner.x()));
  verticalScrollBar()->setValue(qRound(-corner.y()));
}

// The room that is left beside the scroll bars that are needed. It is computed, because setting one range shows a bar
// at once and changes the viewport.
QSize EditingAreaRoom::visibleSize() const {
  const QSize all = view_->size();
  const QSize most = maximumViewportSize();
  const int row = horizontalScrollBar()->sizeHint().height();
  const int column = verticalScrollBar()->sizeHint().width();
  const bool isWide =
      all.width() > most.width() || (all.height() > most.height() && all.width() > most.width() - column);
  const bool isHigh = all.height() > most.height() || (isWide && all.height() > most.height() - row);
  return {most.width() - (isHigh ? column : 0), most.height() - (isWide ? row : 0)};
}

void EditingAreaRoom::layOut() {
  const QSize page = visibleSize();
  const auto set = [](QScrollBar& bar, int all, int shown) {
    bar.setPageStep(shown);
    bar.setSingleStep(kScrollStep);
    bar.setRange(0, all - shown);
  };
  set(*horizontalScrollBar(), view_->width(), page.width());
  set(*verticalScrollBar(), view_->height(), page.height());
  placeView();
}

void EditingAreaRoom::placeView() {
  const auto corner = [](int room, int length, int scrolled) {
    return length < room ? (room - length) / 2 : -scrolled;
  };
  const QRect room = viewport()->rect();
  view_->move(corner(room.width(), view_->width(), horizontalScrollBar()->value()),
              corner(room.height(), view_->height(), verticalScrollBar()->value()));
  viewport()->update();
}

void EditingAreaRoom::scrollTo(const QRect& part) {
  const auto bring = [](QScrollBar& bar, int from, int to) {
    if (from < bar.value()) bar.setValue(from);
    if (to > bar.value() + bar.pageStep()) bar.setValue(to - bar.pageStep());
  };
  bring(*horizontalScrollBar(), part.left(), part.left() + part.width());
  bring(*verticalScrollBar(), part.top(), part.top() + part.height());
}

void EditingAreaRoom::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
  constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;
  const auto zoomAtMouse = [&](ZoomStep step) { zoomAround(step, event->position() - view_->pos()); };
  wheelTurn_ += event->angleDelta().y();
  for (; wheelTurn_ >= kNotch; wheelTurn_ -= kNotch) zoomAtMouse(ZoomStep::In);
  for (; wheelTurn_ <= -kNotch; wheelTurn_ += kNotch) zoomAtMouse(ZoomStep::Out);
}

void EditingAreaRoom::scrollContentsBy(int, int) { placeView(); }

void EditingAreaRoom::resizeEvent(QResizeEvent*) {
  layOut();
  emit resized(size());
}

void EditingAreaRoom::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), QColor(toRgb(kGround)));
  painter.setPen(QColor(kRoomOutline));
  painter.drawRect(view_->geometry().adjusted(-1, -1, 0, 0));
  if (!view_->hasFocus()) return;
  constexpr int kAround = 1 + kFocusRing;
  paintFocusRing(painter, view_->geometry().adjusted(-kAround, -kAround, kAround, kAround),
                 accentOn(QColor(toRgb(kGround)), palette()));
}

}  // namespace gp
