// Composes the bytes of a file with one icon or cursor, and writes it. The depth is the caller's; depthToWrite gives
// the one that loses no colour.
#pragma once

#include "document/ColorDepth.h"
#include "document/IconContainerRec.h"
#include "document/IconImage.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gp {

// dwBytesInRes of one image in bytes: header, palette and both kinds of rows. `colors` is 2, 16, 256, or anything else
// for true colour, of which only a `bitCount` of 32 has four bytes a pixel.
std::uint32_t IconByteSize(int colors, int bitCount, int width, int height);

// The depth that an icon is written with. It follows from the colours of the image, unless the record states true
// colour, which stays true colour. An image that needs more than a palette holds is written in true colour. A true
// colour icon keeps its alpha channel if the record states one.
ColorDepth depthToWrite(const IconImage& icon, const IconContainerRec& record);

// The whole file. With a depth that has alpha the icon must have alpha values; with others they play no part.
std::vector<std::uint8_t> composeSingleIcon(const IconImage& icon, ColorDepth depth);
// The same as a cursor file with its hot spot.
std::vector<std::uint8_t> composeCursor(const IconImage& icon, ColorDepth depth, int hotspotX, int hotspotY);

// Writes an icon file in place of an existing one, as replaceFile does. False when it cannot be written, or when the
// depth has alpha and the icon has no value for each pixel.
void WriteSingleIconFile(const IconImage& icon, ColorDepth depth, const std::string& path, bool& ok);
// The same for a cursor file.
void WriteCursorFile(const IconImage& icon, ColorDepth depth, int hotspotX, int hotspotY, const std::string& path,
                     bool& ok);

// The record of an icon once it has been saved with a depth to a path: nothing is left to save.
IconContainerRec recordOfSavedIcon(IconContainerRec record, ColorDepth written, const std::string& path);

}  // namespace gp
