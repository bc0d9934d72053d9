// Decodes uncompressed bitmaps, from bytes to pixels: bitmap files, and the images of icon files, which have a Mask
// behind their rows. Depths of 1, 2, 4, 8, 16, 24 and 32 bits are read, with masks of their channels too. No input
// makes a function throw or use more memory than its limits allow.
#pragma once

#include "platform/codec/Png.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace gp {

enum class BitmapDefect {
  None,
  NotBitmap,    // without the signature or a header of 12 bytes, or of 40 or more
  Unsupported,  // compressed, or of another depth
  TooLarge,     // no pixels, or more than the limits allow
  CutShort      // without all rows of the picture
};

struct DecodedBitmap {
  BitmapDefect defect = BitmapDefect::None;
  PngPicture picture;  // empty with a defect

  bool isRead() const { return defect == BitmapDefect::None; }
};

// True when bytes begin with the signature of a bitmap file.
bool isBitmapFile(std::span<const std::uint8_t> bytes);
// Decodes a bitmap file. The fourth byte of 32 bits is alpha unless it is 0 in all pixels.
[[nodiscard]] DecodedBitmap decodeBitmapFile(std::span<const std::uint8_t> bytes, PngLimits limits);
// Decodes the image of an icon. `bytes` begin with its header, which states twice the height, and may reach behind its
// end; `statedSize` is the size by the directory. The fourth byte of 32 bits is alpha
// unless it is 0 in all pixels; the Mask then has no effect. In all other images, alpha is 0 where the Mask is set. A
// Mask that is cut short is completed with opaque pixels. The picture always has alpha.
[[nodiscard]] DecodedBitmap decodeIconBitmap(std::span<const std::uint8_t> bytes, std::uint64_t statedSize,
                                             PngLimits limits);

// What the header of an icon's image states.
struct BitmapFacts {
  int width = 0;  // pixels
  int height = 0;
  int bits = 0;
  std::uint64_t rowsEnd = 0;  // of the picture, before the Mask
};
// Empty for an image that decodeIconBitmap refuses, for which nothing is decoded.
std::optional<BitmapFacts> iconBitmapFacts(std::span<const std::uint8_t> bytes, std::uint64_t statedSize,
                                           PngLimits limits);

// The image of an icon with its Mask apart from its alpha.
struct MaskedBitmap {
  BitmapDefect defect = BitmapDefect::None;
  PngPicture picture;              // has alpha only if a value is not 0; opaque without
  std::vector<std::uint8_t> mask;  // 1 where the Mask is set, row by row from the top; 0 where it is cut short
  bool hasWholeMask = false;

  bool isRead() const { return defect == BitmapDefect::None; }
};
[[nodiscard]] MaskedBitmap decodeMaskedBitmap(std::span<const std::uint8_t> bytes, std::uint64_t statedSize,
                                              PngLimits limits);

}  // namespace gp
