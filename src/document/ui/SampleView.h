// A picture on a side panel, in the upper left corner and enlarged by the largest whole number of device pixels that
// fits. It keeps no pixels. The Surface must outlive it and can change at any time; refresh() shows the change.
#pragma once

#include "platform/gdi/Surface.h"
#include "platform/qt/Accessibility.h"

#include <QWidget>

namespace gp {

// What a sample does with space that the others leave.
enum class SampleRoom { Grows, Fixed };

class SampleView : public QWidget, public AccessibleValue {
 public:
  // `side` is that of the largest picture that always fits, in device-independent pixels.
  SampleView(QWidget* parent, const QString& objectName, const QString& accessibleName, const Surface& picture,
             int side, SampleRoom room = SampleRoom::Grows);

  // Shows the picture again after it got another content or size.
  void refresh();
  // Sets what a screen reader speaks; until then it is the size of the picture.
  void setValueText(const QString& text);
  // The enlarged picture without its outline, in device pixels; as large as the space allows while there is none.
  QRect place() const;

  QString accessibleValue() const override;
  QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }

 protected:
  const Surface& picture() const { return picture_; }
  void paintEvent(QPaintEvent* event) override;

 private:
  const Surface& picture_;
  QString value_;
};

}  // namespace gp
