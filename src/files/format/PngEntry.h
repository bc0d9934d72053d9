// Entries whose image is a PNG picture. Size and depth are those that the picture states: the directory often states
// others, and the picture cannot be read by them.
#pragma once

#include "files/format/IconDecoder.h"
#include "files/format/IconFile.h"

#include <cstdint>
#include <span>

namespace gp {

// The entry as the editor understands it. For a bitmap, this is the entry itself. For a PNG picture, width, height and
// bits are the picture's: 32 bits with alpha, 24 without. A side of 0 still means 256. A picture without a header
// changes nothing. In a cursor file, the hot spot is to be read from the entry itself.
IconEntry shownEntry(const IconFile& file, const IconEntry& entry);
// The same with the bytes of the entry's image.
IconEntry shownEntry(const IconEntry& entry, std::span<const std::uint8_t> image);

// The bits of a PNG picture as above; 0 without a header.
int pngBitCount(const IconFile& file, const IconEntry& entry);

// Decodes an entry whose image is a PNG picture of width x height pixels; another size is refused. Where alpha is 0,
// the icon is transparent, and its alpha value 255, as in bitmaps: a pixel that is painted there becomes opaque.
[[nodiscard]] DecodedIcon decodePngEntry(const IconFile& file, const IconEntry& entry, int width, int height);

// The icon for a use that knows only image and Mask: pixels whose alpha is below 128 are transparent.
IconImage withoutAlpha(const IconImage& icon);

}  // namespace gp
