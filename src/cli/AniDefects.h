// Finds what an animated cursor contradicts itself in, and what the editor does not keep of it.
#pragma once

#include "cli/Discrepancies.h"

#include <cstdint>
#include <span>

namespace gp::cli {

// Reports them for a file that is an animated cursor. The index is that of an image, from 0, or of the file. The header
// is `anih`, and what the file holds is in the place of the pixels.
void findAniDefects(std::span<const std::uint8_t> file, const DiscrepancySink& report);

}  // namespace gp::cli
