// The hashes by which pictures are compared with measured ones.
#pragma once

#include "platform/gdi/Surface.h"
#include "support/Sha256.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gp::test {

// Of the colours: red, green and blue of each pixel, row by row from the top.
inline std::string pictureHash(const Surface& surface) {
  std::vector<std::uint8_t> rows;
  for (const std::uint32_t pixel : surface.pixels()) {
    const auto color = static_cast<Color>(pixel & kColorBits);
    for (const int channel : {redOf(color), greenOf(color), blueOf(color)})
      rows.push_back(static_cast<std::uint8_t>(channel));
  }
  return Sha256::of(rows);
}

// Of a Mask: a byte for each pixel, 0 for black and 1 for any other colour.
inline std::string maskHash(const Surface& mask) {
  std::vector<std::uint8_t> rows;
  for (const std::uint32_t pixel : mask.pixels()) rows.push_back((pixel & kColorBits) ? 1 : 0);
  return Sha256::of(rows);
}

}  // namespace gp::test
