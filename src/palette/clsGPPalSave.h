// Writes a bitmap file with 1, 4, 8 or 24 bits per pixel.
#pragma once

#include "palette/clsGPDIB.h"
#include "palette/clsGPPal.h"
#include "palette/clsGPPalDither.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gp {

class clsGPPalSave {
 public:
  // The bytes of the file. With 1, 4 or 8 bits it has the rows of `dither` and the colours of `palette`; with 24 bits,
  // the pixels of `dib`; with other depths, rows of zeros. The colour table in the file has 2 to the power of `bits`
  // entries up to 8 bits; missing entries are black. Empty for an empty bitmap, rows of a different size, and depths
  // below 1 or above 32.
  std::vector<std::uint8_t> compose(const clsGPDIB& dib, const clsGPPal& palette, const clsGPPalDither& dither,
                                    int bits) const;
  // Writes them, replacing an existing file. Returns false when there are none, without touching the file, and when the
  // file cannot be written.
  [[nodiscard]] bool Save_BMP(const std::string& path, const clsGPDIB& dib, const clsGPPal& palette,
                              const clsGPPalDither& dither, int bits) const;
};

}  // namespace gp
