// Saves one entry of an icon file as a separate file. The image is copied without decoding, so entries that the
// editor cannot show can be saved too.
#pragma once

#include "files/format/IconArrays.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gp {

// The bytes of that file. The index must be valid.
std::vector<std::uint8_t> composeSingleEntryFile(const IconArrays& arrays, int index);
// Writes it, replacing an existing file. Returns false on failure, see replaceFile.
[[nodiscard]] bool saveEntryToSingleFile(const IconArrays& arrays, int index, const std::string& path);

}  // namespace gp
