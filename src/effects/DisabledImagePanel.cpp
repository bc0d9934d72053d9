#include "effects/DisabledImagePanel.h"

#include "effects/DisabledImage.h"

namespace gp {

DisabledImagePanel::DisabledImagePanel(EffectFrame& frame) : EffectPanel(frame, kNumber) {}

IconImage DisabledImagePanel::apply(const Surface& image, const Surface& mask) const {
  return disabledImage(image, mask);
}

}  // namespace gp
