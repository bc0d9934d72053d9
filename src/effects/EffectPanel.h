// A side panel that shows the Current Icon with an effect, and applies the effect on Proceed. The sample and the result
// come from the same function, `apply`, so the sample always shows what Proceed makes.
#pragma once

#include "document/IconImage.h"
#include "effects/EffectFrame.h"

namespace gp {

struct EffectRow;

class EffectPanel {
 public:
  // `number` is the index of fraPanel.
  EffectPanel(EffectFrame& frame, int number) : frame_(frame), number_(number) {}
  virtual ~EffectPanel() = default;
  EffectPanel(const EffectPanel&) = delete;
  EffectPanel& operator=(const EffectPanel&) = delete;

  // Shows the panel for one of its effects. When the Current Icon takes no effects, shows the reason instead.
  virtual void open(const EffectRow& effect);
  // Makes the samples again from the icon as it is now; they are empty while there is no icon. Does nothing while the
  // panel is not visible.
  void preview();
  // Applies the effect to the Current Icon, which may be another one than the panel was opened for, and closes the
  // panel. When the icon takes no effects, shows the reason and leaves the panel open.
  void proceed();

  // The icon as last previewed, and its look.
  const IconImage& picture() const { return picture_; }
  const Surface& sample() const { return sample_; }
  int number() const { return number_; }

 protected:
  // Returns the icon with the effect.
  virtual IconImage apply(const IconImage& icon) const = 0;
  // What Proceed does to an icon that takes the effect: by default the Current Icon becomes the icon with the effect.
  virtual void commit();
  // What follows after it: announces the result and records the step of Undo.
  virtual void finish();
  // Draws the samples that a panel has besides `sample`.
  virtual void drawSamples() {}
  // Whether the Current Icon takes the effect; if not, shows the reason.
  virtual bool mayProceed() { return frame_.mayApply(); }

  // Shows the panel with its samples.
  void show();
  EffectFrame& frame() const { return frame_; }

 private:
  EffectFrame& frame_;
  const int number_;
  IconImage picture_;
  Surface sample_;
};

}  // namespace gp
