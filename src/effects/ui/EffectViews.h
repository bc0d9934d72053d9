// Makes the views of the effects' side panels.
#pragma once

class QWidget;

namespace gp {

class EffectPanelView;
class Effects;

// Returns the view of the panel of that number, a child of `parent`; null when that is no panel of an effect.
EffectPanelView* makeEffectView(int number, QWidget* parent, const Effects& effects);

}  // namespace gp
