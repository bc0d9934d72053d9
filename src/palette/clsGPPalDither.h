// Converts the pixels of a bitmap to palette indices, packed in rows of 1, 4 or 8 bits per pixel, and changes the
// bitmap to the dithered picture. It owns the rows. An empty bitmap is left unchanged.
#pragma once

#include "palette/clsGPDIB.h"
#include "palette/clsGPPal.h"

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

class clsGPPalDither {
 public:
  // Creates the rows, all zero, each padded to a multiple of 4 bytes. `bits` is 1, 4 or 8.
  void InitializePalID(int width, int height, int bits);
  // The rows one after another, the picture's bottom row first, as in a bitmap file.
  std::span<const std::uint8_t> PalID() const { return rows_; }

  // Dithers to black and white with Stucki's kernel and the mean brightness as threshold. Errors are diffused at 10 /
  // divisor of their size; the divisor must not be 0.
  void DitherToBlackAndWhite(clsGPDIB& dib, int divisor);
  // Stores the rows of a bitmap that is black and white already; other colours count as white. `dib` does not change.
  void TakeBlackAndWhite(const clsGPDIB& dib);
  // Dither with Floyd and Steinberg's kernel. Do nothing for an empty palette or one with more than 16 or 256 entries.
  void DitherToPalette16(clsGPDIB& dib, const clsGPPal& palette);
  void DitherToPalette256(clsGPDIB& dib, const clsGPPal& palette);

 private:
  void ditherToPalette(clsGPDIB& dib, const clsGPPal& palette, int bits);
  void storeRow(int y, int bits, std::span<const std::uint8_t> indices);

  std::vector<std::uint8_t> rows_;
  std::size_t stride_ = 0;
};

}  // namespace gp
