#include "effects/ButtonizePanel.h"

namespace gp {

ButtonizePanel::ButtonizePanel(EffectFrame& frame) : EffectPanel(frame, kNumber) {}

void ButtonizePanel::pickPattern(int index) {
  if (index < 0 || index >= kButtonPatterns) return;
  settings_.pattern = index;
  preview();
}

IconImage ButtonizePanel::apply(const Surface& image, const Surface& mask) const {
  return buttonize(image, mask, settings_);
}

}  // namespace gp
