// Draws a frame of an animated cursor at the size of the film, as the platform draws a cursor.
#pragma once

#include "animation/format/FilmFrame.h"
#include "animation/format/FrameImages.h"

#include <cstdint>
#include <optional>
#include <span>

namespace gp {

struct DrawnFrame {
  FramePicture picture;   // on white
  FrameImageFacts image;  // the image that was drawn
  int hotspotX = 0;       // of the image that was drawn, scaled with it; not limited
  int hotspotY = 0;
  bool hasAlpha = false;    // of values that image and mask do not keep
  bool isOneOfSize = true;  // the file has only this image, of 32 x 32 pixels
};

// Draws the image nearest to 32 x 32 by the sum of what width and height differ by, of those the deepest, of those the
// first; other sizes by keep-or-drop. An image that cannot be decoded gives way to the next one with other bytes, up to
// the 16th. Empty when none can be decoded.
std::optional<DrawnFrame> drawFrame(std::span<const std::uint8_t> file);

}  // namespace gp
