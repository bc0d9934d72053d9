// Composes the animated cursor file of a film.
#pragma once

#include "animation/format/FilmFrame.h"

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

// Returns true when all pixels of the image are white.
bool isBlank(const FramePicture& picture);

// Returns the bytes of the file with these frames. Each becomes a cursor of the depth that its colours need, and all
// get the hot spot, 0 to 31.
std::vector<std::uint8_t> composeFilm(std::span<const FilmFrame> frames, int hotspotX, int hotspotY);

}  // namespace gp
