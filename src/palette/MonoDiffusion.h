// Black and white by spreading each pixel's error over those that follow, with the picture's mean brightness as the
// threshold; and by a fixed matrix of thresholds. All work on a bitmap in place and go from its bottom row upward.
#pragma once

#include "palette/clsGPDIB.h"

#include <span>

namespace gp {

// One pixel that takes a share of the error: weight / divisor of it.
struct DiffusionShare {
  int dx, dy, weight;
};

struct DiffusionKernel {
  std::span<const DiffusionShare> shares;
  int divisor;
  // Rows below the picture's end that the shares of each row need: a row that lacks them is left out.
  int spareRows;
};
extern const DiffusionKernel kStucki;
extern const DiffusionKernel kBurkes;

// What the program spreads errors with: two thirds of each go on.
inline constexpr int kMonoDamping = 15;

// The mean over all pixels of a third of their channels' sum, without its fraction: the threshold of both diffusions.
// 0 for an empty bitmap.
int meanBrightness(const clsGPDIB& dib);

// Channels become all 0 or all 255. `damping` is what an error is divided by after being taken times ten; not 0.
void diffuseToMono(clsGPDIB& dib, const DiffusionKernel& kernel, int damping);

// The mono choices of the reduction of colours.
void ditherWeighted(clsGPDIB& dib);
void ditherOrdered(clsGPDIB& dib);

}  // namespace gp
