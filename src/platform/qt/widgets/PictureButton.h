// A flat button with one of the program's pictures. Its tooltip is also its accessible name, unless another one is set.
// The tooltip on the screen also names the key. A checkable button is a radio button that shows what the program has
// chosen: a click changes nothing by itself.
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
  // For a button that can be checked.
  void setChoice();

 protected:
  bool event(QEvent* event) override;
  void nextCheckState() override {}
  void paintEvent(QPaintEvent* event) override;

 private:
  bool dimmed_ = false;
  QString key_;
};

}  // namespace gp
