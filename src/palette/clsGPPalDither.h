// Turns the pixels of a bitmap into palette indices, packed as rows of 1, 4 or 8 bits a pixel, and rewrites the bitmap
// so that it shows the dithered picture. It owns the rows. An empty bitmap is left alone.
#pragma once

#include "palette/clsGPDIB.h"
#include "palette/clsGPPal.h"

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

class clsGPPalDither {
 public:
  // Makes the rows anew, all zero, each padded to a multiple of 4 bytes. `bits` is 1, 4 or 8.
  void InitializePalID(int width, int height, int bits);
  // The rows one behind the other, the picture's bottom row first, as a bitmap file has them.
  std::span<const std::uint8_t> PalID() const { return rows_; }

  // Black and white by Stucki's kernel on the mean brightness. Errors are spread by 10 / divisor of their size; the
  // divisor must not be 0.
  void DitherToBlackAndWhite(clsGPDIB& dib, int divisor);
  // The rows of a bitmap that is black and white already; other colours count as white. The bitmap stays.
  void TakeBlackAndWhite(const clsGPDIB& dib);
  // Floyd and Steinberg's kernel. A palette of no entry, or of more than 16 or 256, is refused: nothing happens.
  void DitherToPalette16(clsGPDIB& dib, const clsGPPal& palette);
  void DitherToPalette256(clsGPDIB& dib, const clsGPPal& palette);

 private:
  void ditherToPalette(clsGPDIB& dib, const clsGPPal& palette, int bits);
  void storeRow(int y, int bits, std::span<const std::uint8_t> indices);

  std::vector<std::uint8_t> rows_;
  std::size_t stride_ = 0;
};

}  // namespace gp
