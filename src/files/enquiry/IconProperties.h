// What the Inquiry menu reports about an icon. Pure functions of its record and its image.
#pragma once

#include "document/IconContainerRec.h"
#include "document/IconImage.h"

#include <cstdint>
#include <string>

namespace gp {

// The depth that the image has now: true colour stays true colour, with 32 bits for alpha.
ColorDepth presentDepth(const IconContainerRec& record, const Surface& image);
// The bytes of the single-icon file that a save writes: directory, headers, palette and rows. A cursor with alpha
// counts as the icon with alpha that it becomes.
std::uint32_t bytesWhenSaved(const IconContainerRec& record, const IconImage& icon);

// The general properties, one per line, with blank lines between their groups.
std::string propertiesText(const IconContainerRec& record, const Surface& image, bool isChanged);

}  // namespace gp
