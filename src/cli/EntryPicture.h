// The picture of an entry of any size, for commands that show or write it as it is.
#pragma once

#include "files/format/IconFile.h"
#include "platform/codec/Png.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace gp::cli {

struct EntryPicture {
  PngPicture picture;
  std::span<const std::uint8_t> png;  // the bytes of the entry in the file if it is a PNG picture, otherwise empty
};
// Decodes an entry of an icon or cursor file as its own header describes it, and not the directory. Alpha is as
// decodeIconBitmap has it. Empty for an image that cannot be decoded.
std::optional<EntryPicture> pictureOfEntry(const IconFile& file, int index);

// The complaint about images of a file that cannot be decoded.
std::string undecodedText(int undecoded, int count);

}  // namespace gp::cli
