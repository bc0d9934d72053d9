// What effects on the shape of an icon are made of. A Mask's black pixels are the painted ones.
#pragma once

#include "document/IconImage.h"

#include <cstdint>

namespace gp {

// The grey of shaded edges.
inline constexpr Color kEdgeGrey = rgb(128, 128, 128);

inline bool isPainted(std::uint32_t maskPixel) { return (maskPixel & kColorBits) == storedForm(kBlack); }

// An icon of that size without a painted pixel.
IconImage emptyIcon(int width, int height);

// Paints the shape of a Mask of the icon's size in one colour, moved `step` pixels right and as many down, or left and
// up where that is negative. What would leave the icon is lost.
void stamp(IconImage& icon, const Surface& mask, int step, Color color);

// target takes the image's pixels where the Mask is black. The three have one size.
void copyPainted(const Surface& image, const Surface& mask, Surface& target);

}  // namespace gp
