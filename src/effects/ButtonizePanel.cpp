#include "effects/ButtonizePanel.h"

#include "document/PanelNumbers.h"

namespace gp {

ButtonizePanel::ButtonizePanel(EffectFrame& frame) : EffectPanel(frame, kButtonizePanel) {}

void ButtonizePanel::open() {
  if (frame().mayApply()) show();
}

void ButtonizePanel::pickPattern(int index) {
  if (index < 0 || index >= kButtonPatterns) return;
  settings_.pattern = index;
  preview();
}

IconPicture ButtonizePanel::apply(const Surface& image, const Surface& mask) const {
  return buttonize(image, mask, settings_);
}

}  // namespace gp
