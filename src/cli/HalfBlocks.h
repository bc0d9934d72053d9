// A picture as text: each character shows two pixels, one above the other.
#pragma once

#include "platform/codec/Png.h"

#include <string>

namespace gp::cli {

// One line per two rows. Pixels with an alpha below 128 show the ground. With colours, each line has control sequences
// of 24-bit colours and ends with a reset; without, a line shows only which pixels are not transparent, and ends with
// its last such pixel.
std::string halfBlocks(const PngPicture& picture, bool withColors);

}  // namespace gp::cli
