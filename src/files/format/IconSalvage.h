// What the bitmap headers of a file's images say of their sizes and bits, and the repair of a directory by them.
// Nothing is owned here. Images without such a header, which are PNG pictures and those that end before it tells its
// bits, are left alone: their entries stay as they are.
#pragma once

#include "files/format/IconArrays.h"

namespace gp {

// An image by its own header, in bytes as a directory has them: a side of 0 means 256. All zeros without a header.
struct HeaderFacts {
  int width = 0;   // mBihWidth: the low byte of biWidth
  int height = 0;  // mBihHeight: half of |biHeight|, which counts picture and Mask; of its low byte above 510
  int bits = 0;    // mBihBits: the low byte of biBitCount
  bool operator==(const HeaderFacts&) const = default;
};
bool hasBitmapHeader(ImageBytes image);
HeaderFacts headerFactsOf(ImageBytes image);

// What the user is told when it is refused.
inline constexpr const char* kTooLargeToSalvage =
    "One or more icons have width or height exceeds 128, cannot save per actual";
// False when an entry tells a width or height above 128.
bool canBeSalvaged(const IconArrays& arrays);
// Width, height and bits of each entry become those of its bitmap header; colour counts, planes and byte counts stay.
void salvageEntries(IconArrays& arrays);

}  // namespace gp
