// Finds icons in any file by their bitmap headers, whatever the format of the file is.
#pragma once

#include "document/IconImage.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace gp {

struct IclScanEntry {
  std::uint64_t blobOffset = 0;  // from 1
  std::uint64_t blobEnd = 0;     // of its last byte, from 1
  int side = 0;                  // width and height, pixels
  int bitCount = 0;
  bool valid = true;

  std::string sizeText() const { return std::to_string(side) + "x" + std::to_string(side); }
};

// The images of square bitmaps of 16, 24, 32 and 48 pixels in 1, 4, 8, 24 or 32 bits whose bytes are all there, in the
// order of the file. One inside another is not counted.
std::vector<IclScanEntry> scanForIconImages(std::span<const std::uint8_t> file);

// Decodes a found image: colours, mask, and alpha values if one is above 0. Empty when it cannot be decoded.
std::optional<IconImage> decodeIconBlob(std::span<const std::uint8_t> file, const IclScanEntry& entry);

}  // namespace gp
