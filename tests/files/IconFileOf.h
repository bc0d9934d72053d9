// Files built in memory as the program holds them, for tests.
#pragma once

#include "files/format/IconFile.h"

#include <cstdint>
#include <span>

namespace gp::test {

inline IconFile iconFileOf(std::span<const std::uint8_t> bytes) { return parseIconFile(FileBytes(bytes)); }

}  // namespace gp::test
