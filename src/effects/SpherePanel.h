// The side panel that replaces the icon by a ball. A click on its sample moves the light.
#pragma once

#include "effects/EffectPanel.h"
#include "effects/Sphere.h"

namespace gp {

class clsGPDialog;

class SpherePanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 6;

  SpherePanel(EffectFrame& frame, clsGPDialog& dialog);

  // Shows the panel. When the icon does not take the ball chosen last, the largest that it takes is chosen.
  void open(const EffectRow& effect) override;

  // List index of cboSphere(0), the factor, and of cboSphere(1), the size.
  int factorIndex() const { return settings_.factorTenths; }
  int sizeIndex() const { return static_cast<int>(settings_.size); }
  // Whether the factor changes the ball.
  bool usesFactor() const { return settings_.size == SphereSize::Normal; }
  const Color& color() const { return settings_.color; }
  const Surface& PicSphere() const { return PicSphere_; }

  // Choices in the lists. An index outside the list is ignored; a ball that the icon does not take is refused.
  void pickFactor(int index);
  void pickSize(int index);
  // A click on a pixel of the sample, which is refused off the ball.
  void clickSample(int x, int y);
  // cmdSphereColor: opens the colour dialog.
  void chooseColor();

 protected:
  IconImage apply(const IconImage& icon) const override;
  void drawSamples() override { drawSphere(); }
  bool mayProceed() override;

 private:
  void drawSphere();

  clsGPDialog& dialog_;
  SphereSettings settings_;
  Surface PicSphere_;
};

}  // namespace gp
