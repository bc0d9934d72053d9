// fraPanel(4): angle, slider, Antialias and the sample of rotating by any angle. It stores nothing: refresh() shows
// what the RotatePanel contains. The RotatePanel must outlive it.
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

  // The Current Icon has changed.
  void follow();
  // Shows the angle and the sample of the RotatePanel.
  void refresh();

 private:
  QWidget* makeAngle();
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
