// Texts that describe a depth.
#pragma once

#include "document/ColorDepth.h"

#include <string>

namespace gp {

// "16-color", or "True Color 32 BPP".
std::string colorText(ColorDepth depth);
// "16", or "24bpp" for true colour of 24 bits: the colour part of a file name.
std::string colorsInFileName(ColorDepth depth);

}  // namespace gp
