// Colours multiplied by their alpha, as X cursors have them, and back.
#pragma once

#include <algorithm>
#include <cstdint>

namespace gp {

// Returns a channel, 0 to 255, multiplied by an alpha of 0 to 255, to the nearest.
constexpr int premultiplied(int channel, int alpha) { return (channel * alpha + 127) / 255; }

// Returns the channel whose product with the alpha is nearest to `product`; 0 for an alpha of 0. A product that is not
// above its alpha comes back exactly from premultiplied().
constexpr int unpremultiplied(int product, int alpha) {
  return alpha == 0 ? 0 : std::min((product * 255 + alpha / 2) / alpha, 255);
}

}  // namespace gp
