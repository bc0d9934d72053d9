// Composes animated cursor files: always in one layout, with a time for each frame and one hot spot for all.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

// A frame of the file to write.
struct AniFrame {
  std::vector<std::uint8_t> file;  // an icon file with one image
  int jiffies = 0;
};

// Returns the bytes of the file. Each frame becomes a cursor with the hot spot. The files must have a directory with an
// entry, and be of an even size, as those of 32 x 32 pixels are.
std::vector<std::uint8_t> composeAniFile(std::span<const AniFrame> frames, int hotspotX, int hotspotY);

}  // namespace gp
