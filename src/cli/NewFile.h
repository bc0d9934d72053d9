// Writes a file that is not expected to be there.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace gp::cli {

// Writes the bytes to a new file, to an existing one only with `replaces`, or to standard output. Returns kDone, or
// kRefused after an error message.
int writeNewFile(const std::string& path, std::span<const std::uint8_t> bytes, bool replaces);

}  // namespace gp::cli
