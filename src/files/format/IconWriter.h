// Composes and writes files with one icon or cursor. The caller states the depth; depthToWrite returns the one that
// loses no colour.
#pragma once

#include "document/ColorDepth.h"
#include "document/IconContainerRec.h"
#include "document/IconImage.h"
#include "platform/files/FileVersion.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace gp {

// dwBytesInRes of one image in bytes: header, palette and both kinds of rows. `colors` is 2, 16 or 256; any other value
// means true colour, which takes four bytes per pixel for a `bitCount` of 32 and three otherwise.
std::uint32_t IconByteSize(int colors, int bitCount, int width, int height);

// The depth for writing an icon. It follows from the colours of the image, except that an icon whose record states true
// colour stays true colour. An image with too many colours for a palette is written in true colour. A true colour icon
// keeps the alpha channel that its record states.
ColorDepth depthToWrite(const IconImage& icon, const IconContainerRec& record);

// The bytes of the file. The colours of the icon must fit the depth. For a depth with alpha the icon must have alpha
// values; other depths ignore them.
std::vector<std::uint8_t> composeSingleIcon(const IconImage& icon, ColorDepth depth);
// The same for a cursor file with its hot spot.
std::vector<std::uint8_t> composeCursor(const IconImage& icon, ColorDepth depth, int hotspotX, int hotspotY);

// Replaces the file at `path` by one with this icon. `ok` becomes false when it cannot be written, see replaceFile, or
// when the depth has alpha and the icon lacks alpha values. When `read` is given, the file must still be that version.
void WriteSingleIconFile(const IconImage& icon, ColorDepth depth, const std::string& path, bool& ok,
                         const std::optional<FileVersion>& read = std::nullopt);
// The same for a cursor file.
void WriteCursorFile(const IconImage& icon, ColorDepth depth, int hotspotX, int hotspotY, const std::string& path,
                     bool& ok);

// The record of an icon after it was saved to `path` with the depth `written`: not modified, and without ties to a
// former file.
IconContainerRec recordOfSavedIcon(IconContainerRec record, ColorDepth written, const std::string& path);

}  // namespace gp
