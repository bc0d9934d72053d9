// A Panel that shows what an effect would make of the Current Icon, and makes it on Proceed. Both come from the one
// function that a Panel of its own gives here; so the samples are what the icon becomes.
#pragma once

#include "document/IconImage.h"
#include "effects/EffectFrame.h"

#include <functional>

namespace gp {

class EffectPanel {
 public:
  // `number` is the index of fraPanel. A class of its own has it as kNumber, and as kCommands the indices of
  // mnuEffectsSub that open it.
  EffectPanel(EffectFrame& frame, int number) : frame_(frame), number_(number) {}
  virtual ~EffectPanel() = default;
  EffectPanel(const EffectPanel&) = delete;
  EffectPanel& operator=(const EffectPanel&) = delete;

  // Brings the Panel up for one of its commands, if the icon takes effects.
  virtual void open(int command);
  // Makes the samples anew, from the icon as it is now: an empty one while there is none. Nothing while the Panel is
  // not up.
  void preview();
  // The icon becomes what the settings make of it, which may be another icon than the Panel came up for. The Panel
  // stays up when the icon takes no effects.
  void proceed();

  // The icon as last previewed, and its look.
  const IconImage& picture() const { return picture_; }
  const Surface& sample() const { return sample_; }
  int number() const { return number_; }
  // What the view redraws when settings or samples changed.
  std::function<void()> onChange;

 protected:
  virtual IconImage apply(const Surface& image, const Surface& mask) const = 0;
  // Whether the icon that is there now takes the effect; if not, says why.
  virtual bool mayProceed() { return frame_.mayApply(); }
  // Whether it is a step of Undo; if not, nothing before it can be undone either.
  virtual bool isStep() const { return true; }

  // Brings the Panel up with its samples.
  void show();
  EffectFrame& frame() const { return frame_; }

 private:
  EffectFrame& frame_;
  const int number_;
  IconImage picture_;
  Surface sample_;
};

}  // namespace gp
