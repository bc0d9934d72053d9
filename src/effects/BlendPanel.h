// The side panel that blends the icon of another container into the Current Icon.
#pragma once

#include "effects/EffectPanel.h"

#include <string>
#include <vector>

namespace gp {

class BlendPanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 16;

  explicit BlendPanel(EffectFrame& frame);

  // Shows the panel without a chosen container, unless none has an icon to blend in.
  void open(const EffectRow& effect) override;

  // The entries of cboBlendIn(0): an empty one, then the numbers of all other containers that have an icon of the same
  // size without alpha. They follow the containers while the panel is visible.
  std::vector<std::string> containerEntries() const;
  // List index of cboBlendIn(0), which is 0 while no container is chosen, and of cboBlendIn(1).
  int containerIndex() const;
  int percentIndex() const { return percentIndex_; }
  // The number of the current container.
  std::string lblBlendIn() const;

  // Choices in the lists; an index outside the list is ignored. Both pump messages; a choice that arrives meanwhile is
  // the one that is previewed.
  void pickContainer(int index);
  void pickPercent(int index);

 protected:
  // Without a container, the icon as it is.
  IconImage apply(const IconImage& icon) const override;
  void drawSamples() override { fillContainers(); }
  // Without a container, says so.
  bool mayProceed() override;

 private:
  bool fits(int container) const;
  // Lists the containers that fit, and gives up a chosen one that does not.
  void fillContainers();
  void doBlendPreview();

  std::vector<int> containers_;  // those in the list, counted from 0
  int chosen_;                   // one of them
  int percentIndex_;
  bool mBlendBusy_ = false;
};

}  // namespace gp
