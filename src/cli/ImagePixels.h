// Measures the pixels of an image, which are read as its bitmap header states. The directory is ignored.
#pragma once

#include "files/format/ImageHeader.h"

#include <cstdint>
#include <optional>

namespace gp::cli {

// The depth that the pixels need. Empty for an image that the editor could not read, or that is larger than an entry
// can state.
std::optional<ColorDepth> measureDepth(const IconFile& file, const IconEntry& entry, const ImageHeader& header);

// The highest palette index in the picture. Empty for images without a palette or with a full one, and as above.
std::optional<unsigned> highestIndex(const IconFile& file, const IconEntry& entry, const ImageHeader& header);

// The number of pixels that the alpha values make transparent and the mask opaque. 0 for images without alpha values,
// which are those of other bit counts, and those whose alpha bytes are all 0.
int countOpenedOpaque(const IconFile& file, const IconEntry& entry, const ImageHeader& header);

}  // namespace gp::cli
