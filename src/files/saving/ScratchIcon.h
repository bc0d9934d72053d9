// The Current Icon made ready to go into a file among others. It takes the way through a scratch file, so that what
// goes in is what a file of its own would hold; the scratch file is gone afterwards, whatever happened.
#pragma once

#include "files/format/IconUpdates.h"

#include <optional>
#include <string>

namespace gp {

enum class ScratchDefect { None, NotWritten, NotRead };

// `target` is the file that the image is for; it is never used up as the scratch file. A former scratch file is
// replaced. Without a defect there is an image.
[[nodiscard]] ScratchDefect makeNewImage(const EditState& state, const std::string& scratchFile,
                                         const std::string& target, std::optional<NewImage>& image);

}  // namespace gp
