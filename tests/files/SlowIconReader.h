// A simple reader of icon images: one byte at a time, one pixel at a time. The row readers of the program must give the
// same result.
#pragma once

#include "files/format/IcoDirectory.h"
#include "files/format/IconDecoder.h"

#include <span>

namespace gp::test {

class SlowIconReader {
 public:
  SlowIconReader(std::span<const std::uint8_t> file, const IconEntry& entry, int width, int height)
      : file_(file), entry_(entry), width_(width), height_(height), at_(std::uint64_t{entry.imageOffset} + 40) {}

  IconImage read() {
    IconImage icon{Surface(width_, height_), Surface(width_, height_), AlphaMatrix()};
    const int colors = ColorsForEntry(entry_, entry_.bitCount);
    if (colors < 1) icon.alpha = AlphaMatrix(width_, height_, 255);
    for (int i = 0; i < colors; ++i) {
      const int b = next(), g = next(), r = next();
      next();
      palette_.push_back(rgb(r, g, b));
    }
    for (int y = height_ - 1; y >= 0; --y) {
      if (colors == 2)
        readBits(y, icon.image, palette_[0], palette_[1]);
      else if (colors == 16)
        readHalves(y, icon.image);
      else if (colors == 256)
        readBytes(y, icon.image);
      else
        readTrue(y, icon);
    }
    for (int y = height_ - 1; y >= 0; --y) readBits(y, icon.mask, kBlack, kWhite);
    return icon;
  }

 private:
  int next() { return at_ < file_.size() ? file_[at_++] : (++at_, 0); }
  void pad(int count) {
    if (count % 4) at_ += static_cast<std::uint64_t>(4 - count % 4);
  }
  void readBits(int y, Surface& surface, Color zero, Color one) {
    const int bytes = width_ / 8 + (width_ % 8 ? 1 : 0);
    for (int i = 0; i < bytes; ++i) {
      const int byte = next();
      for (int bit = 0; bit < 8 && i * 8 + bit < width_; ++bit)
        surface.SetPixelV(i * 8 + bit, y, byte & (128 >> bit) ? one : zero);
    }
    pad(bytes);
  }
  void readHalves(int y, Surface& surface) {
    const int bytes = width_ / 2 + width_ % 2;
    for (int i = 0; i < bytes; ++i) {
      const int byte = next();
      surface.SetPixelV(2 * i, y, palette_[static_cast<std::size_t>(byte / 16)]);
      if (2 * i + 1 < width_) surface.SetPixelV(2 * i + 1, y, palette_[static_cast<std::size_t>(byte % 16)]);
    }
    pad(bytes);
  }
  void readBytes(int y, Surface& surface) {
    for (int x = 0; x < width_; ++x) surface.SetPixelV(x, y, palette_[static_cast<std::size_t>(next())]);
    pad(width_);
  }
  void readTrue(int y, IconImage& icon) {
    for (int x = 0; x < width_; ++x) {
      const int b = next(), g = next(), r = next();
      icon.image.SetPixelV(x, y, rgb(r, g, b));
      if (entry_.bitCount == 24) continue;
      if (const int alpha = next()) icon.alpha.at(x, y) = static_cast<std::uint8_t>(alpha);
    }
    pad(width_);
  }

  std::span<const std::uint8_t> file_;
  const IconEntry entry_;
  const int width_, height_;
  std::uint64_t at_;
  std::vector<Color> palette_;
};

}  // namespace gp::test
