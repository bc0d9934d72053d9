// The weights with which the pixels along one axis of a picture add up to those of a scaled picture.
#pragma once

#include <cstddef>
#include <vector>

namespace gp {

enum class ScalingFilter {
  Box,     // the mean of the covered area
  Lanczos  // sharper: a windowed sinc of three lobes
};

// The source pixels of one target pixel: `weights` of those from `first` on. They add up to 1.
struct PixelTaps {
  int first = 0;
  std::vector<double> weights;

  int end() const { return first + static_cast<int>(weights.size()); }
};

// One element for each of the `target` pixels. Both counts must be at least 1. Both ends of the axis stay where they
// are, also when the picture becomes larger. Weights beyond an end are left out and the others raised.
std::vector<PixelTaps> filterTaps(int source, int target, ScalingFilter filter);

}  // namespace gp
