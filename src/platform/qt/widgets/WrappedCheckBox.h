// A tick box whose text continues on further lines when it is too long for one.
#pragma once

#include <QCheckBox>

namespace gp {

class WrappedCheckBox : public QCheckBox {
  Q_OBJECT

 public:
  WrappedCheckBox(const QString& text, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int textLeft() const;
  // The text's place in a box of this width, with the height that the text needs.
  QRect textRect(int width) const;
};

}  // namespace gp
