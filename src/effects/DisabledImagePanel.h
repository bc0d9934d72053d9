// The Panel that shows the icon as a toolbar button that cannot be pressed. It has no settings.
#pragma once

#include "effects/EffectPanel.h"

namespace gp {

class DisabledImagePanel final : public EffectPanel {
 public:
  explicit DisabledImagePanel(EffectFrame& frame);

  void open();
  const Surface& picImageForDisabledBtn() const { return sample(); }

 protected:
  IconPicture apply(const Surface& image, const Surface& mask) const override;
};

}  // namespace gp
