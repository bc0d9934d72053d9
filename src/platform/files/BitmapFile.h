// Bitmap files: writes a Surface as an uncompressed bitmap, and checks whether a bitmap file is complete.
#pragma once

#include "platform/gdi/Surface.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace gp {

// Returns a bitmap file with the pixels of a Surface: 24 bits per pixel, bottom row first, no compression.
std::vector<std::uint8_t> composeBitmap(const Surface& surface);
// Writes that file, replacing an existing one. Returns false when it cannot be written.
[[nodiscard]] bool writeBitmap(const Surface& surface, const std::string& path);

// Returns true when the bytes are a bitmap file without missing pixels. A compressed bitmap is checked against the
// image size in its header; a bitmap with a header shorter than BITMAPINFOHEADER is accepted unchecked.
bool isWholeBitmap(std::span<const std::uint8_t> bytes);
// Returns the number of rows of an uncompressed bitmap file whose top row comes first, which its header states as a
// negative height. Returns 0 for any other file, and for a height that has no positive counterpart.
int rowsFromTheTop(std::span<const std::uint8_t> bytes);

}  // namespace gp
