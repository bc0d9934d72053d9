// The resource directory of a file of the PE format: a tree of types, names and languages.
#pragma once

#include "platform/resources/ResourceTable.h"
#include "platform/resources/SourceReader.h"

#include <cstdint>

namespace gp {

// Reads the groups and images; what is damaged is left out. `header` is the position of the signature. The three levels
// are walked once, so that no cycle and no shared part costs more than the bytes that are there.
ResourceTable readPeResources(SourceReader& reader, std::uint64_t header);

}  // namespace gp
