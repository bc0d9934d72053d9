// fraPanel(13): the sample of the effect that the panel was opened for, and whether a shadow takes the current colour.
#pragma once

#include "effects/ui/EffectPanelView.h"

class QCheckBox;

namespace gp {

class ShadesPanel;

class ShadesPanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  ShadesPanelView(QWidget* parent, ShadesPanel& panel);

 protected:
  void refresh() override;

 private:
  QCheckBox* makeUseSelectedColor();

  ShadesPanel& panel_;
  QCheckBox* ckbUseSelectedColor_;
  QLabel* lblEffectsSample_;
};

}  // namespace gp
