// Colours as hue, lightness and saturation.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// The hue is in sixths of the circle, from red over green and blue, at least -1 and below 5; lightness and saturation
// are from 0 to 1. A grey has hue and saturation 0.
struct HueLightness {
  float hue = 0;
  double lightness = 0;
  double saturation = 0;
};

HueLightness rgbToHLS(Color color);
// The inverse, rounded to whole channels.
Color hlsToRGB(const HueLightness& parts);

}  // namespace gp
