// Writes palettes and rows of icon images: bottom row first, left to right. Icon, cursor and multi-icon files share
// them. Each function appends to a ByteWriter and accepts any pixels.
#pragma once

#include "document/AlphaMatrix.h"
#include "platform/files/ByteWriter.h"
#include "platform/gdi/Surface.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace gp {

using PaletteEntry = std::array<std::uint8_t, 4>;  // blue, green, red, 0

extern const std::array<PaletteEntry, 2> mPalMono;
extern const std::array<PaletteEntry, 16> mPal16;

// The colours of a picture in the order of their palette indices, which begins with black and white.
class Pal256 {
 public:
  Pal256();
  // False when the palette is full.
  bool add(std::uint32_t color);
  // The index of a colour; 0 for one that is not in the palette.
  std::uint8_t indexOf(std::uint32_t color) const;
  // Writes 256 entries; unused ones are zero.
  void write(ByteWriter& out) const;

 private:
  std::vector<std::uint32_t> colors_;
};

// The palette of a picture, which is scanned row by row from the top left. Empty when it has too many colours.
std::optional<Pal256> BuildPal256(const Surface& surface);

void writePalette(std::span<const PaletteEntry> palette, ByteWriter& out);

// One bit per pixel: 1 for white, 0 for any other colour. Incomplete bytes are filled with 1 bits, rows with zero
// bytes.
void WriteMaskRows(const Surface& surface, ByteWriter& out);
// Half a byte per pixel, the index in mPal16. A colour that is not in it repeats the previous index.
void WriteRows16(const Surface& surface, ByteWriter& out);
// One byte per pixel.
void WriteRows256(const Surface& surface, const Pal256& palette, ByteWriter& out);
// Blue, green, red; with alpha a fourth byte, which is 0 where the Mask is not black, and at least 1 where it is. Rows
// are not padded. The alpha matrix must have the Surface's size.
void WriteRowsTrue(const Surface& surface, const Surface& maskSurface, const AlphaMatrix* alpha, ByteWriter& out);

}  // namespace gp
