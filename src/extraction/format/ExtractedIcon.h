// What an extracted icon is in a container and in a file.
#pragma once

#include "document/ColorDepth.h"
#include "document/IconContainerRec.h"
#include "document/IconImage.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gp {

// True color with alpha for an icon with alpha values; otherwise measured from the colours of the image.
ColorDepth depthOfExtracted(const IconImage& icon);
// The record of an icon that was extracted and never saved. `name` is its proposed path; empty means "Extracted".
IconContainerRec recordOfExtracted(const IconImage& icon, const std::string& name);
// True for an icon in a container that was extracted and never saved.
bool isUnsavedExtraction(const IconContainerRec& record);
// The bytes of a file with only this icon, which has one of the icon sizes.
std::vector<std::uint8_t> fileOfExtracted(const IconImage& icon);

}  // namespace gp
