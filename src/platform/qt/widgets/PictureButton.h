// A flat button with one of the program's pictures. Its tooltip is also its accessible name, unless another one is set.
// While it is checked or pressed, the picture is on a tile that is dark in a light window and light in a dark one.
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

  // A dimmed button looks disabled, but still accepts clicks; its owner decides what they do.
  void setDimmed(bool dimmed);
  bool isDimmed() const { return dimmed_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintTile(QPainter& painter) const;

  QIcon reversed_;
  bool dimmed_ = false;
};

}  // namespace gp
