// The painted pixels in shades of one hue.
#pragma once

#include "document/IconImage.h"

namespace gp {

inline constexpr int kFullPercent = 100;

// Whether the percentage acts: on a theme of hue 0, which red and grey have.
bool hasPercent(Color theme);
// Returns the icon with each painted pixel in the hue of the theme. A theme of hue 0 keeps this percentage of a pixel's
// saturation, 0 to 100.
IconImage withColorTheme(const IconImage& icon, Color theme, int percent);

}  // namespace gp
