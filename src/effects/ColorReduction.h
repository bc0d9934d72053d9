// An icon brought down to 256, 16 or 2 colours.
#pragma once

#include "document/IconImage.h"

namespace gp {

enum class ReductionMethod { Optimal, System, Optimized, Nearest, StandardVga, SelectCutoff, Weighted, Ordered };

struct ReductionSettings {
  ReductionMethod method = ReductionMethod::Optimal;
  int threshold = 128;  // of SelectCutoff: a pixel whose mean channel is below becomes black
};

// The icon with fewer colours: Optimal has 256 chosen for this picture, System those of the platform's halftone
// palette; Optimized, Nearest and StandardVga have the sixteen standard colours; the others are black and white. All
// but SelectCutoff keep the Mask. All but Nearest leave the image black where the Mask is not, so that pixels which
// invert become transparent. SelectCutoff paints black alone and makes the rest transparent.
IconImage reduceColors(const Surface& image, const Surface& mask, const ReductionSettings& settings);

}  // namespace gp
