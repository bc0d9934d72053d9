// Building blocks of effects that work on the painted pixels of an icon, which are those that are black in the Mask.
#pragma once

#include "document/IconImage.h"

#include <cstdint>
#include <functional>

namespace gp {

// The grey of shaded edges.
inline constexpr Color kEdgeGrey = rgb(128, 128, 128);

inline bool isPainted(std::uint32_t maskPixel) { return (maskPixel & kColorBits) == storedForm(kBlack); }

// Returns an icon of that size without a painted pixel.
IconImage emptyIcon(int width, int height);

// Returns the icon with the colour of each painted pixel replaced by what `map` returns for it. All other pixels and
// the Mask stay as they are.
IconImage mapPainted(const IconImage& icon, const std::function<Color(Color)>& map);

// Paints the shape of a Mask of the icon's size in one colour, moved by `step` pixels to the right and downwards, or to
// the left and upwards where it is negative. Pixels that would leave the icon are lost.
void stamp(IconImage& icon, const Surface& mask, int step, Color color);

// Copies the image's pixels into `target` where the Mask is black. The three have the same size.
void copyPainted(const Surface& image, const Surface& mask, Surface& target);

}  // namespace gp
