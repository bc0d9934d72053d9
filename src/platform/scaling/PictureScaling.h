// Scales pictures. Pixels are added up in linear light and weighted by their alpha, so that fine patterns keep their
// brightness and transparent pixels do not shine through.
#pragma once

#include "platform/codec/Png.h"
#include "platform/scaling/FilterTaps.h"

#include <span>
#include <vector>

namespace gp {

struct PictureSize {
  int width = 0;
  int height = 0;

  bool operator==(const PictureSize&) const = default;
};

// Scales a picture to each of the sizes, whose sides must be at least 1. Each is computed from the source, not from
// another size. Fully transparent pixels of the results are black.
std::vector<PngPicture> scaledPictures(const PngPicture& source, std::span<const PictureSize> sizes,
                                       ScalingFilter filter);

}  // namespace gp
