// picDisp of the alpha screen, magnified, within a border that shows that it has the focus.
#pragma once

#include "document/ui/MagnifiedView.h"

namespace gp {

class AlphaPictureView final : public MagnifiedView {
  Q_OBJECT

 public:
  AlphaPictureView(QWidget* parent, const MagnifiedPicture& picture);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

class AlphaAreaView final : public QWidget {
  Q_OBJECT

 public:
  AlphaAreaView(QWidget* parent, const MagnifiedPicture& picture);

  MagnifiedView& view() { return *view_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  AlphaPictureView* view_;
};

}  // namespace gp
