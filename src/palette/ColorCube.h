// The nearest palette entries for a coarse cube of colours, with sixteen steps per channel. The dithers look each pixel
// up here instead of searching the palette.
#pragma once

#include "platform/gdi/Surface.h"

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

class ColorCube {
 public:
  // Takes 1 to 256 colours; among equally near ones the first one is used.
  explicit ColorCube(std::span<const Color> palette);

  // Returns the index of the entry for a colour, by the step nearest to each channel.
  std::uint8_t at(std::uint8_t red, std::uint8_t green, std::uint8_t blue) const;

 private:
  std::vector<std::uint8_t> cube_;
};

}  // namespace gp
