// Saves one entry of an icon file as a separate file. The image is copied without decoding, so entries that the
// editor cannot show can be saved too.
#pragma once

#include "files/format/IconArrays.h"

#include <string>

namespace gp {

// Replaces an existing file at `path`. Returns false on failure, see replaceFile. The index must be valid.
[[nodiscard]] bool saveEntryToSingleFile(const IconArrays& arrays, int index, const std::string& path);

}  // namespace gp
