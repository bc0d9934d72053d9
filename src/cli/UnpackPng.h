// The --png form of gpicon unpack.
#pragma once

#include "cli/OutputFolder.h"

#include <string>

namespace gp::cli {

// Writes each image of a file as NAME_INDEX.png. False, after an error message, when one cannot be decoded or written.
bool unpackPictures(const std::string& path, const std::string& name, OutputFolder& folder);

}  // namespace gp::cli
