// The icon that stands for a file in a list of files.
#pragma once

#include "document/IconImage.h"

#include <string>

namespace gp {

// Returns the icon of an icon or cursor file that suits a row of `side` pixels best: the largest that fits, otherwise
// the smallest; of several of one size, the one with the most bits per pixel. Empty when the file has no icon that can
// be shown.
IconImage iconOfFile(const std::string& path, int side);

}  // namespace gp
