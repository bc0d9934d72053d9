// Entries whose image is a PNG picture, for tests.
#pragma once

#include "files/IcoBuilder.h"
#include "support/PngBuilder.h"

namespace gp::test {

inline int statedSide(std::uint32_t side) { return side < 256 ? static_cast<int>(side) : 0; }

// With a correct directory.
inline Entry pngEntryOf(const PngFile& file) {
  Entry entry;
  entry.width = statedSide(file.width);
  entry.height = statedSide(file.height);
  entry.bitCount = 32;
  entry.image = build(file);
  return entry;
}
inline Entry anyPngEntry(int size, int colorType = png::kRgba) { return pngEntryOf(anyPng(size, colorType)); }

// What anyPng shows at x, y.
inline int anyAlpha(int x, int y) { return anyRgba(x, y)[3]; }

}  // namespace gp::test
