// The Panel that frames the icon as a button: its list of patterns and the sample of the chosen one.
#pragma once

#include "effects/Buttonize.h"
#include "effects/EffectPanel.h"

#include <array>

namespace gp {

class ButtonizePanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 7;
  static constexpr std::array kCommands{3};

  explicit ButtonizePanel(EffectFrame& frame);

  // cboButtonizePattern. An index outside is ignored.
  int cboButtonizePattern() const { return settings_.pattern; }
  void pickPattern(int index);
  const Surface& picButtonize() const { return sample(); }

 protected:
  IconImage apply(const Surface& image, const Surface& mask) const override;

 private:
  ButtonizeSettings settings_;
};

}  // namespace gp
