// Makes an icon ready to go into a file among others. The icon is written to a scratch file and read back, so that what
// goes in is what a file with that icon alone would hold. The scratch file is removed in every case.
#pragma once

#include "document/ColorDepth.h"
#include "document/IconImage.h"
#include "files/format/IconUpdates.h"

#include <optional>
#include <string>

namespace gp {

enum class ScratchDefect { None, NotWritten, NotRead };

// `target` is the file that the image is for; it is never used as the scratch file. A former scratch file is replaced.
// Without a defect there is an image.
[[nodiscard]] ScratchDefect makeNewImage(const IconImage& icon, ColorDepth depth, const std::string& scratchFile,
                                         const std::string& target, std::optional<NewImage>& image);

}  // namespace gp
