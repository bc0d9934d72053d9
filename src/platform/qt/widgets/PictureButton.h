// A flat button with one of the program's pictures. Its tooltip is also the name that assistive technology speaks,
// unless it is given another.
#pragma once

#include <QToolButton>

#include <string_view>

namespace gp {

struct PictureButtonLook {
  const char* picture;
  QString tooltip;
  int side;  // width and height, pixels
};

class PictureButton : public QToolButton {
  Q_OBJECT

 public:
  PictureButton(QWidget* parent, const QString& objectName, const PictureButtonLook& look);

  // Looks disabled, but still takes clicks: what they do is told by whoever handles them.
  void setDimmed(bool dimmed);
  bool isDimmed() const { return dimmed_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool dimmed_ = false;
};

}  // namespace gp
