// The magnified icon (picDisp) and the room it stands in (picDispContainer). The view paints the exposed part straight
// from the Surface and turns mouse and keyboard into positions on the Editing Area; what they mean is others' business.
#pragma once

#include "document/ScreenScale.h"
#include "document/ui/PixelCursor.h"
#include "platform/qt/Accessibility.h"

#include <QWidget>

#include <functional>

namespace gp {

struct EditState;

class EditingAreaView : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  EditingAreaView(QWidget* parent, const EditState& state);

  // What a person is told of an icon pixel that the pixel cursor is on.
  void setPixelDescription(std::function<QString(QPoint pixel)> describe) { describePixel_ = std::move(describe); }

  // picDisp has another size or other pixels.
  void refresh();
  // A rectangle of picDisp changed, in Editing Area pixels.
  void refreshPart(int x, int y, int width, int height);

  // Where the pixel cursor of the keyboard stands, on the screen.
  QPoint pixelCursorOnScreen() const;
  const QPoint& pixelCursor() const { return cursor_.position(); }

  QString accessibleValue() const override;
  QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
  QSize sizeHint() const override;

 signals:
  // Positions are in Editing Area pixels; buttons and modifiers are Qt's.
  void pressed(QPointF position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void moved(QPointF position, Qt::KeyboardModifiers modifiers);
  void released(QPointF position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void left();
  // The keyboard asks for the pop-up menu.
  void popUpRequested(QPoint globalPosition);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool event(QEvent* event) override;

 private:
  int cells() const;
  ScreenScale scale() const;
  QPointF sourceAt(const QPointF& position) const;
  QPointF cursorCentre() const;
  QRect cursorRect() const;
  void hold(const QMouseEvent* event);
  void endHold();
  void applyAtCursor(Qt::KeyboardModifiers modifiers);
  void showCursor(bool shown);
  void paintCursor(QPainter& painter) const;

  const EditState& state_;
  std::function<QString(QPoint)> describePixel_;
  PixelCursor cursor_;
  bool cursorShown_ = false;
  bool held_ = false;  // the left button is down, and lastHeld_ is where it was last
  QPointF lastHeld_;
};

// picDispContainer: keeps the Editing Area in its middle.
class EditingAreaRoom : public QWidget {
  Q_OBJECT

 public:
  EditingAreaRoom(QWidget* parent, const EditState& state);

  EditingAreaView& view() { return *view_; }
  void refresh();

 signals:
  void resized(QSize client);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void centre();

  EditingAreaView* view_;
};

}  // namespace gp
