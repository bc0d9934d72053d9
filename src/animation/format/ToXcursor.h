// Converts cursors and animated cursors of Windows to X cursor files.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace gp {

// The time that a cursor that does not move states for its image, as X cursors usually do.
inline constexpr std::uint32_t kStillDelayMs = 50;

// A converted file, or the reason why there is none.
struct ConvertedCursor {
  std::vector<std::uint8_t> bytes;
  std::string refusal;  // in one line; empty for a file

  bool isConverted() const { return refusal.empty(); }
};

// Converts a file, which its first bytes show to be an animated cursor or not. All images of all sizes are kept, of
// several with one size the deepest, with the hot spot of each. Their nominal size is the longer side; if all frames
// have as many images, that of the largest one of each rank. The steps are those that are played. Pixels that invert
// the screen become opaque, in the colour that they have on white.
ConvertedCursor toXcursor(std::span<const std::uint8_t> file);

}  // namespace gp
