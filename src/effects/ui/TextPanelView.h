// fraPanel(5): the text, its font and look, its angle, and the icon with the text.
#pragma once

#include "effects/TextPanel.h"
#include "effects/ui/EffectPanelView.h"

#include <array>

class QComboBox;
class QLineEdit;
class QSlider;

namespace gp {

class ColorButton;
class PictureButton;

class TextPanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  TextPanelView(QWidget* parent, TextPanel& panel);

 protected:
  void refresh() override;

 private:
  QWidget* makeText();
  QComboBox* makeFamilies();
  QWidget* makeSizes();
  QWidget* makeFontStyles();
  PictureButton* makeFontStyle(QWidget* parent, int i);
  ColorButton* makeColor();
  QWidget* makeAngle();
  void refreshText();
  void refreshFamilies();
  void refreshAngle();

  TextPanel& panel_;
  std::vector<std::string> shownFamilies_;
  QLineEdit* txbWriteText_ = nullptr;
  QComboBox* cboFontName_ = nullptr;
  QComboBox* cboTextSize_ = nullptr;
  QComboBox* cboFontSize_ = nullptr;
  QComboBox* cboTextWriteStyle_ = nullptr;
  std::array<PictureButton*, TextPanel::kFontStyles> imgFontStyle_{};
  ColorButton* cmdTextColor_ = nullptr;
  QSlider* hsrTextWriteSampleAngle_ = nullptr;
  QLabel* lblTextAngle_ = nullptr;
};

}  // namespace gp
