// Bitmap files: writing a Surface as a plain one, and telling whether one is all there. Nothing is kept between calls.
#pragma once

#include "platform/gdi/Surface.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace gp {

// The plain bitmap file of a Surface: 24 bits per pixel, bottom row first, no compression.
std::vector<std::uint8_t> composeBitmap(const Surface& surface);
// Replaces an existing file. False when it cannot be written.
[[nodiscard]] bool writeBitmap(const Surface& surface, const std::string& path);

// True when the bytes are a bitmap file of which no pixel is missing. A compressed one is judged by the size that it
// states for itself, and one with a header of another kind than the usual is taken as it is.
bool isWholeBitmap(std::span<const std::uint8_t> bytes);

}  // namespace gp
