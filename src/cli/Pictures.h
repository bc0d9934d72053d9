// Reads pictures that icons are made from. The content decides what a file is, not its name.
#pragma once

#include "platform/codec/Png.h"

#include <optional>
#include <string>

namespace gp::cli {

// Reads a PNG or bitmap file. Empty after an error message.
std::optional<PngPicture> readPicture(const std::string& path);

}  // namespace gp::cli
