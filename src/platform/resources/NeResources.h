// The resource table of a file of the NE format: a list of types, each with its resources.
#pragma once

#include "platform/resources/ResourceTable.h"
#include "platform/resources/SourceReader.h"

#include <cstdint>

namespace gp {

// Reads the groups and images; what is damaged is left out. `header` is the position of the signature. The place of an
// image has whole alignment units, which may be more than its bytes.
ResourceTable readNeResources(SourceReader& reader, std::uint64_t header);

}  // namespace gp
