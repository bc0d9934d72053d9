// Pictures as indices into a palette, and the reduction of their colours to those of a palette.
#pragma once

#include "platform/codec/Png.h"
#include "platform/gdi/Surface.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace gp {

struct IndexedPicture {
  std::vector<Color> palette;         // black first if it occurs, then in the order of the first pixels
  std::vector<std::uint8_t> indices;  // of each pixel, row by row from the top
};
// Looks at colours and not at alpha. Empty for a picture with more than `most` colours, 256 at most.
std::optional<IndexedPicture> indexedPicture(const PngPicture& picture, std::size_t most);

// Reduces a picture whose pixels are opaque or fully transparent to 256 colours computed from it (8 bits), to the
// sixteen standard colours (4 bits) or to black and white (1 bit). Without dithering, each pixel becomes the nearest
// colour. Transparent pixels become black, and have no influence.
void reduceColors(PngPicture& picture, int bits, bool dithers);

}  // namespace gp
