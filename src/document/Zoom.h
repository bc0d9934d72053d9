// The steps in which a person enlarges and reduces the Editing Area.
#pragma once

namespace gp {

inline constexpr int kLeastZoom = 4;  // pixels per icon pixel
inline constexpr int kMostZoom = 40;

enum class ZoomStep { In, Out, ToOption };

// Returns the magnification one step further in or out, within the limits. Steps are of one pixel up to 16 and of two
// above, so that each enlarges by about as much as it seems.
int zoomed(int magnification, ZoomStep step);

}  // namespace gp
