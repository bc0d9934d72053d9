// Composes the bytes of a file with one icon or cursor and writes them once. The depth follows from the colours that
// are on the picture, unless the icon is a true colour one, which stays true colour. No colour is lost: a picture that
// needs more than a palette holds is written in true colour.
#pragma once

#include "document/EditState.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gp {

// dwBytesInRes of one image in bytes: header, palette and both kinds of rows. `colors` is 2, 16, 256, or anything else
// for true colour, of which only a `bitCount` of 32 has four bytes a pixel.
std::uint32_t IconByteSize(int colors, int bitCount, int width, int height);

// The colours that a picture is written with: 2, 16, 256 or -1. `dirColors` is that of the record.
int colorsToWrite(const Surface& image, int dirColors);

// The whole file. `colors` is from colorsToWrite; `alpha` is null, or of the Surfaces' size and then used for true
// colour only.
std::vector<std::uint8_t> composeSingleIcon(const Surface& image, const Surface& mask, int colors,
                                            const AlphaMatrix* alpha);

// The same as a cursor file with its hot spot.
std::vector<std::uint8_t> composeCursor(const Surface& image, const Surface& mask, int colors, const AlphaMatrix* alpha,
                                        int hotspotX, int hotspotY);

// Writes two Surfaces as the icon of the current record, whose alpha matrix is used if `withAlpha`. An existing file
// is deleted first. False when the file cannot be written or the alpha matrix has another size.
void WriteSingleIconFile(const EditState& state, const Surface& imageSurface, const Surface& maskSurface,
                         const std::string& path, bool withAlpha, bool& ok);

// True when the icon goes to a file with its alpha values, as far as that is written in true colour.
bool isWrittenWithAlpha(const IconContainerRec& record);
// Writes the Current Icon with the alpha that its record tells of.
[[nodiscard]] bool writeCurrentIcon(const EditState& state, const std::string& path);
// The same as a cursor.
[[nodiscard]] bool writeCurrentCursor(const EditState& state, int hotspotX, int hotspotY, const std::string& path);
// The record tells what has been written: its depth, its path, nothing left to save.
void describeSavedIcon(EditState& state, const std::string& path);

}  // namespace gp
