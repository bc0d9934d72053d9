// How many colours a picture counts as, which decides the depth that it is saved with.
#pragma once

#include "document/ColorDepth.h"
#include "platform/gdi/Surface.h"

namespace gp {

// 2 when all pixels are black or white, 16 when all are among the sixteen standard colours, 256 when a table of 256
// takes them, otherwise -1.
void GetColorBitCount_Image(const Surface& surface, int& count);

}  // namespace gp
