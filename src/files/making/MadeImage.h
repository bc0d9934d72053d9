// Makes the images of icon files from pictures: chooses the depth, makes the Mask, reduces colours, and stores the
// result as a bitmap or a PNG picture.
#pragma once

#include "platform/codec/Png.h"

#include <cstdint>
#include <vector>

namespace gp {

inline constexpr int kAutoBits = 0;
// The largest side of an image in an icon file.
inline constexpr int kLargestMadeSide = 256;
// Pixels with an alpha below this are transparent in the Mask.
inline constexpr std::uint8_t kMaskedBelow = 128;

struct MakeSettings {
  int bits = kAutoBits;  // 32, 24, 8, 4, 1, or kAutoBits
  int pngAbove = 64;     // images with a longer side are PNG pictures
  bool dithers = false;  // when colours are reduced
};

struct MadeImage {
  int width = 0;
  int height = 0;
  int bits = 0;  // per pixel; of a PNG picture 32 with alpha and 24 without
  bool isPng = false;
  std::vector<std::uint8_t> bytes;
};

// The bits per pixel that so many colours need: 1, 4, 8 or 24.
int bitsForColors(std::size_t colors);
// The depth that loses nothing: 32 bits for alpha between 0 and 255, otherwise 1, 4 or 8 bits if the colours, with
// black for transparent pixels, fit into a palette of 2, 16 or 256, and else 24.
int bitsNeeded(const PngPicture& picture);

// The bytes of a bitmap image with such a depth: its colours must fit into the palette of up to 8 bits.
std::vector<std::uint8_t> composeImage(const PngPicture& picture, int bits);

// Makes an image of a picture whose sides are 1 to 256. With fewer than 32 bits, transparent pixels are black. With 8,
// 4 and 1 bits, colours that do not fit into a palette are reduced: to 256 colours computed from the picture, to the
// sixteen standard colours, or to black and white.
MadeImage makeImage(const PngPicture& picture, const MakeSettings& settings);

}  // namespace gp
