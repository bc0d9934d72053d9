// Composes animated cursor files in two layouts: that of the editor, with one hot spot for all frames, and that of
// converted files, whose frames are kept as they are.
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

// A step of a converted file.
struct AniStep {
  std::vector<std::uint8_t> file;  // a cursor file, of an even size
  std::uint32_t jiffies = 0;
  std::uint32_t delayMs = 0;  // the exact time
};

// Returns the bytes of a file that plays the steps. Its RIFF size follows the rule, and it has no texts.
std::vector<std::uint8_t> composeConvertedAni(std::span<const AniStep> steps);

}  // namespace gp
