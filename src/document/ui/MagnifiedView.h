// A magnified icon that can be worked on with mouse and keyboard: the Editing Area and its like. Paints the exposed
// part directly from a Surface, in whole device pixels, and reports positions in pixels of this Surface. Keeps no
// pixels.
#pragma once

#include "document/ScreenScale.h"
#include "document/ui/PixelCursor.h"
#include "platform/gdi/Surface.h"
#include "platform/qt/Accessibility.h"

#include <QWidget>

#include <functional>

namespace gp {

// What a MagnifiedView shows: a square Surface in which each icon pixel is a cell of `magnification` x `magnification`
// pixels, never empty. Both are read at each event; they must outlive the view.
struct MagnifiedPicture {
  const Surface& surface;
  const int& magnification;
};

class MagnifiedView : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  MagnifiedView(QWidget* parent, const QString& objectName, const QString& accessibleName,
                const MagnifiedPicture& picture);

  // Sets what a screen reader speaks for the icon pixel under the pixel cursor. Without it the view has no value.
  void setPixelDescription(std::function<QString(QPoint pixel)> describe) { describePixel_ = std::move(describe); }

  // The Surface has another size or other pixels.
  void refresh();
  // A rectangle of the Surface changed, in its own pixels.
  void refreshPart(int x, int y, int width, int height);

  // Sets what answers whether a press of the keyboard stays down after it was reported. Without it, Space presses and
  // releases at once.
  void setHoldQuestion(std::function<bool()> isHeld) { isHeld_ = std::move(isHeld); }

  // The icon pixel that the keyboard works on, and where its middle is on the screen.
  const QPoint& pixelCursor() const { return cursor_.position(); }
  QPoint pixelCursorOnScreen() const;
  // The cell of that pixel in the view's own pixels; empty while the keyboard is not used.
  QRect shownCursor() const;

  QString accessibleValue() const override;
  QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
  QSize sizeHint() const override;

 signals:
  // Positions are in pixels of the Surface and may lie outside. The keyboard acts in the middle of a cell. After a
  // press of the left button there is always one release of it, even if a window or a menu takes the real one. After a
  // press by keyboard there is one release or givenUp(), unless it has ended otherwise; the mouse is not reported
  // before.
  void pressed(QPointF position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers, bool byKeyboard);
  void moved(QPointF position, Qt::KeyboardModifiers modifiers, bool byKeyboard);
  void released(QPointF position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers, bool byKeyboard);
  void givenUp();
  void left();
  // Shift with an arrow key, in icon pixels; the step can be longer than any icon.
  void sizeRequested(QPoint step);
  // The pixel cursor or a held mouse moved there, in the view's own pixels.
  void workedAt(QRect part);

 protected:
  ScreenScale scale() const;
  // Painted over the icon and beneath the pixel cursor, in device pixels.
  virtual void paintMarks(QPainter& /*painter*/) const {}
  // The width of the lines of a mark, device pixels.
  int markLine() const;

  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  int cells() const;
  QPointF sourceAt(const QPointF& position) const;
  QPointF cursorCentre() const;
  QRect cursorRect() const;
  void hold(const QMouseEvent* event);
  void endHold();
  bool usesKey(int key, Qt::KeyboardModifiers modifiers);
  bool moveCursor(int key, Qt::KeyboardModifiers modifiers);
  void pressSpace(Qt::KeyboardModifiers modifiers);
  void releaseByKey(Qt::KeyboardModifiers modifiers);
  bool isHeldByKey();
  void giveUp();
  void showCursor(bool shown);
  void paintCursor(QPainter& painter) const;

  const MagnifiedPicture picture_;
  std::function<QString(QPoint)> describePixel_;
  PixelCursor cursor_;
  bool cursorShown_ = false;
  bool held_ = false;  // the left button is down; lastHeld_ is its last position, in icon pixels
  QPointF lastHeld_;
  std::function<bool()> isHeld_;
  bool heldByKey_ = false;               // Space pressed and has not released
  Qt::KeyboardModifiers heldModifiers_;  // of that press
};

}  // namespace gp
