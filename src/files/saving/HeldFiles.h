// The question before a save writes over a file that a container holds an icon of. Without it, the next save of that
// container would overwrite what was saved, or the user would lose track of which of the two icons the file contains.
#pragma once

#include "files/FilesContext.h"

#include <span>
#include <string>

namespace gp {

// What a save writes: the icon of the current container or its file, whose holder is not asked about; or anything else.
enum class Saved { CurrentIcon, Other };

// Asks once, naming the first container that holds an icon of one of the files. True when there is none, or when the
// user agrees.
[[nodiscard]] bool mayWriteOver(const FilesContext& context, std::span<const std::string> paths, Saved saved);
[[nodiscard]] bool mayWriteOver(const FilesContext& context, const std::string& path, Saved saved);

// The question before an icon that was copied from another container is saved for the first time over the file of the
// original. True when the user agrees.
[[nodiscard]] bool mayWriteOverOriginal(const FilesContext& context, const std::string& path);

}  // namespace gp
