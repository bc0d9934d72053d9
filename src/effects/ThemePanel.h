// The side panel that gives the painted pixels the hue of a colour, which the user picks.
#pragma once

#include "effects/EffectPanel.h"

namespace gp {

class clsGPDialog;

class ThemePanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 12;

  ThemePanel(EffectFrame& frame, clsGPDialog& dialog);

  // Shows the colour dialog; after a cancel the colour stays.
  void pickColor();
  // A choice in cboColorTheme; an index outside the list is ignored.
  void pickPercent(int choice);

  // The picked colour, which is kept until the program ends; kNoColor before.
  const Color& color() const { return color_; }
  // List index of cboColorTheme, and whether the percentage acts with the picked colour.
  int cboColorTheme() const { return choice_; }
  bool usesPercent() const;

 protected:
  // Without a colour, the icon as it is.
  IconImage apply(const IconImage& icon) const override;
  // Without a colour, says so.
  bool mayProceed() override;

 private:
  clsGPDialog& dialog_;
  Color color_ = kNoColor;
  int choice_ = 0;
};

}  // namespace gp
