// Turns the rows of bitmap files round.
#pragma once

#include <cstdint>
#include <string>

namespace gp::test {

// The same picture with its top row first, which the header then states with a negative height. Takes an uncompressed
// bitmap file whose bottom row is first, in pixels and bits per pixel.
inline std::string topRowFirst(std::string bytes, int width, int height, int bits) {
  constexpr std::size_t kPixelsAt = 10, kHeightAt = 22;
  const auto byteAt = [&bytes](std::size_t at) {
    return static_cast<std::size_t>(static_cast<std::uint8_t>(bytes[at]));
  };
  const std::size_t pixels = byteAt(kPixelsAt) | byteAt(kPixelsAt + 1) << 8;
  const auto stride = static_cast<std::size_t>((width * bits + 31) / 32 * 4);
  for (std::size_t i = 0; i < 4; ++i) bytes[kHeightAt + i] = static_cast<char>(-height >> (8 * i));
  const std::string rows = bytes.substr(pixels);
  const auto count = static_cast<std::size_t>(height);
  for (std::size_t y = 0; y < count; ++y)
    bytes.replace(pixels + y * stride, stride, rows, (count - 1 - y) * stride, stride);
  return bytes;
}

}  // namespace gp::test
