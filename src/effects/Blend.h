// The icon mixed with another one of its size.
#pragma once

#include "effects/EffectTable.h"

namespace gp {

extern const EffectRow kBlend;

// Returns the icon with `other`, of the same size, blended in: `percent`, from 0 to 100, is the part of the other one
// where both are painted. Where only one of them is painted, the result is that one. All other pixels stay as they are.
IconImage blended(const IconImage& icon, const IconImage& other, int percent);

inline constexpr Refusal kNothingToBlend("No icon of same size from Icons Panel to blend in.");

}  // namespace gp
