// What an effect takes and gives: the two pictures that make up an icon, of one size. Where the Mask is black the icon
// is painted with the image's pixel; where it is white it is transparent, and the image black.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

struct IconPicture {
  Surface image = Surface();
  Surface mask = Surface();
};

}  // namespace gp
