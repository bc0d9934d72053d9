// fraPanel(6): the ball with its light, its colour, the factor and the size.
#pragma once

#include "effects/SpherePanel.h"
#include "effects/ui/EffectPanelView.h"

class QComboBox;

namespace gp {

class ColorButton;
class PointSampleView;

class SpherePanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  SpherePanelView(QWidget* parent, SpherePanel& panel);

 protected:
  void refresh() override;

 private:
  SpherePanel& panel_;
  // In the order of the Tab key.
  QComboBox* size_;
  QComboBox* factor_;
  ColorButton* color_;
  PointSampleView* sample_;
};

}  // namespace gp
