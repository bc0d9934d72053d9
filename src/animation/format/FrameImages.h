// Reads one frame of an animated cursor: an icon or cursor file with one or several images of any size, as bitmaps of
// any depth or as PNG pictures. The bytes are untrusted. An image is decoded only when it is asked for.
#pragma once

#include "document/IconImage.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace gp {

// What is known about an image before it is decoded. Bitmap headers and PNG pictures are believed rather than the
// directory.
struct FrameImageFacts {
  int width = 0;  // pixels
  int height = 0;
  int bits = 0;      // bits per pixel
  int hotspotX = 0;  // as stored; 0 in an icon file
  int hotspotY = 0;
  bool isPng = false;
  std::size_t offset = 0;  // of its bytes in the frame's file
  std::size_t size = 0;    // of its bytes that are there
};

// Returns the images of a frame's file that have pixels, in the order of its directory.
std::vector<FrameImageFacts> frameImages(std::span<const std::uint8_t> file);

// Decodes an image of the file at its size. The colours are as stored, also where the mask is white. There are alpha
// values only if one of them is above 0; the matrix is empty without. The colours of a PNG picture that is transparent
// everywhere are black. Empty when it cannot be decoded.
std::optional<IconImage> decodeFrameImage(std::span<const std::uint8_t> file, const FrameImageFacts& image);

}  // namespace gp
