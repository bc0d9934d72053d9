// fraColorMixer: the mixer's sliders, swatches and strip, the buttons that lighten, darken and copy, and the palette
// file buttons. It keeps no state and shows the mixer's values, on refresh() and after each event.
#pragma once

#include "platform/qt/widgets/CaptionFrame.h"

#include <array>

class QComboBox;
class QSlider;

namespace gp {

class ColorMixer;
class MixGradientView;
class MixSwatch;
class PaletteFile;
class PictureButton;
class TextCell;

class ColorMixerView : public CaptionFrame {
  Q_OBJECT

 public:
  ColorMixerView(QWidget* parent, ColorMixer& mixer, PaletteFile& files);

  void refresh();
  // The height that the mixer needs in a place with its font.
  static int heightFor(const QWidget& place);

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  int letterWidth() const;
  QWidget* makeChannel(int channel);
  QWidget* makeButtons();
  QWidget* makeFileButtons();
  MixSwatch* makeMixed();
  MixGradientView* makeGradient();

  ColorMixer& mixer_;
  PaletteFile& files_;
  std::array<QSlider*, 3> HsrRGB_{};
  std::array<MixSwatch*, 3> PicRGB_{};
  std::array<TextCell*, 3> lblRGB_{};
  std::array<PictureButton*, 3> cmdAdjMix_{};
  MixSwatch* PicRGBMix_ = nullptr;
  QComboBox* cboIntervalColor_ = nullptr;
  TextCell* lblMix_ = nullptr;
  MixGradientView* picMixGradient_ = nullptr;
};

}  // namespace gp
