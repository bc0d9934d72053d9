// fraPanel(8): the kinds with their angles, the four gradients side by side in the same order, the two colours, and the
// icon with the gradient.
#pragma once

#include "effects/GradientPanel.h"
#include "effects/ui/EffectPanelView.h"

#include <array>

class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QRadioButton;

namespace gp {

class ColorButton;
class PointSampleView;
class SampleView;

class GradientPanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  GradientPanelView(QWidget* parent, GradientPanel& panel);

 protected:
  void refresh() override;

 private:
  void addKinds();
  void addAngle(QGridLayout* grid, int kind);
  void addGradients();
  void addColors();
  ColorButton* makeColorButton(QWidget* parent, int i);

  GradientPanel& panel_;
  std::array<QRadioButton*, kGradientKinds> kinds_{};
  std::array<QComboBox*, GradientPanel::kAngles> angles_{};
  std::array<SampleView*, kGradientKinds> gradients_{};
  PointSampleView* spherical_ = nullptr;  // the last of them
  std::array<ColorButton*, GradientPanel::kColors> colors_{};
};

}  // namespace gp
