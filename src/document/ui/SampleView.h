// A square in which a side panel shows a picture, centred and enlarged by the largest integer factor that fits. It
// keeps no pixels. The Surface must outlive it and can change at any time; refresh() shows the change.
#pragma once

#include "platform/gdi/Surface.h"
#include "platform/qt/Accessibility.h"

#include <QWidget>

namespace gp {

class SampleView : public QWidget, public AccessibleValue {
 public:
  // `room` is the side of the largest picture, in device-independent pixels.
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
