// The bytes of an icon file, as many as any reader of its images can want.
#pragma once

#include "platform/files/Files.h"

#include <optional>
#include <string>

namespace gp {

// Reads a file as far as its directory and images can reach, which for a huge file is not all of it. Nothing when it is
// no regular file or cannot be read.
std::optional<FileBytes> readIconFile(const std::string& path);

}  // namespace gp
