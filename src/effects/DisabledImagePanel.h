// The Panel that shows the icon as a toolbar button that cannot be pressed. It has no settings.
#pragma once

#include "effects/EffectPanel.h"

#include <array>

namespace gp {

class DisabledImagePanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 15;
  static constexpr std::array kCommands{21};

  explicit DisabledImagePanel(EffectFrame& frame);

  const Surface& picImageForDisabledBtn() const { return sample(); }

 protected:
  IconImage apply(const Surface& image, const Surface& mask) const override;
};

}  // namespace gp
