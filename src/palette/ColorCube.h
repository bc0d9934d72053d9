// A palette's nearest entries for a coarse cube of colours, sixteen steps to a channel: what the dithers look every
// pixel up in instead of searching the palette.
#pragma once

#include "platform/gdi/Surface.h"

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

class ColorCube {
 public:
  // 1 to 256 colours; the first one wins among equally near ones.
  explicit ColorCube(std::span<const Color> palette);

  // The entry for a colour, by the step nearest to each channel.
  std::uint8_t at(std::uint8_t red, std::uint8_t green, std::uint8_t blue) const;

 private:
  std::vector<std::uint8_t> cube_;
};

}  // namespace gp
