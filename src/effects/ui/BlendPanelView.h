// fraPanel(16): the current container, the container whose icon is blended in, the percentage, and the sample.
#pragma once

#include "effects/BlendPanel.h"
#include "effects/ui/EffectPanelView.h"

class QComboBox;

namespace gp {

class BlendPanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  BlendPanelView(QWidget* parent, BlendPanel& panel);

 protected:
  void refresh() override;

 private:
  BlendPanel& panel_;
  QLabel* lblBlendIn_;
  QComboBox* container_;
  QComboBox* percent_;
};

}  // namespace gp
