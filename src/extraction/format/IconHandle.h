// An icon as the platform hands it out at one size: colours as stored, the AND mask, and alpha values if one of them is
// above 0 (a matrix of 1 x 1 otherwise). It is an IconImage before it is prepared for the editor.
#pragma once

#include "document/IconImage.h"
#include "platform/gdi/Surface.h"
#include "platform/resources/IconLibrary.h"

#include <cstdint>
#include <optional>
#include <span>

namespace gp {

inline constexpr int kLargeIcon = 32;
inline constexpr int kSmallIcon = 16;

// An icon of a library: of the images that can be decoded, the one nearest to size x size by the sum of what width and
// height differ by in the group's directory, of those the one with the most bits, of those the first. Another size is
// scaled by keep-or-drop. Empty when none can be decoded.
std::optional<IconImage> libraryIcon(const IconLibrary& library, const IconGroup& group, int size);
// The same of an icon or cursor file, and of a frame of an animated cursor.
std::optional<IconImage> fileIcon(std::span<const std::uint8_t> file, int size);

// Draws the icon as flags 3 of the platform's drawing do: blended with the ground by its alpha values, without the
// mask; or, without alpha values, (ground AND mask) XOR colours.
Surface drawnOn(const IconImage& handle, Color ground);

// Prepares an icon for the editor. With alpha values: the mask is white where it is white or alpha is 0, and the image
// is black there. Without: image and mask as they are.
IconImage surfacesOf(const IconImage& handle);
// Image and mask alone: the image drawn on black by flags 2, the mask as it is, no alpha values.
IconImage surfacesWithoutAlpha(const IconImage& handle);

}  // namespace gp
