// The Panel that reduces the icon's colours, in one of three runs: to 256 colours, to 16, to black and white. Each run
// has a list of methods. Undo keeps no step of it.
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
  static constexpr std::array<int, 0> kCommands{};  // it has commands of its own

  explicit ConfinePanel(EffectFrame& frame);

  // Brings the Panel up for run 0, 1 or 2. An icon that has so few colours already is not reduced: what its record
  // tells of it may be put right then.
  void doConfineColors(int run);

  int run() const { return run_; }
  // List index of cboConfineColors(0) to (2).
  int cboConfineColors(int run) const { return methods_.at(static_cast<std::size_t>(run)); }
  int thresholdIndex() const { return thresholdIndex_; }
  // Whether the list of thresholds and its label are there.
  bool showsThreshold() const;
  // lblConfineColors(1), the caption of the run.
  const char* caption() const;

  // Clicks on the list of the present run and on the list of thresholds. An index outside is ignored. They pump
  // messages: a later choice that comes in is the one that is shown.
  void pickMethod(int index);
  void pickThreshold(int index);

 protected:
  IconImage apply(const Surface& image, const Surface& mask) const override;
  bool mayProceed() override;
  bool isStep() const override { return false; }

 private:
  bool hasFewColors(int run);
  void offerToCorrectRecord(int colors);
  void confinePreview();

  int run_ = 0;
  std::array<int, kConfineRuns> methods_{};
  int thresholdIndex_ = 127;
};

}  // namespace gp
