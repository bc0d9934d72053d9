// Opens icon and cursor files for the subcommands. The content decides what a file is, not its name.
#pragma once

#include "files/format/IconDecoder.h"
#include "files/format/IconFile.h"

#include <optional>
#include <string>

namespace gp::cli {

// Opens an icon or cursor file; openIconFile accepts icon files only. Empty after an error message.
std::optional<IconFile> openImageFile(const std::string& path);
std::optional<IconFile> openIconFile(const std::string& path);
// Opens an icon or cursor file, or an animated cursor of any content. Empty after an error message.
std::optional<IconFile> openAnyFile(const std::string& path);
// Accepts icon and cursor files, also without an entry, and animated cursors of any content. Empty after an error
// message, for others and for nullopt.
std::optional<IconFile> accepted(std::optional<IconFile> file, const std::string& path);

// True for a file that is an animated cursor by its first bytes, and for one that only its name calls so.
bool isAnimated(const IconFile& file, const std::string& path);
// True for a name that ends in .ani, in any case.
bool isNamedAni(const std::string& path);

// A side in pixels from its byte in a directory: 0 means 256.
int sideOf(int side);

// True when the editor can show the image.
bool isUsableImage(const IconFile& file, int index);

// An image as the editor shows it.
struct DecodedImage {
  IconImage icon;
  bool hasAlpha = false;
};
// Empty for an image that is not usable.
std::optional<DecodedImage> decodeImage(const IconFile& file, int index);

}  // namespace gp::cli
