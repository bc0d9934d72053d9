// The images of an icon file that it contains completely.
#pragma once

#include "files/format/IconArrays.h"

namespace gp::cli {

// Keeps the images of which the file contains what it states; updates refuse a file that lacks any.
IconArrays takePresentImages(IconFile file);

}  // namespace gp::cli
