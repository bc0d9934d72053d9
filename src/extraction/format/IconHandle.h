// An icon as the platform hands it out at one size: colours as stored, the AND mask, and alpha values if one of them is
// above 0 (a matrix of 1 x 1 otherwise). It is an IconImage before it is prepared for the editor. An icon with alpha
// values but without an AND mask, such as a PNG picture, has a mask Surface of 0 x 0.
#pragma once

#include "document/IconImage.h"
#include "files/format/ImageDrawing.h"
#include "platform/gdi/Surface.h"
#include "platform/resources/IconLibrary.h"

#include <cstdint>
#include <optional>
#include <span>

namespace gp {

inline constexpr int kLargeIcon = 32;
inline constexpr int kSmallIcon = 16;

// An icon of a library: of the images that can be decoded, the one nearest to size x size by the sum of what width and
// height differ by in the group's directory, of those the one with the most bits, of those the first. At most 16 are
// tried. Another size is scaled by keep-or-drop. Empty when none can be decoded.
std::optional<IconImage> libraryIcon(const IconLibrary& library, const IconGroup& group, int size);
// The same of an icon or cursor file, and of a frame of an animated cursor. Sizes and bits are those that the images
// state.
std::optional<IconImage> fileIcon(std::span<const std::uint8_t> file, int size);

// A handle is drawn by drawnOn (ImageDrawing.h).

// Prepares an icon for the editor. With alpha values: the mask is white where the AND mask is white or alpha is 0, and
// the image is black there. Without: image and mask as they are.
IconImage surfacesOf(const IconImage& handle);
// Image and mask alone: the image drawn on black by flags 2, the AND mask as it is, no alpha values. Without an AND
// mask, the mask is white where alpha is below 128.
IconImage surfacesWithoutAlpha(const IconImage& handle);

// Makes the image of a picture that was drawn on the colour `key` black where it has that colour and the mask is white.
void blackenKey(IconImage& icon, Color key);

}  // namespace gp
