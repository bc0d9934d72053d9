// picFilm: the visible part of the film, in whole device pixels, and the selection of a frame by mouse and keyboard.
#pragma once

#include "platform/qt/Accessibility.h"

#include <QWidget>

namespace gp {

struct AniEvents;

class AniFilmView final : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  // The events must outlive the view.
  AniFilmView(QWidget* parent, const AniEvents& events);

  void refresh();

  // "Frame 3 of 12, 6 jiffies".
  QString accessibleValue() const override;
  QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
  // As wide as a cell and as high as three.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  // Device pixels for a pixel of the film.
  int factor() const;
  // The area within the frame.
  QRect inside() const;
  void reportHeight();
  bool goBy(int key);

  const AniEvents& events_;
};

}  // namespace gp
