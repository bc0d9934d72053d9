// The colour mixer: three sliders that mix one colour, the swatches of their channels, and a strip that runs through
// them. Owns what fraColorMixer shows; views read it here. Only taking a colour, or lightening and darkening, changes
// the current colour: the sliders do not.
#pragma once

#include "document/Context.h"
#include "platform/gdi/Surface.h"

#include <array>
#include <string>

namespace gp {

inline constexpr int kMixChannels = 3;  // red, green, blue
inline constexpr int kMostOfChannel = 255;

// The client size of picMixGradient, in pixels: two for each of its 100 rows.
inline constexpr int kMixGradientWidth = 40;
inline constexpr int kMixGradientHeight = 200;
inline constexpr int kMixGradientRows = 100;

// cboIntervalColor holds the numbers from 5 to 30.
inline constexpr int kFirstInterval = 5;
inline constexpr int kLastInterval = 30;

// The indices of cmdAdjMix.
enum class MixChange { Lighten = 0, Darken = 1, CopySelected = 2 };

class ColorSelection;

class ColorMixer {
 public:
  ColorMixer(const Context& context, ColorSelection& colors);

  // What is shown.
  int HsrRGB(int channel) const { return sliders_.at(static_cast<std::size_t>(channel)); }
  Color PicRGB(int channel) const { return swatches_.at(static_cast<std::size_t>(channel)); }
  Color PicRGBMix() const { return mixed_; }
  // The text of a slider's value, "10 / A".
  std::string lblRGB(int channel) const;
  // The colour under the pointer on the strip, "RGB: 1, 2, 3", or nothing.
  const std::string& lblMix() const { return lblMix_; }
  const Surface& picMixGradient() const { return picMixGradient_; }
  // The top of the marker on the strip, in its pixels, so much above the pointer; kNoMarker until that has been there.
  static constexpr int kMarkerRise = 2;
  static constexpr int kNoMarker = -100;
  int markerTop() const { return markerTop_; }
  bool isEnabled(MixChange change) const;
  int intervalIndex() const { return intervalIndex_; }

  // A slider was moved to a value. Nothing while the form is being made or the mixer itself moves the sliders.
  void moveSlider(int channel, int value);
  void cmdAdjMix(MixChange change);
  // An entry of cboIntervalColor was chosen, by its list index.
  void cboIntervalColor(int index);

  // A button was released on a channel's swatch, or on the mixed colour.
  void swatchRelease(int channel);
  void mixRelease();
  // The pointer is over the mixed colour. Gives its tooltip.
  std::string mixHover();

  // The strip, at a position in its pixels. Its lower border counts to the last row; outside nothing happens.
  void gradientPress(int x, int y);
  void gradientMove(int x, int y);
  void gradientRelease(int x, int y);
  // The pointer came onto the frame itself.
  void leaveControls();

  // Paints the strip from the swatches and lets pending events through.
  void rebuildMixGradient();
  // The strip takes a loaded picture, at its top left corner. It stands until a slider moves.
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
