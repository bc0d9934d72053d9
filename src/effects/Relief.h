// An edge around the painted area: lit from the top left, lit from the bottom right, raised, or a shadow. The painted
// area grows by up to one pixel on the sides that get an edge; what would leave the icon is lost.
#pragma once

#include "document/IconImage.h"

namespace gp {

enum class ReliefKind { Embossed, Engraved, Raised, Shadowed };

struct ReliefSettings {
  ReliefKind kind = ReliefKind::Embossed;
  Color shadow = kBlack;  // of Shadowed; the other kinds have their own colours
};

// The icon with its edge. A Mask without a black pixel gives an empty icon.
IconImage relief(const Surface& image, const Surface& mask, const ReliefSettings& settings);

}  // namespace gp
