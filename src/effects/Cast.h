// The three levels of the effect Cast, packed in one Colour, and the slider that moves them together.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

inline constexpr int kMiddleLevel = 127;
inline constexpr Color kMiddleLevels = rgb(kMiddleLevel, kMiddleLevel, kMiddleLevel);

// Returns the position of the slider, which is the mean of the levels, rounded.
int sliderOf(Color levels);
// Returns the levels after the slider was moved to a position: each changes by as much as the slider did and stays
// within 0 to 255.
Color levelsAfterSlide(Color levels, int position);

}  // namespace gp
