// Icons with alpha values turned into others without them, and the other way round.
#pragma once

#include "document/IconContainerRec.h"
#include "document/IconImage.h"

namespace gp {

// Returns the icon without alpha values. Painted pixels get the colour that they have over the ground; those whose
// alpha counts as 0 percent, and all that are not painted, become transparent. The icon must have alpha values.
IconImage convertRetainAlpha(const IconImage& icon);
// The record after that: true colour of 24 bits or, with `asPalette`, the depth that the picture needs.
IconContainerRec recordWithoutAlpha(IconContainerRec record, const IconImage& converted, bool asPalette);

// Returns the icon with alpha values: its present ones, or all opaque.
IconImage withAlphaValues(const IconImage& icon);
// The record of an icon that has got alpha values.
IconContainerRec recordWithAlpha(IconContainerRec record);

}  // namespace gp
