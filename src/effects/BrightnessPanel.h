// The side panel that makes the colours of the icon brighter or darker. Each choice in one of its lists is one change,
// which works on what the changes before it have made; the list then returns to 0.
#pragma once

#include "effects/Brightness.h"
#include "effects/EffectPanel.h"

namespace gp {

class BrightnessPanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 9;

  explicit BrightnessPanel(EffectFrame& frame);

  // Starts without changes.
  void open(const EffectRow& effect) override;

  // A choice in cboBrightness(0) to (2) or cboBrightnessOverall: the index in the list. Another index is ignored.
  void adjust(BrightnessOf channel, int choice);
  void cmdBrightnessRestore();
  // Whether a change was chosen for the Current Icon; changes are forgotten when another icon comes up. A change by 0
  // percent is one as well.
  bool gChangedBrightness() const;

 protected:
  IconImage apply(const IconImage& icon) const override;
  // Without a change, says so.
  bool mayProceed() override;

 private:
  void forget();

  BrightnessTable table_;
  bool isChanged_ = false;
  unsigned icon_ = 0;  // the iconSerial of the icon that the changes are for
};

}  // namespace gp
