// fraAlphaValuePanel: the alpha value to paint, as list, slider and shade, and the brush.
#pragma once

#include "platform/qt/widgets/CaptionFrame.h"

class QComboBox;
class QHBoxLayout;
class QPushButton;
class QSlider;

namespace gp {

class AlphaEditor;
class ColorSample;
class TextCell;

class AlphaValueView final : public CaptionFrame {
  Q_OBJECT

 public:
  // The editor must outlive the view.
  AlphaValueView(QWidget* parent, AlphaEditor& editor);

  void refresh();

 signals:
  void restoreRequested();

 private:
  QHBoxLayout* makeValueRow();
  QSlider* makeSlider();
  QWidget* makeStep(int index);
  QHBoxLayout* makeBrushRow();
  QPushButton* makeRestore();
  void setValue(int value);

  AlphaEditor& editor_;
  QComboBox* cboAlphaValue_ = nullptr;
  QSlider* hsrAlphaValue_ = nullptr;
  ColorSample* picAlphaValue_ = nullptr;
  TextCell* lblAlpha_ = nullptr;
};

}  // namespace gp
