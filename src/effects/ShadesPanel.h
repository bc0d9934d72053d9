// The Panel of the effects that work on the whole icon at once: which of them it is tells the command that opened it.
#pragma once

#include "effects/EffectPanel.h"
#include "effects/Relief.h"

#include <array>

namespace gp {

class ShadesPanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 13;
  static constexpr std::array kCommands{11, 12, 13, 14};  // in the order of ReliefKind

  explicit ShadesPanel(EffectFrame& frame);

  void open(int command) override;

  // The name of the effect.
  const char* lblEffectsSample() const;
  const Surface& picEffectsSample() const { return sample(); }

  // ckbUseSelectedColor: the shadow takes the current colour. Only a shadow asks for it.
  bool ckbUseSelectedColor() const { return useSelectedColor_; }
  bool asksForColor() const { return mEffectKind_ == ReliefKind::Shadowed; }
  void setUseSelectedColor(bool use);

 protected:
  IconImage apply(const Surface& image, const Surface& mask) const override;

 private:
  ReliefKind mEffectKind_ = ReliefKind::Embossed;
  bool useSelectedColor_ = false;
};

}  // namespace gp
