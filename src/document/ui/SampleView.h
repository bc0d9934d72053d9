// The square in which a side panel shows a picture: as large as whole factors allow, in the middle. It keeps no pixels:
// the Surface, which must outlive it, may get another size or content at any time; refresh() shows it.
#pragma once

#include "platform/gdi/Surface.h"
#include "platform/qt/Accessibility.h"

#include <QWidget>

namespace gp {

class SampleView : public QWidget, public AccessibleValue {
 public:
  // `room` is the side of the largest picture, in pixels of the desktop.
  SampleView(QWidget* parent, const QString& objectName, const QString& accessibleName, const Surface& picture,
             int room);

  // Shows the picture again after it got another content or size.
  void refresh();
  // Sets what a screen reader speaks; until then it is the size of the picture.
  void setValueText(const QString& text);

  QString accessibleValue() const override;
  QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int factor() const;

  const Surface& picture_;
  const int room_;
  QString value_;
};

}  // namespace gp
