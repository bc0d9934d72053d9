// A swatch of the mixer: a button that shows only its colour. Any mouse button selects the colour.
#pragma once

#include "platform/gdi/Surface.h"

#include <QAbstractButton>

namespace gp {

class MixSwatch : public QAbstractButton {
  Q_OBJECT

 public:
  MixSwatch(QWidget* parent, const QString& objectName, const QString& accessibleName);

  void setColor(Color color);
  Color color() const { return color_; }

 signals:
  // The pointer moved over the swatch, or the swatch got the keyboard focus.
  void hovered();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  Color color_ = kBlack;
};

}  // namespace gp
