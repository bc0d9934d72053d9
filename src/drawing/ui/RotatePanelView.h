// fraPanel(4): angle, slider, Antialias and the sample of rotating by any angle. It keeps nothing: it shows what the
// panel's logic holds, each time that it tells of a change. It must go before the logic does.
#pragma once

#include "platform/qt/widgets/PanelFrame.h"

class QCheckBox;
class QComboBox;
class QSlider;

namespace gp {

class RotatePanel;
class SampleView;

class RotatePanelView : public PanelFrame {
  Q_OBJECT

 public:
  RotatePanelView(QWidget* parent, RotatePanel& panel);
  ~RotatePanelView() override;

  void refresh();

 private:
  QWidget* makeAngleRow();
  QWidget* makeSlider();
  QWidget* makeAntialias();
  QWidget* makeSample();
  void refreshAngle();

  RotatePanel& panel_;
  QComboBox* cboRotateImageAngle_ = nullptr;
  QSlider* hsrRotateImageAngle_ = nullptr;
  QCheckBox* ckbRotateImageAntiAlias_ = nullptr;
  SampleView* picRotateImageSample_ = nullptr;
};

}  // namespace gp
