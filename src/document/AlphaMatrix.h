// The alpha values of one icon: one byte per pixel, from 0 transparent to 255 opaque. The matrix of an icon without
// alpha has the size 1 x 1.
#pragma once

#include <cstdint>
#include <vector>

namespace gp {

inline constexpr std::uint8_t kOpaqueAlpha = 255;

class AlphaMatrix {
 public:
  // Opaque, because it also is the matrix of a picture of one pixel without alpha.
  AlphaMatrix() : AlphaMatrix(1, 1, kOpaqueAlpha) {}
  AlphaMatrix(int width, int height, std::uint8_t value = 0)
      : width_(width), height_(height), values_(static_cast<std::size_t>(width) * height, value) {}

  int width() const { return width_; }
  int height() const { return height_; }
  bool isOfSize(int size) const { return width_ == size && height_ == size; }
  // x and y must lie inside.
  std::uint8_t& at(int x, int y) { return values_[static_cast<std::size_t>(y) * width_ + x]; }
  std::uint8_t at(int x, int y) const { return values_[static_cast<std::size_t>(y) * width_ + x]; }
  bool operator==(const AlphaMatrix&) const = default;

 private:
  int width_;
  int height_;
  std::vector<std::uint8_t> values_;
};

}  // namespace gp
