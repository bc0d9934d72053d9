// Which view shows the Panel of which effect.
#pragma once

class QWidget;

namespace gp {

class EffectPanelView;
class Effects;

// The view of the Panel of that number; null if it is not one of an effect.
EffectPanelView* makeEffectView(int number, QWidget* parent, const Effects& effects);

}  // namespace gp
