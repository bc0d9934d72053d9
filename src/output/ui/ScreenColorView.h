// A picture at its own size in the middle of a field of a screen colour: one device-independent pixel for each of its
// pixels, or the next smaller whole number of device pixels. It keeps no pixels. Picture and colour must outlive it and
// can change at any time; refresh() shows the change.
#pragma once

#include "platform/gdi/Surface.h"
#include "platform/qt/Accessibility.h"

#include <QWidget>

namespace gp {

class ScreenColorView : public QWidget, public AccessibleValue {
 public:
  ScreenColorView(QWidget* parent, const QString& objectName, const QString& accessibleName, const Surface& picture,
                  const Color& color);

  void refresh();

  // The size of the picture, and the colour.
  QString accessibleValue() const override;
  QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Surface& picture_;
  const Color& color_;
};

}  // namespace gp
