// Makes the images of an icon file smaller without changing a pixel.
#pragma once

#include "files/format/IconArrays.h"

namespace gp {

// Leaves out the chunks of PNG pictures that do not change pixels, and the unused colours of palettes: a bitmap whose
// colours fit into a smaller palette gets it, with fewer bits per pixel. Images that cannot be decoded stay as they
// are. Returns true when an image changed.
bool stripImages(IconArrays& arrays);

}  // namespace gp
