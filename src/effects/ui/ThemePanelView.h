// fraPanel(12): the colour and the button that picks it, the percentage, and the sample.
#pragma once

#include "effects/ThemePanel.h"
#include "effects/ui/EffectPanelView.h"

class QComboBox;

namespace gp {

class ColorSample;

class ThemePanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  ThemePanelView(QWidget* parent, ThemePanel& panel);

 protected:
  void refresh() override;

 private:
  QWidget* addColor();
  void addPercent();

  ThemePanel& panel_;
  ColorSample* swatch_ = nullptr;
  QLabel* lblColor_ = nullptr;
  QComboBox* percent_ = nullptr;
};

}  // namespace gp
