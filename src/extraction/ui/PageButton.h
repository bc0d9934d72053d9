// A button of cmdPageRef, for one page of the panel of icons. The button of the current page has another colour, bold
// text and a frame. A click changes nothing by itself.
#pragma once

#include <QAbstractButton>

namespace gp {

class PageButton final : public QAbstractButton {
  Q_OBJECT

 public:
  PageButton(QWidget* parent, int page);

  QSize sizeHint() const override;

 protected:
  void nextCheckState() override {}
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace gp
