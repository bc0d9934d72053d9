// Counts the colours of a picture. The count determines the depth with which the picture is saved.
#pragma once

#include "document/ColorDepth.h"
#include "platform/gdi/Surface.h"

namespace gp {

// Sets `count` to 2 when all pixels are black or white, to 16 when all are standard colours, to 256 when the colours
// fit into a table of 256, otherwise to -1.
void GetColorBitCount_Image(const Surface& surface, int& count);

// Returns how many different colours the pixels have; 0 without pixels.
int CountColors(const Surface& surface);

}  // namespace gp
