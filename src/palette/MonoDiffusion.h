// Conversion to black and white: by diffusing each pixel's error to the following pixels, with the mean brightness as
// threshold; or by a fixed matrix of thresholds. All change a bitmap in place, from its bottom row upwards.
#pragma once

#include "palette/clsGPDIB.h"

#include <span>

namespace gp {

// A pixel that receives weight / divisor of the error.
struct DiffusionShare {
  int dx, dy, weight;
};

struct DiffusionKernel {
  std::span<const DiffusionShare> shares;
  int divisor;
  // Rows that must follow a target row inside the picture; otherwise the row receives no errors.
  int spareRows;
};
extern const DiffusionKernel kStucki;
extern const DiffusionKernel kBurkes;

// The damping that the program uses: two thirds of each error are diffused.
inline constexpr int kMonoDamping = 15;

// Returns the mean brightness of all pixels, truncated; a pixel's brightness is the mean of its channels. It is the
// threshold of both diffusions. 0 for an empty bitmap.
int meanBrightness(const clsGPDIB& dib);

// Sets all channels to 0 or 255. An error is multiplied by 10 and divided by `damping`, which must not be 0.
void diffuseToMono(clsGPDIB& dib, const DiffusionKernel& kernel, int damping);

// The two mono conversions of the colour reduction.
void ditherWeighted(clsGPDIB& dib);
void ditherOrdered(clsGPDIB& dib);

}  // namespace gp
