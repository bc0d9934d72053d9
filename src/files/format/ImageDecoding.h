// Decodes one image of an icon, cursor or program by what it states itself: a bitmap of any depth, or a PNG picture.
// The bytes are untrusted.
#pragma once

#include "document/IconImage.h"
#include "platform/codec/Png.h"

#include <cstdint>
#include <optional>
#include <span>

namespace gp {

// Some files have pictures of 512 pixels, whose entries state 256.
inline constexpr PngLimits kLargestDecodedImage{512, 512};

struct DecodedImage {
  // The colours are as stored, also where the mask is white. There are alpha values only if one of them is above 0; the
  // matrix is empty without. The colours of a PNG picture that is transparent everywhere are black.
  IconImage icon;
  // False for an image with alpha values and without an AND mask. The mask then is white where alpha is below 128.
  bool hasMask = true;
};

// Decodes an image at its size. `bytes` are those of the image; a PNG picture may end before them. Empty when it cannot
// be decoded.
std::optional<DecodedImage> decodeImage(std::span<const std::uint8_t> bytes);

}  // namespace gp
