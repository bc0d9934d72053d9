#include "effects/HueLightness.h"

#include "platform/text/Numbers.h"

#include <algorithm>

namespace gp {
namespace {

constexpr double kFull = 255.0;
constexpr double kHalfLight = 0.5;
// Where green and blue are on the circle of hues, and how far around it is.
constexpr double kGreenHue = 2, kBlueHue = 4, kCircle = 6;

// A channel rises within one sixth of the circle, is full for two, falls within one, and is least for two.
double channelAt(double hue, double least, double most) {
  constexpr double kRisen = 1, kFalling = 3, kFallen = 4;
  if (hue < 0) hue += kCircle;
  if (hue >= kCircle) hue -= kCircle;
  if (hue < kRisen) return least + (most - least) * hue;
  if (hue < kFalling) return most;
  if (hue < kFallen) return least + (most - least) * (kFallen - hue);
  return least;
}

double hueOf(double red, double green, double blue, double range) {
  const double most = std::max({red, green, blue});
  if (red == most) return (green - blue) / range;
  if (green == most) return kGreenHue + (blue - red) / range;
  return kBlueHue + (red - green) / range;
}

}  // namespace

HueLightness rgbToHLS(Color color) {
  const double red = redOf(color) / kFull, green = greenOf(color) / kFull, blue = blueOf(color) / kFull;
  const double most = std::max({red, green, blue}), least = std::min({red, green, blue});
  const double lightness = (most + least) / 2;
  if (most == least) return {0, lightness, 0};
  const double range = most - least;
  const double saturation = range / (lightness <= kHalfLight ? most + least : 2 - most - least);
  return {static_cast<float>(hueOf(red, green, blue, range)), lightness, saturation};
}

Color hlsToRGB(const HueLightness& parts) {
  const double lightness = parts.lightness, saturation = parts.saturation;
  const double most =
      lightness <= kHalfLight ? lightness * (1 + saturation) : lightness + saturation - lightness * saturation;
  const double least = 2 * lightness - most;
  // Red's channel is full around hue 0, two sixths before it would be at its place.
  const auto channel = [&](double shift) { return roundToByte(channelAt(parts.hue + shift, least, most) * kFull); };
  return rgb(channel(kGreenHue), channel(0), channel(-kGreenHue));
}

}  // namespace gp
