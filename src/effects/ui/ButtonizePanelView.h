// fraPanel(7): the list of the button's styles and the sample of the chosen one.
#pragma once

#include "effects/ui/EffectPanelView.h"

class QComboBox;

namespace gp {

class ButtonizePanel;

class ButtonizePanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  ButtonizePanelView(QWidget* parent, ButtonizePanel& panel);

 protected:
  void refresh() override;

 private:
  ButtonizePanel& panel_;
  QComboBox* cboButtonizePattern_;
};

}  // namespace gp
