// What the image of an entry tells of itself: the fields of its bitmap header, or the size in a PNG picture. Values are
// kept as they stand there; nothing is refused.
#pragma once

#include "files/format/IconFile.h"

#include <cstdint>
#include <optional>

namespace gp::cli {

struct ImageHeader {
  bool isPng = false;
  std::int64_t width = 0;
  std::int64_t rows = 0;  // of a bitmap's picture and Mask together; of a PNG picture its height
  int bits = 0;           // a PNG picture tells none of these
  std::uint32_t compression = 0;
  std::uint32_t colorsUsed = 0;

  bool isPlain() const { return compression == 0; }
  // The rows that picture and Mask have each, in halves of a row.
  std::int64_t heightInHalves() const { return isPng ? 2 * rows : rows; }
  // Entries that the palette has for all that the pixels can say; 0 without a palette.
  std::uint32_t paletteForBits() const;
  // The entries that are there, as the header tells.
  std::uint32_t paletteTold() const;
  // Bytes that the image needs with such a palette; those of the header alone when no more is known.
  std::uint64_t bytesNeeded(std::uint32_t paletteEntries) const;
};

// Nothing when the file ends before the header does.
std::optional<ImageHeader> readImageHeader(const IconFile& file, const IconEntry& entry);

}  // namespace gp::cli
