// One entry of an icon file as a file of its own. The image is copied as it stands and never decoded, so that entries
// which the editor cannot show are saved just as well.
#pragma once

#include "files/format/IconArrays.h"

#include <string>

namespace gp {

// Writes over whatever has that path. False when that cannot be done, see replaceFile. The index must be valid.
[[nodiscard]] bool saveEntryToSingleFile(const IconArrays& arrays, int index, const std::string& path);

}  // namespace gp
