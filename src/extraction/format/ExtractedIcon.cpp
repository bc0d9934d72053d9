#include "extraction/format/ExtractedIcon.h"

namespace gp {

ColorDepth depthOfExtracted(const IconImage&) { return {}; }
IconContainerRec recordOfExtracted(const IconImage&, const std::string&) { return {}; }
std::vector<std::uint8_t> fileOfExtracted(const IconImage&) { return {}; }

}  // namespace gp
