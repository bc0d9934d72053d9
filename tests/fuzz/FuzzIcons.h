// Shared by the fuzz targets that decode icons: how many entries, when two icons are equal, and
// how an icon reads back.
#pragma once

#include "FuzzInput.h"
#include "document/ColorDepth.h"
#include "document/IconImage.h"
#include "files/format/IconArrays.h"
#include "files/format/IconDecoder.h"

#include <algorithm>

namespace gp::fuzz {

// A file may state more entries than are worth decoding.
inline constexpr int kMostEntries = 6;

inline int entriesToDecode(const IconFile& file) { return std::min(kMostEntries, file.directory.presentCount()); }

inline bool samePixels(const Surface& a, const Surface& b) {
  return a.width() == b.width() && a.height() == b.height() && std::ranges::equal(a.pixels(), b.pixels());
}

inline bool sameIcon(const IconImage& a, const IconImage& b) {
  return samePixels(a.image, b.image) && samePixels(a.mask, b.mask) && a.alpha == b.alpha;
}

inline void requireSame(const DecodedIcon& a, const DecodedIcon& b) {
  require(a.defect == b.defect && sameIcon(a.icon, b.icon));
}

// An icon as it reads back after it was written: alpha values are written where the Mask is black, and all other pixels
// read as opaque.
inline IconImage asWritten(IconImage icon, ColorDepth depth) {
  constexpr std::uint8_t kOpaque = 255;
  AlphaMatrix alpha = depth.isTrueColor() ? AlphaMatrix(icon.width(), icon.height(), kOpaque) : AlphaMatrix();
  for (int y = 0; depth.hasAlpha() && y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x)
      if (icon.mask.GetPixel(x, y) == kBlack) alpha.at(x, y) = icon.alpha.at(x, y);
  icon.alpha = alpha;
  return icon;
}

// Entries may share bytes, so that a small file can describe a large one.
inline std::size_t sumOfImages(const IconArrays& arrays) {
  std::size_t sum = 0;
  for (const ImageBytes image : arrays.images) sum += image.size();
  return sum;
}

}  // namespace gp::fuzz
