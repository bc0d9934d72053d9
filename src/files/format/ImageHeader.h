// Reads the fields of an image's bitmap header, or the size of a PNG picture. Values are returned as stored; none is
// refused.
#pragma once

#include "files/format/IconFile.h"

#include <cstdint>
#include <optional>

namespace gp {

struct ImageHeader {
  bool isPng = false;
  std::int64_t width = 0;
  std::int64_t rows = 0;  // of a bitmap including the Mask; of a PNG picture its height
  int bits = 0;           // this and the following are not known of a PNG picture
  std::uint32_t compression = 0;
  std::uint32_t colorsUsed = 0;

  bool isPlain() const { return compression == 0; }
  // The height of the picture, in halves of a row.
  std::int64_t heightInHalves() const { return isPng ? 2 * rows : rows; }
  // The size of a full palette for the bit count; 0 without a palette.
  std::uint32_t paletteForBits() const;
  // The size of the palette as the header states it.
  std::uint32_t paletteStated() const;
  // The number of bytes of the image with such a palette; that of the header alone if the format is unknown.
  std::uint64_t bytesNeeded(std::uint32_t paletteEntries) const;
};

// Empty when the file ends before the header does.
std::optional<ImageHeader> readImageHeader(const IconFile& file, const IconEntry& entry);

}  // namespace gp
