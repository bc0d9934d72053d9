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

// Those to try when the icon is drawn at size x size pixels, the best one first, see imagesToTry.
std::vector<FrameImageFacts> frameImagesToTry(std::span<const std::uint8_t> file, int size);

// The bytes of an image of the file, as decodeImage takes them.
std::span<const std::uint8_t> bytesOfFrameImage(std::span<const std::uint8_t> file, const FrameImageFacts& image);

// Decodes an image of the file at its size, see decodeImage. Empty when it cannot be decoded.
std::optional<IconImage> decodeFrameImage(std::span<const std::uint8_t> file, const FrameImageFacts& image);

}  // namespace gp
