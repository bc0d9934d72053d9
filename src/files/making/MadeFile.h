// Composes icon and cursor files of made images.
#pragma once

#include "files/making/MadeImage.h"

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

// The bytes of an icon file with the images in this order, 65535 at most.
std::vector<std::uint8_t> composeIconFile(std::span<const MadeImage> images);

struct Hotspot {
  int x = 0;
  int y = 0;
};
// The bytes of a cursor file. `hotspots` has one element for each image.
std::vector<std::uint8_t> composeCursorFile(std::span<const MadeImage> images, std::span<const Hotspot> hotspots);

}  // namespace gp
