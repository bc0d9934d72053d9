// Messages of effects that the editor and the command line share.
#pragma once

#include "effects/EffectTable.h"

#include <string>

namespace gp {

inline constexpr const char* kIconIsWithAlpha =
    "Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.";

inline constexpr Refusal kNothingChanged("No change actually made", BoxIcon::Exclamation);

// Why an icon with this number of colours cannot be reduced.
inline std::string fewColorsText(int colors) {
  return "Current image is of " + std::to_string(colors) + "-color depth.  ";
}

}  // namespace gp
