// Code that the two saves into files with several icons share.
#pragma once

#include "files/FilesContext.h"
#include "files/format/IconArrays.h"
#include "platform/files/FileLock.h"

#include <optional>
#include <string>

namespace gp {

// Ends all unfinished input on the Current Icon, and updates its container.
void finishCurrentIcon(FilesContext& context);
// Keeps our other programs from changing a file until it has been read and written. Empty, after a message, when one of
// them does so for longer than two seconds.
std::optional<FileLock> lockToUpdate(FilesContext& context, const std::string& path);
// Writes arrays that were read from `source` and then changed over `target`, which may be the same file. The source
// must then be the version that was read.
[[nodiscard]] WriteDefect writeUpdated(FilesContext& context, IconArrays& arrays, const std::string& source,
                                       const std::string& target);
// Reports a failure with an exclamation mark; refusals have none.
void tellFailure(FilesContext& context, const std::string& text);

}  // namespace gp
