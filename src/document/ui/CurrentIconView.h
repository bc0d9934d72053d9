// PicIcon: the Current Icon at its own size, one device-independent pixel for each of its pixels.
#pragma once

#include <QWidget>

namespace gp {

struct EditState;

class CurrentIconView : public QWidget {
  Q_OBJECT

 public:
  CurrentIconView(QWidget* parent, const EditState& state);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const EditState& state_;
};

}  // namespace gp
