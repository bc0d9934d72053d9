// Copies a rectangle from one Surface to another, directly or combined bitwise with the target. A rectangle is clipped
// to both Surfaces.
#pragma once

#include "platform/gdi/Surface.h"

#include <cstdint>

namespace gp {

// The values are the platform's raster operation codes.
enum class RasterOp : std::uint32_t {
  SRCCOPY = 0xCC0020,
  SRCAND = 0x8800C6,
  SRCINVERT = 0x660046,
  SRCPAINT = 0xEE0086
};

// Combines the rectangle of source at (sourceX, sourceY) into target at (x, y), all 32 bits of each pixel. A negative
// width or height covers the pixels up to and including the given position, on both sides. Where the rectangle exceeds
// the source, the target is unchanged. source and target may be the same Surface, with overlap. Returns false only for
// an unknown code; an empty rectangle is a success that changes nothing.
bool BitBlt(Surface& target, int x, int y, int width, int height, const Surface& source, int sourceX, int sourceY,
            RasterOp op);

// Returns true for one of the four codes.
bool isKnown(RasterOp op);

// Combines `count` pixels of two rows, which must not overlap. op must be one of the four codes.
void combineRow(std::uint32_t* target, const std::uint32_t* source, int count, RasterOp op);

}  // namespace gp
