// What the pixels of an image really hold, read as its bitmap header tells. The directory's word counts for nothing
// here.
#pragma once

#include "cli/ImageHeader.h"

#include <cstdint>
#include <optional>

namespace gp::cli {

// The depth that the pixels need: 2, 16, 256 or -1 for true colour, and the bits for it.
struct PixelDepth {
  int colors = 0;
  int bits = 0;
};
// Nothing for an image that the editor could not read, or that is larger than an entry can tell.
std::optional<PixelDepth> measureDepth(const IconFile& file, const IconEntry& entry, const ImageHeader& header);

// The highest palette index in the picture. Nothing for images without a palette or with a full one, and as above.
std::optional<unsigned> highestIndex(const IconFile& file, const IconEntry& entry, const ImageHeader& header);

}  // namespace gp::cli
