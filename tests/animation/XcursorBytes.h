// Builds X cursor files byte by byte for the tests of readers; shares no code with the program's writer.
#pragma once

#include "animation/AniBytes.h"

#include <optional>

namespace gp::test {

// An image, with fields that can be wrong on purpose.
struct XcursorPart {
  std::uint32_t nominalSize = 24, width = 2, height = 1, hotspotX = 0, hotspotY = 0, delayMs = 50;
  std::vector<std::uint32_t> pixels{0xFF112233, 0x80402010};
  std::uint32_t type = 0xFFFD0002, headerSize = 36;
  std::optional<std::uint32_t> nominalSizeInTable = std::nullopt, position = std::nullopt;
};

inline std::string imageText(const XcursorPart& part) {
  return numbersOf({part.headerSize, part.type, part.nominalSize, 1, part.width, part.height, part.hotspotX,
                    part.hotspotY, part.delayMs}) +
         numbersOf(part.pixels);
}

// The file with its images in this order.
inline std::string xcursorOf(const std::vector<XcursorPart>& parts, std::optional<std::uint32_t> count = {}) {
  std::string table, images;
  const std::size_t first = 16 + 12 * parts.size();
  for (const XcursorPart& part : parts) {
    const auto at = static_cast<std::uint32_t>(first + images.size());
    table += numbersOf({part.type, part.nominalSizeInTable.value_or(part.nominalSize), part.position.value_or(at)});
    images += imageText(part);
  }
  return "Xcur" + numbersOf({16, 0x10000, count.value_or(static_cast<std::uint32_t>(parts.size()))}) + table + images;
}

}  // namespace gp::test
