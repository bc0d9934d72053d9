// Copying a rectangle from one Surface to another, plainly or combined bit by bit with what is there. Nothing is kept
// or owned; parts outside either Surface are left out on both sides together.
#pragma once

#include "platform/gdi/Surface.h"

#include <cstdint>

namespace gp {

// The values are the platform's own.
enum class RasterOp : std::uint32_t {
  SRCCOPY = 0xCC0020,
  SRCAND = 0x8800C6,
  SRCINVERT = 0x660046,
  SRCPAINT = 0xEE0086
};

// Combines the rectangle of source at (sourceX, sourceY) into target at (x, y), all 32 bits of each pixel. A negative
// width or height takes the pixels up to and including the given position, on both sides. Where the rectangle leaves
// the source, the target keeps its pixels. source and target may be the same Surface, overlapping as they like. True
// unless the code is none of the four; an empty rectangle is a success that changes nothing.
bool BitBlt(Surface& target, int x, int y, int width, int height, const Surface& source, int sourceX, int sourceY,
            RasterOp op);

// Whether the code is one of the four.
bool isKnown(RasterOp op);

// The same for count pixels in a row, which must not overlap, by one of the four codes.
void combineRow(std::uint32_t* target, const std::uint32_t* source, int count, RasterOp op);

}  // namespace gp
