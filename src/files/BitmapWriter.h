// The plain bitmap file of a Surface: 24 bits per pixel, bottom row first, no compression.
#pragma once

#include "platform/gdi/Surface.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gp {

std::vector<std::uint8_t> composeBitmap(const Surface& surface);
// Replaces an existing file. False when it cannot be written.
[[nodiscard]] bool writeBitmap(const Surface& surface, const std::string& path);

}  // namespace gp
