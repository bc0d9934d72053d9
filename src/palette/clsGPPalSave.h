// Writes a bitmap file of 1, 4, 8 or 24 bits a pixel.
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
  // With 1, 4 or 8 bits the rows are the dither's and the colours the palette's; with 24 bits the bitmap's own pixels
  // are written; other depths up to 32 get rows of zeros. The table in the file always has 2 to the power of `bits`
  // entries; those behind the palette's are black. An existing file is replaced. False when it cannot be written, for
  // an empty bitmap, for rows of another size than the bitmap's, and for depths below 1 or above 32; then nothing is
  // touched.
  [[nodiscard]] bool Save_BMP(const std::string& path, const clsGPDIB& dib, const clsGPPal& palette,
                              const clsGPPalDither& dither, int bits) const;
};

}  // namespace gp
