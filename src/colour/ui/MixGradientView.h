// picMixGradient on the screen: the mixer's strip with its marker, usable by mouse and keyboard. The arrow keys move
// the marker row by row; Enter and Space select the colour there.
#pragma once

#include "platform/qt/Accessibility.h"

#include <QWidget>

namespace gp {

class ColorMixer;

class MixGradientView : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  static constexpr int kHeight = 204;  // pixels

  MixGradientView(QWidget* parent, const ColorMixer& mixer);

  QString accessibleValue() const override;
  QAccessible::Role accessibleRole() const override { return QAccessible::ColorChooser; }

 signals:
  // Positions are in pixels of the strip.
  void pressed(QPoint position);
  void moved(QPoint position);
  void released(QPoint position);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QPoint cursor() const;

  const ColorMixer& mixer_;
};

}  // namespace gp
