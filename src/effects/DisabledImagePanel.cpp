#include "effects/DisabledImagePanel.h"

#include "document/PanelNumbers.h"
#include "effects/DisabledImage.h"

namespace gp {

DisabledImagePanel::DisabledImagePanel(EffectFrame& frame) : EffectPanel(frame, kDisabledImagePanel) {}

void DisabledImagePanel::open() {
  if (frame().mayApply()) show();
}

IconPicture DisabledImagePanel::apply(const Surface& image, const Surface& mask) const {
  return disabledImage(image, mask);
}

}  // namespace gp
