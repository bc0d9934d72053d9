// The colour mixer: three sliders that mix a colour, the swatches of their channels, and a strip with a gradient
// between the swatches. Owns the state that fraColorMixer shows. The sliders do not change the current colour; only
// choosing a colour, lightening and darkening do.
#pragma once

#include "document/Context.h"
#include "platform/gdi/Surface.h"

#include <array>
#include <string>

namespace gp {

inline constexpr int kMixChannels = 3;  // red, green, blue
inline constexpr int kMostOfChannel = 255;

// The client size of picMixGradient in pixels; each of its 100 rows is two pixels high.
inline constexpr int kMixGradientWidth = 40;
inline constexpr int kMixGradientHeight = 200;
inline constexpr int kMixGradientRows = 100;

// cboIntervalColor contains the numbers from 5 to 30.
inline constexpr int kFirstInterval = 5;
inline constexpr int kLastInterval = 30;

// The indices of cmdAdjMix.
enum class MixChange { Lighten = 0, Darken = 1, CopySelected = 2 };

class ColorSelection;

class ColorMixer {
 public:
  ColorMixer(const Context& context, ColorSelection& colors);

  // The values to display.
  int HsrRGB(int channel) const { return sliders_.at(static_cast<std::size_t>(channel)); }
  Color PicRGB(int channel) const { return swatches_.at(static_cast<std::size_t>(channel)); }
  Color PicRGBMix() const { return mixed_; }
  // The text for a slider's value, such as "10 / A".
  std::string lblRGB(int channel) const;
  // The colour under the pointer on the strip, such as "RGB: 1, 2, 3"; empty elsewhere.
  const std::string& lblMix() const { return lblMix_; }
  const Surface& picMixGradient() const { return picMixGradient_; }
  // The top of the marker on the strip, in its pixels: kMarkerRise above the pointer. kNoMarker before the first one.
  static constexpr int kMarkerRise = 2;
  static constexpr int kNoMarker = -100;
  int markerTop() const { return markerTop_; }
  bool isEnabled(MixChange change) const;
  int intervalIndex() const { return intervalIndex_; }

  // Handles a slider moved by the user. Does nothing while the form is loaded or the mixer itself moves the sliders.
  void moveSlider(int channel, int value);
  void cmdAdjMix(MixChange change);
  // Handles the choice of an entry of cboIntervalColor, given by its list index.
  void cboIntervalColor(int index);

  // A mouse button was released on a channel's swatch, or on the mixed colour: it becomes the current colour.
  void swatchRelease(int channel);
  void mixRelease();
  // The pointer is over the mixed colour. Returns its tooltip.
  std::string mixHover();

  // Positions on the strip are in its pixels. The lower border belongs to the last row; positions outside are ignored.
  void gradientPress(int x, int y);
  void gradientMove(int x, int y);
  void gradientRelease(int x, int y);
  // The pointer is on the frame outside the controls.
  void leaveControls();

  // Paints the strip from the swatches, then processes pending events.
  void rebuildMixGradient();
  // Copies a loaded picture to the strip's top left corner. It remains until a slider moves.
  void takeGradient(const Surface& picture);

 private:
  void setSlider(int channel, int value);
  Color stripColorAt(int x, int y) const;
  void adjustSliders(MixChange change);
  void paintGradient();
  void showMixer();

  Context context_;
  EditState& state_;
  ColorSelection& colors_;

  std::array<int, kMixChannels> sliders_{};
  std::array<Color, kMixChannels> swatches_{};
  Color mixed_ = kBlack;
  Surface picMixGradient_{kMixGradientWidth, kMixGradientHeight};
  std::string lblMix_;
  int markerTop_ = kNoMarker;
  int intervalIndex_;
  bool movesSliders_ = false;
};

}  // namespace gp
