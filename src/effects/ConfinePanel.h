// The side panel that reduces the icon's colours, in one of three runs: to 256 colours, to 16, or to black and white.
// Each run has a list of methods. A reduction cannot be undone.
#pragma once

#include "effects/ColorReduction.h"
#include "effects/EffectPanel.h"

#include <array>

namespace gp {

inline constexpr int kConfineRuns = 3;
inline constexpr int kFirstThreshold = 1;  // the item at index i of cboConfineColors(3) is the threshold i + 1
inline constexpr int kThresholdCount = 354;

class ConfinePanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 19;

  explicit ConfinePanel(EffectFrame& frame);

  // Shows the panel for run 0, 1 or 2. An icon that has no more colours than the run allows is not reduced; if its
  // record says true colour, the user is asked whether to correct the record.
  void doConfineColors(int run);

  int run() const { return run_; }
  // List index of cboConfineColors(0) to (2).
  int cboConfineColors(int run) const { return methods_.at(static_cast<std::size_t>(run)); }
  int thresholdIndex() const { return thresholdIndex_; }
  // Whether the list of thresholds and its label are visible.
  bool showsThreshold() const;
  // lblConfineColors(1), the caption of the run.
  const char* caption() const;

  // Clicks on the list of the current run and on the list of thresholds. An index outside the list is ignored. Both
  // pump messages; a choice that arrives meanwhile replaces this one.
  void pickMethod(int index);
  void pickThreshold(int index);

 protected:
  IconImage apply(const IconImage& icon) const override;
  bool mayProceed() override;
  // Earlier steps cannot be undone either.
  void finish() override;

 private:
  bool hasFewColors(int run);
  void offerToCorrectRecord(int colors);
  void confinePreview();

  int run_ = 0;
  std::array<int, kConfineRuns> methods_{};
  int thresholdIndex_ = 127;
};

}  // namespace gp
