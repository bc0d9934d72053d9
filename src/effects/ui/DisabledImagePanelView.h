// fraPanel(15): the sample of the icon as a button that cannot be pressed.
#pragma once

#include "effects/ui/EffectPanelView.h"

namespace gp {

class DisabledImagePanel;

class DisabledImagePanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  DisabledImagePanelView(QWidget* parent, DisabledImagePanel& panel);
};

}  // namespace gp
