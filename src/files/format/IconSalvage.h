// Reads sizes and bit counts from the bitmap headers of a file's images, and repairs a directory from them. Images
// without a bitmap header are PNG pictures and images that end before the bit count; their entries are not changed.
#pragma once

#include "files/format/IconArrays.h"

namespace gp {

// An image as its bitmap header describes it, in bytes as in a directory: a side of 0 means 256. All zeros without a
// header.
struct HeaderFacts {
  int width = 0;   // mBihWidth: the low byte of biWidth
  int height = 0;  // mBihHeight: half of |biHeight|, which includes the Mask; above 510 half of its low byte
  int bits = 0;    // mBihBits: the low byte of biBitCount
  bool operator==(const HeaderFacts&) const = default;
};
bool hasBitmapHeader(ImageBytes image);
HeaderFacts headerFactsOf(ImageBytes image);

// The message for a file that cannot be salvaged.
inline constexpr const char* kTooLargeToSalvage =
    "One or more icons have width or height exceeds 128, cannot save per actual";
// False when an entry states a width or height above 128.
bool canBeSalvaged(const IconArrays& arrays);
// Copies width, height and bits from the bitmap header of each image into its entry. Colour counts, planes and byte
// counts are not changed.
void salvageEntries(IconArrays& arrays);

}  // namespace gp
