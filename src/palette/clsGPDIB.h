// A device-independent bitmap with 32 bits per pixel, the working buffer of every palette conversion: a picture is
// copied in, palette and dither process its pixels in place, and the result is copied out. It owns the pixels. Rows run
// from the bottom of the picture upwards and have no padding.
#pragma once

#include "platform/gdi/RasterOps.h"
#include "platform/gdi/Surface.h"

#include <cstdint>
#include <span>
#include <vector>

namespace gp {

// The bytes of a pixel and of a palette entry, in file order.
struct DibPixel {
  std::uint8_t blue = 0;
  std::uint8_t green = 0;
  std::uint8_t red = 0;
  std::uint8_t unused = 0;
  bool operator==(const DibPixel&) const = default;
};

constexpr DibPixel dibPixel(Color color) {
  return {static_cast<std::uint8_t>(blueOf(color)), static_cast<std::uint8_t>(greenOf(color)),
          static_cast<std::uint8_t>(redOf(color)), 0};
}
constexpr Color colorOf(DibPixel pixel) { return rgb(pixel.red, pixel.green, pixel.blue); }

class clsGPDIB {
 public:
  // Creates a black bitmap; the former content is lost. Returns false and stays empty for a side below 1 or above 2 GB.
  bool CreateBlankDIB(int width, int height);
  // Creates a bitmap with the picture's size and pixels; empty for a picture without pixels.
  void CreateDIBFromPic(const Surface& picture);
  // Copies a part of `source` to the top left corner. A negative width or height means that of the bitmap.
  void PaintToDIB(const Surface& source, int sourceX, int sourceY, int width, int height, RasterOp operation);
  // Copies a part of the bitmap to `target`; sizes as for PaintToDIB.
  void PaintFromDIB(Surface& target, int targetX, int targetY, int width, int height, int sourceX, int sourceY,
                    RasterOp operation) const;
  void ClearUp();

  bool isEmpty() const { return bits_.empty(); }
  int DIBWidth() const { return width_; }
  int DIBHeight() const { return height_; }
  // All pixels. The span becomes invalid when the size changes.
  std::span<DibPixel> DIBBitsPtr() { return bits_; }
  std::span<const DibPixel> DIBBitsPtr() const { return bits_; }
  // Row 0 is the bottom row; y must lie inside.
  std::span<DibPixel> row(int y);
  std::span<const DibPixel> row(int y) const;

 private:
  std::size_t start(int y) const { return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_); }
  Surface toSurface() const;
  void copyFrom(const Surface& picture);

  int width_ = 0;
  int height_ = 0;
  std::vector<DibPixel> bits_;
};

}  // namespace gp
