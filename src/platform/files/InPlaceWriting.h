// Overwrites the content of an existing file, for files that cannot be replaced by a new one.
#pragma once

#include "platform/files/FileWriting.h"
#include "platform/files/WriteTarget.h"

namespace gp {

// The target must exist. Its former content is in a backup until the new one is on the disk. When writing fails, the
// former content is put back; when that fails too, or the program dies, the backup remains.
[[nodiscard]] WriteDefect writeInPlace(const WriteTarget& target, Pieces pieces);

}  // namespace gp
