// A small rectangle that shows a colour beside the control that uses it. The colour must outlive it and can change at
// any time; refresh() shows the change.
#pragma once

#include "platform/gdi/Surface.h"
#include "platform/qt/Accessibility.h"

#include <QWidget>

namespace gp {

class ColorSample : public QWidget, public AccessibleValue {
 public:
  ColorSample(QWidget* parent, const QString& objectName, const QString& accessibleName, const Color& shown);

  void refresh();

  QString accessibleValue() const override;
  QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Color& shown_;
  Color last_;
};

}  // namespace gp
