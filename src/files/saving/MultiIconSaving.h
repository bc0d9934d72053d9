// Code that the two saves into files with several icons share.
#pragma once

#include "files/FilesContext.h"
#include "files/format/IconArrays.h"

#include <string>

namespace gp {

// Ends all unfinished input on the Current Icon, and updates its container.
void finishCurrentIcon(FilesContext& context);
// Writes arrays that were read from `source` and then changed over `target`, which may be the same file. False on
// failure; what `target` contained is then put back, if it fits into memory beside the new content.
[[nodiscard]] bool writeUpdated(FilesContext& context, IconArrays& arrays, const std::string& source,
                                const std::string& target);
// Reports a failure with an exclamation mark; refusals have none.
void tellFailure(FilesContext& context, const std::string& text);

}  // namespace gp
