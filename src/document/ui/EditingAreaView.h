// The Editing Area (picDisp) and the area around it (picDispContainer).
#pragma once

#include "document/ScreenState.h"
#include "document/Zoom.h"
#include "document/ui/MagnifiedView.h"

#include <QAbstractScrollArea>

namespace gp {

struct EditState;

// The magnified view of the Current Icon.
class EditingAreaView : public MagnifiedView {
  Q_OBJECT

 public:
  EditingAreaView(QWidget* parent, const EditState& state);

  // Empty without an icon.
  QString accessibleValue() const override;

 signals:
  // The keyboard asks for the pop-up menu.
  void popUpRequested(QPoint globalPosition);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintMarks(QPainter& painter) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  const EditState& state_;
};

// picDispContainer: keeps the Editing Area in its middle, with scroll bars only while it does not fit, and shows around
// it that it has the focus. The wheel scrolls, and with Ctrl it asks for a zoom.
class EditingAreaRoom : public QAbstractScrollArea {
  Q_OBJECT

 public:
  EditingAreaRoom(QWidget* parent, const EditState& state);

  EditingAreaView& view() { return *view_; }
  void refresh();
  // Asks for a zoom by keyboard. What the keyboard or the mouse works on keeps its place, or else the middle.
  void zoom(ZoomStep step);

 signals:
  // The size with the scroll bars, which therefore do not change it.
  void resized(QSize client);
  void zoomRequested(ZoomStep step);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void zoomAround(ZoomStep step, const QPointF& position);
  QSize visibleSize() const;
  void layOut();
  void placeView();
  void scrollTo(const QRect& part);
  QPointF positionToKeep() const;

  EditingAreaView* view_;
  int wheelTurn_ = 0;  // with Ctrl, less than a notch
};

}  // namespace gp
