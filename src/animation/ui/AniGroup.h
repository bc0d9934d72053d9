// A labelled group of controls of the pane. While it is flat, neither caption nor frame take any space.
#pragma once

#include "platform/qt/widgets/CaptionFrame.h"

class QHBoxLayout;
class QVBoxLayout;

namespace gp {

class AniGroup final : public CaptionFrame {
  Q_OBJECT

 public:
  static constexpr int kGap = 4;

  AniGroup(QWidget* parent, const QString& objectName, const QString& caption);

  void setFlat(bool flat);
  // Adds an empty row for controls.
  QHBoxLayout* addRow();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void makeMargins();

  QVBoxLayout* rows_;
  bool flat_ = false;
};

}  // namespace gp
