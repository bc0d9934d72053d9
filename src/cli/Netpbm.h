// Portable pixmaps and graymaps: a header line and the samples.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace gp::cli {

class Netpbm {
 public:
  // `magic` is "P6" for three samples per pixel and "P5" for one.
  Netpbm(const char* magic, int width, int height, std::size_t bytesPerPixel) {
    const std::string header =
        std::string(magic) + "\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n";
    bytes_.reserve(header.size() + static_cast<std::size_t>(width) * height * bytesPerPixel);
    bytes_.assign(header.begin(), header.end());
  }
  // Adds a sample from 0 to 255.
  void add(int sample) { bytes_.push_back(static_cast<std::uint8_t>(sample)); }
  std::span<const std::uint8_t> bytes() const { return bytes_; }

 private:
  std::vector<std::uint8_t> bytes_;
};

}  // namespace gp::cli
