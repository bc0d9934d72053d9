// Reduces an icon to 256, 16 or 2 colours.
#pragma once

#include "document/IconImage.h"

namespace gp {

enum class ReductionMethod { Optimal, System, Optimized, Nearest, StandardVga, SelectCutoff, Weighted, Ordered };

struct ReductionSettings {
  ReductionMethod method = ReductionMethod::Optimal;
  int threshold = 128;  // of SelectCutoff: a pixel whose mean channel is lower becomes black
};

// Returns the icon with fewer colours. Optimal chooses 256 colours for this picture, System uses those of the
// platform's halftone palette. Optimized, Nearest and StandardVga use the sixteen standard colours, the other methods
// black and white. All methods except SelectCutoff keep the Mask. All except Nearest make the image black where the
// Mask is not, so that inverting pixels become transparent. SelectCutoff paints in black only and makes all other
// pixels transparent.
IconImage reduceColors(const Surface& image, const Surface& mask, const ReductionSettings& settings);

}  // namespace gp
