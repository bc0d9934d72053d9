// Files of several icons for the forms that read them: the fields of each entry are as a test sets them, right or
// wrong.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace gp::test {

struct Told {
  int size, colors, bits;
  std::string image;
};

inline std::string littleEndian(std::size_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i, value >>= 8) text += static_cast<char>(value & 0xFF);
  return text;
}

// The images follow the directory directly, in its order.
inline std::string iconFileOf(const std::vector<Told>& entries) {
  std::string file = littleEndian(0, 2) + littleEndian(1, 2) + littleEndian(entries.size(), 2);
  std::size_t offset = 6 + 16 * entries.size();
  for (const Told& e : entries) {
    const auto side = static_cast<std::size_t>(e.size);
    file += littleEndian(side, 1) + littleEndian(side, 1) + littleEndian(static_cast<std::size_t>(e.colors), 1) +
            littleEndian(0, 1) + littleEndian(1, 2) + littleEndian(static_cast<std::size_t>(e.bits), 2) +
            littleEndian(e.image.size(), 4) + littleEndian(offset, 4);
    offset += e.image.size();
  }
  for (const Told& e : entries) file += e.image;
  return file;
}

// A ball of 32 bits whose alpha decreases towards its edge; the mask is transparent around it.
inline std::string ballImage(int side) {
  const auto pixels = static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
  const auto maskRow = static_cast<std::size_t>((side + 31) / 32 * 4);
  std::string mask(maskRow * static_cast<std::size_t>(side), '\0');
  std::string image = littleEndian(40, 4) + littleEndian(static_cast<std::size_t>(side), 4) +
                      littleEndian(static_cast<std::size_t>(2 * side), 4) + littleEndian(1, 2) + littleEndian(32, 2) +
                      std::string(24, '\0');
  image.reserve(image.size() + 4 * pixels);
  for (int y = 0; y < side; ++y)
    for (int x = 0; x < side; ++x) {
      const int dx = 2 * x + 1 - side, dy = 2 * y + 1 - side;
      const int light = 255 - 255 * (dx * dx + dy * dy) / (side * side);
      const int alpha = light < 0 ? 0 : light > 80 ? 255 : light * 3;
      image += {'\xD0', static_cast<char>(light < 0 ? 0 : light / 2 + 60), '\x30', static_cast<char>(alpha)};
      char& eight = mask[static_cast<std::size_t>(y) * maskRow + static_cast<std::size_t>(x / 8)];
      if (alpha == 0) eight = static_cast<char>(eight | 0x80 >> x % 8);
    }
  return image + mask;
}

}  // namespace gp::test
