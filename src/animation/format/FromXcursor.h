// Converts X cursor files to cursors and animated cursors of Windows.
#pragma once

#include "animation/format/ToXcursor.h"

#include <optional>

namespace gp {

enum class CursorKind {
  Still,
  Animated,
  ByContent  // animated if it moves
};

// Converts a file; with a size, only the images of the nominal size nearest to it. All images become bitmaps of 32 bits
// with alpha and their hot spots, of 256 x 256 pixels at most. A file that moves is refused as a still cursor. Each
// step has one image of each nominal size, so that all sizes must have the same times.
ConvertedCursor fromXcursor(std::span<const std::uint8_t> file, CursorKind kind, std::optional<int> size);

}  // namespace gp
