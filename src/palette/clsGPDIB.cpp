#include "palette/clsGPDIB.h"

#include <algorithm>
#include <limits>

namespace gp {
namespace {

// A bitmap header stores the size of its pixels in bytes as a signed 32-bit number.
constexpr std::int64_t kMostPixels = std::numeric_limits<std::int32_t>::max() / std::int64_t{sizeof(DibPixel)};

}  // namespace

bool clsGPDIB::CreateBlankDIB(int width, int height) {
  ClearUp();
  if (width < 1 || height < 1 || std::int64_t{width} * height > kMostPixels) return false;
  bits_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  width_ = width;
  height_ = height;
  return true;
}

void clsGPDIB::CreateDIBFromPic(const Surface& picture) {
  if (CreateBlankDIB(picture.width(), picture.height())) copyFrom(picture);
}

void clsGPDIB::copyFrom(const Surface& picture) {
  for (int y = 0; y < height_; ++y)
    std::ranges::transform(picture.row(height_ - 1 - y), row(y).begin(),
                           [](std::uint32_t pixel) { return dibPixel(static_cast<Color>(pixel & kColorBits)); });
}

void clsGPDIB::PaintToDIB(const Surface& source, int sourceX, int sourceY, int width, int height, RasterOp operation) {
  if (isEmpty()) return;
  Surface painted = toSurface();
  BitBlt(painted, 0, 0, width < 0 ? width_ : width, height < 0 ? height_ : height, source, sourceX, sourceY, operation);
  copyFrom(painted);
}

void clsGPDIB::PaintFromDIB(Surface& target, int targetX, int targetY, int width, int height, int sourceX, int sourceY,
                            RasterOp operation) const {
  BitBlt(target, targetX, targetY, width < 0 ? width_ : width, height < 0 ? height_ : height, toSurface(), sourceX,
         sourceY, operation);
}

void clsGPDIB::ClearUp() {
  bits_.clear();
  width_ = height_ = 0;
}

std::span<DibPixel> clsGPDIB::row(int y) {
  return std::span(bits_).subspan(start(y), static_cast<std::size_t>(width_));
}

std::span<const DibPixel> clsGPDIB::row(int y) const {
  return std::span(bits_).subspan(start(y), static_cast<std::size_t>(width_));
}

Surface clsGPDIB::toSurface() const {
  Surface surface(width_, height_);
  for (int y = 0; y < height_; ++y)
    std::ranges::transform(row(height_ - 1 - y), surface.rowForWriting(y, 0, width_),
                           [](DibPixel pixel) { return storedForm(colorOf(pixel)); });
  return surface;
}

}  // namespace gp
