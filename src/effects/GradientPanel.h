// The side panel that paints the icon's transparent pixels in one of four gradients, each with its sample.
#pragma once

#include "effects/EffectPanel.h"
#include "effects/Gradient.h"

#include <array>

namespace gp {

class clsGPDialog;

class GradientPanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 8;
  static constexpr int kAngles = 2;  // of the linear and of the symmetric gradient
  static constexpr int kColors = 2;

  GradientPanel(EffectFrame& frame, clsGPDialog& dialog);

  // Shows the panel, unless the icon is painted everywhere.
  void open(const EffectRow& effect) override;

  // OptGradType: the gradient that Proceed paints.
  GradientKind kind() const { return kind_; }
  // List index of cboGradientAngle(i), which is its angle.
  int angle(int i) const { return angles_.at(static_cast<std::size_t>(i)); }
  // The colour of cmdGradientColor(i).
  const Color& color(int i) const { return colors_.at(static_cast<std::size_t>(i)); }
  // The gradients of all kinds, of the icon's size; without pixels while there is no icon.
  const Surface& PicGradient(int kind) const { return samples_.at(static_cast<std::size_t>(kind)).picture; }
  // The centre of the spherical gradient, a point in icon pixels.
  int center() const;
  // What the effect gets for a gradient of that kind.
  EffectValues valuesOf(GradientKind kind) const;

  // Indices out of range are ignored.
  void pickKind(int kind);
  void pickAngle(int i, int index);
  // A click on the sample of the spherical gradient: its new centre, in icon pixels. It holds for icons of this
  // size; on others the gradient is around the middle. A click outside is ignored.
  void clickCenter(int x, int y);
  // cmdGradientColor(0) and (1): opens the colour dialog; cmdGradientColor(2).
  void chooseColor(int i);
  void swapColors();

 protected:
  IconImage apply(const IconImage& icon) const override;
  void drawSamples() override;
  bool mayProceed() override;

 private:
  // 0 without an icon.
  int iconSide() const;
  // The gradient of a kind for the icon as it is now.
  const Surface& drawnSample(GradientKind kind) const;

  clsGPDialog& dialog_;
  GradientKind kind_ = GradientKind::Linear;
  std::array<int, kAngles> angles_{};
  std::array<Color, kColors> colors_;
  int center_ = 0;
  int centerSide_ = 0;  // of the icon that the centre belongs to
  // A straight gradient takes time, so each is drawn once for its values.
  struct Sample {
    Surface picture = Surface();
    EffectValues values;
  };
  mutable std::array<Sample, kGradientKinds> samples_;
};

}  // namespace gp
