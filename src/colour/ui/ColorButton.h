// A button that shows only its colour. The colour must outlive it and can change at any time; refresh() shows the
// change. Enter presses it, as Space does.
#pragma once

#include "platform/gdi/Surface.h"

#include <QAbstractButton>

namespace gp {

class ColorButton : public QAbstractButton {
  Q_OBJECT

 public:
  // The tooltip is also the accessible name.
  ColorButton(QWidget* parent, const QString& objectName, const QString& tooltip, const Color& shown);

  void refresh();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  const Color& shown_;
};

}  // namespace gp
