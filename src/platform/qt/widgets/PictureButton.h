// A flat button with one of the program's pictures. Its tooltip is also its accessible name, unless another one is set.
// The tooltip on the screen also names the key. A checkable button shows what the program has chosen: a click changes
// nothing by itself. While it is checked or pressed, the picture is on a tile that is dark in a light window and light
// in a dark one.
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
  // The key that does the same, such as "Ctrl+S"; empty for none. It is handled elsewhere.
  void setKey(const QString& key);
  // For a button that can be checked: one of several choices, or one that is on or off by itself.
  void setChoice();
  void setToggle();

 protected:
  bool event(QEvent* event) override;
  void nextCheckState() override {}
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintTile(QPainter& painter) const;

  QIcon reversed_;
  bool dimmed_ = false;
  QString key_;
};

}  // namespace gp
