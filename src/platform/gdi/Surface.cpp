#include "platform/gdi/Surface.h"

#include <algorithm>
#include <cstring>

namespace gp {

Surface::Surface(int width, int height, Color back) : backColor(back) { resize(width, height); }

std::span<const std::uint32_t> Surface::row(int y) const {
  return std::span<const std::uint32_t>(pixels_).subspan(index(0, y), static_cast<std::size_t>(width_));
}

std::uint32_t* Surface::rowForWriting(int y, int x1, int x2) {
  touch(x1, y, x2, y + 1);
  return pixels_.data() + index(0, y);
}

std::uint32_t* Surface::rowsForWriting(int y1, int y2, int x1, int x2) {
  touch(x1, y1, x2, y2);
  return pixels_.data() + index(0, y1);
}

void Surface::resize(int width, int height) {
  width_ = std::max(width, 0);
  height_ = std::max(height, 0);
  clearPicture();
}

void Surface::clearPicture() {
  hasPicture_ = false;
  groundColor_ = backColor;
  pixels_.assign(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), storedForm(backColor));
  forgetChanges();
}

void Surface::clearDrawing() {
  if (!hasPicture_) {
    clearToBackColor();
    return;
  }
  copyChanged(picture_, pixels_);
  forgetChanges();
}

void Surface::makePersistent() {
  if (hasPicture_) {
    copyChanged(pixels_, picture_);
  } else {
    picture_ = pixels_;
    hasPicture_ = true;
  }
  forgetChanges();
}

void Surface::fill(Color color) {
  std::fill(pixels_.begin(), pixels_.end(), storedForm(color));
  touch(0, 0, width_, height_);
}

void Surface::touch(int x1, int y1, int x2, int y2) {
  if (x1 >= x2 || y1 >= y2) return;
  if (changed_.x1 >= changed_.x2) {
    changed_ = {x1, y1, x2, y2};
    return;
  }
  changed_ = {std::min(changed_.x1, x1), std::min(changed_.y1, y1), std::max(changed_.x2, x2),
              std::max(changed_.y2, y2)};
}

void Surface::clearToBackColor() {
  // A changed back colour also affects pixels that were never drawn.
  if (groundColor_ != backColor) {
    clearPicture();
    return;
  }
  for (int y = changed_.y1; y < changed_.y2; ++y)
    std::fill_n(pixels_.begin() + static_cast<std::ptrdiff_t>(index(changed_.x1, y)), changed_.x2 - changed_.x1,
                storedForm(backColor));
  forgetChanges();
}

void Surface::copyChanged(const std::vector<std::uint32_t>& from, std::vector<std::uint32_t>& to) const {
  const std::size_t bytes = static_cast<std::size_t>(changed_.x2 - changed_.x1) * sizeof(std::uint32_t);
  if (bytes == 0) return;
  for (int y = changed_.y1; y < changed_.y2; ++y)
    std::memcpy(to.data() + index(changed_.x1, y), from.data() + index(changed_.x1, y), bytes);
}

}  // namespace gp
