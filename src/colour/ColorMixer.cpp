#include "colour/ColorMixer.h"

#include "colour/ColorSelection.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/ports/MessagePump.h"
#include "platform/scope/FlagFor.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace gp {

namespace {

using Channels = std::array<int, kMixChannels>;

// White, which cannot be lightened further.
constexpr Channels kFirstValues = {255, 255, 255};
constexpr int kFirstIntervalIndex = 12;

// The strip has five stops, with a quarter of its rows between each two.
constexpr int kQuarterRows = 25;
constexpr int kRowHeight = kMixGradientHeight / kMixGradientRows;
constexpr int kStepsOfQuarter = 26;

Channels channelsOf(Color color) { return {redOf(color), greenOf(color), blueOf(color)}; }
Color colorOf(const Channels& channels) { return rgb(channels[0], channels[1], channels[2]); }

// The colour with the value in one channel and 0 in the others.
Color swatchOf(int channel, int value) {
  Channels channels{};
  channels.at(static_cast<std::size_t>(channel)) = value;
  return colorOf(channels);
}

// Intended: a swatch's colour is read as pairs of hexadecimal digits, so one with an odd number of digits is read as
// black.
Channels stopOf(Color swatch) { return channelsOf(Hex(swatch).size() % 2 == 0 ? swatch : kBlack); }

Channels largerOf(const Channels& a, const Channels& b) {
  Channels larger{};
  std::ranges::transform(a, b, larger.begin(), [](int x, int y) { return std::max(x, y); });
  return larger;
}

Color between(const Channels& from, const Channels& to, int step) {
  Channels channels{};
  std::ranges::transform(from, to, channels.begin(), [step](int a, int b) {
    return roundToInteger(static_cast<double>(step * (b - a)) / kStepsOfQuarter + a);
  });
  return colorOf(channels);
}

std::string listOf(Color color) {
  return std::to_string(redOf(color)) + ", " + std::to_string(greenOf(color)) + ", " + std::to_string(blueOf(color));
}

}  // namespace

ColorMixer::ColorMixer(const Context& context, ColorSelection& colors)
    : context_(context), state_(context.state), colors_(colors), intervalIndex_(kFirstIntervalIndex) {
  for (int channel = 0; channel < kMixChannels; ++channel)
    setSlider(channel, kFirstValues[static_cast<std::size_t>(channel)]);
  paintGradient();
}

void ColorMixer::showMixer() { context_.display.changed(DisplayPart::ColorPanel); }

std::string ColorMixer::lblRGB(int channel) const {
  const int value = HsrRGB(channel);
  return std::to_string(value) + " / " + Hex(value);
}

bool ColorMixer::isEnabled(MixChange change) const {
  const auto all = [this](int value) { return std::ranges::count(sliders_, value) == kMixChannels; };
  if (change == MixChange::Lighten) return !all(kMostOfChannel);
  return change != MixChange::Darken || !all(0);
}

void ColorMixer::setSlider(int channel, int value) {
  const auto i = static_cast<std::size_t>(channel);
  sliders_.at(i) = std::clamp(value, 0, kMostOfChannel);
  swatches_.at(i) = swatchOf(channel, sliders_.at(i));
  mixed_ = colorOf(sliders_);
  lblMix_.clear();
}

void ColorMixer::moveSlider(int channel, int value) {
  if (state_.mInLoad || movesSliders_) {
    showMixer();  // resets the slider on the screen
    return;
  }
  setSlider(channel, value);
  rebuildMixGradient();
}

void ColorMixer::adjustSliders(MixChange change) {
  if (change == MixChange::CopySelected) colors_.examine(state_.mCurrentColor);
  const Channels selected = channelsOf(state_.mCurrentColor);
  const int interval = kFirstInterval + intervalIndex_;
  const int step = change == MixChange::Lighten ? interval : -interval;
  for (int channel = 0; channel < kMixChannels; ++channel)
    setSlider(channel,
              change == MixChange::CopySelected ? selected[static_cast<std::size_t>(channel)] : HsrRGB(channel) + step);
}

void ColorMixer::cmdAdjMix(MixChange change) {
  if (!isEnabled(change)) return;
  const FlagFor moving(movesSliders_);
  adjustSliders(change);
  rebuildMixGradient();
  if (change != MixChange::CopySelected) colors_.setCurrentColor(mixed_);
}

void ColorMixer::cboIntervalColor(int index) { intervalIndex_ = std::clamp(index, 0, kLastInterval - kFirstInterval); }

void ColorMixer::swatchRelease(int channel) { colors_.setCurrentColor(PicRGB(channel)); }

void ColorMixer::mixRelease() { colors_.setCurrentColor(mixed_); }

std::string ColorMixer::mixHover() {
  colors_.examine(mixed_);
  return Hex(mixed_) + "h  RGB(" + listOf(mixed_) + ")";
}

Color ColorMixer::stripColorAt(int x, int y) const {
  return picMixGradient_.GetPixel(x, y == kMixGradientHeight ? y - 1 : y);
}

void ColorMixer::gradientPress(int x, int y) {
  const Color color = stripColorAt(x, y);
  if (color == kNoColor) return;
  colors_.examine(color);
  colors_.setCurrentColor(color);
}

void ColorMixer::gradientMove(int x, int y) {
  const Color color = stripColorAt(x, y);
  if (color == kNoColor) return;
  markerTop_ = y - kMarkerRise;
  colors_.examine(color);
  lblMix_ = "RGB: " + listOf(color);
  showMixer();
}

void ColorMixer::gradientRelease(int x, int y) {
  const Color color = stripColorAt(x, y);
  if (color != kNoColor) colors_.setCurrentColor(color);
}

void ColorMixer::leaveControls() {
  if (lblMix_.empty()) return;
  lblMix_.clear();
  showMixer();
}

void ColorMixer::paintGradient() {
  const Channels first = stopOf(swatches_[0]), middle = stopOf(swatches_[1]), last = stopOf(swatches_[2]);
  const std::array<Channels, 5> stops = {first, largerOf(first, middle), middle, largerOf(middle, last), last};
  for (int row = 0; row < kMixGradientRows; ++row) {
    const auto quarter = static_cast<std::size_t>(row / kQuarterRows);
    // The first quarter starts at its stop, the others one step after it.
    const int step = row % kQuarterRows + (quarter == 0 ? 0 : 1);
    FillBox(picMixGradient_, 0, row * kRowHeight, kMixGradientWidth - 1, (row + 1) * kRowHeight - 1,
            between(stops[quarter], stops[quarter + 1], step));
  }
  picMixGradient_.makePersistent();
}

void ColorMixer::rebuildMixGradient() {
  paintGradient();
  showMixer();
  context_.pump.pump();
}

void ColorMixer::takeGradient(const Surface& picture) {
  BitbltPic(picture, picMixGradient_);
  showMixer();
}

}  // namespace gp
