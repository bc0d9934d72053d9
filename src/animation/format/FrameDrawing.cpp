#include "animation/format/FrameDrawing.h"

#include "files/format/IcoLayout.h"
#include "platform/files/ByteReader.h"
#include "platform/gdi/Stretch.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace gp {
namespace {

constexpr int kMostImagesTried = 16;  // of a file with many damaged ones
constexpr std::uint32_t kMost = 255;

// The sum of what width and height differ by.
int distance(const FrameImageFacts& image) {
  return std::abs(image.width - kFrameSide) + std::abs(image.height - kFrameSide);
}

bool isPreferred(const FrameImageFacts& a, const FrameImageFacts& b) {
  return std::tuple(distance(a), -a.bits) < std::tuple(distance(b), -b.bits);
}

std::uint32_t blendedChannel(std::uint32_t channel, std::uint32_t alpha) {
  return (channel * alpha + kMost * (kMost - alpha) + kMost / 2) / kMost;
}

// On white, rounded.
std::uint32_t blended(std::uint32_t color, std::uint32_t alpha) {
  return blendedChannel(color & 0xFF, alpha) | blendedChannel(color >> 8 & 0xFF, alpha) << 8 |
         blendedChannel(color >> 16 & 0xFF, alpha) << 16;
}

// On white; the alpha values replace the Mask.
Surface blendedImage(const IconImage& icon) {
  Surface image = icon.image;
  for (int y = 0; y < icon.height(); ++y) {
    std::uint32_t* const row = image.rowForWriting(y, 0, icon.width());
    for (int x = 0; x < icon.width(); ++x) row[x] = blended(row[x], icon.alpha.at(x, y));
  }
  return image;
}

// White, combined with the Mask by AND and with the colours by XOR.
Surface invertedImage(const IconImage& icon) {
  Surface image = icon.mask;
  BitBlt(image, 0, 0, icon.width(), icon.height(), icon.image, 0, 0, RasterOp::SRCINVERT);
  return image;
}

Surface scaled(const Surface& surface) {
  Surface target(kFrameSide, kFrameSide);
  target.stretchMode = StretchMode::KeepOrDrop;
  StretchBlt(target, 0, 0, kFrameSide, kFrameSide, surface, 0, 0, surface.width(), surface.height(), RasterOp::SRCCOPY);
  return target;
}

// Image and Mask show alone whether a pixel is opaque or transparent: only these are transparent.
bool isTransparent(std::uint32_t color, std::uint32_t mask) {
  return color == storedForm(kWhite) && mask == storedForm(kWhite);
}

// True when image and Mask lose an alpha value.
bool losesAlpha(const IconImage& icon, const Surface& image) {
  if (!icon.hasAlphaValues()) return false;
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x) {
      const bool transparent = isTransparent(image.row(y)[static_cast<std::size_t>(x)],
                                             icon.mask.row(y)[static_cast<std::size_t>(x)] & kColorBits);
      if (icon.alpha.at(x, y) != (transparent ? 0 : kOpaqueAlpha)) return true;
    }
  return false;
}

DrawnFrame drawn(const IconImage& icon, const FrameImageFacts& facts) {
  const Surface image = icon.hasAlphaValues() ? blendedImage(icon) : invertedImage(icon);
  DrawnFrame frame;
  frame.picture = {scaled(image), scaled(icon.mask)};
  frame.image = facts;
  frame.hotspotX = facts.hotspotX * kFrameSide / facts.width;
  frame.hotspotY = facts.hotspotY * kFrameSide / facts.height;
  frame.hasAlpha = losesAlpha(icon, image);
  return frame;
}

bool isOneOfSize(std::span<const std::uint8_t> file, const FrameImageFacts& image) {
  return ByteReader(file).u16At(ico::kDirCount) == 1 && image.width == kFrameSide && image.height == kFrameSide;
}

// The best images first. Entries that share their bytes count once.
std::vector<FrameImageFacts> imagesToTry(std::span<const std::uint8_t> file) {
  std::vector<FrameImageFacts> images = frameImages(file);
  std::ranges::stable_sort(images, isPreferred);
  std::vector<FrameImageFacts> tried;
  for (const FrameImageFacts& image : images) {
    if (std::ranges::find(tried, image.offset, &FrameImageFacts::offset) != tried.end()) continue;
    tried.push_back(image);
    if (tried.size() == kMostImagesTried) break;
  }
  return tried;
}

}  // namespace

std::optional<DrawnFrame> drawFrame(std::span<const std::uint8_t> file) {
  for (const FrameImageFacts& image : imagesToTry(file)) {
    const auto icon = decodeFrameImage(file, image);
    if (!icon) continue;
    DrawnFrame frame = drawn(*icon, image);
    frame.isOneOfSize = isOneOfSize(file, image);
    return frame;
  }
  return std::nullopt;
}

}  // namespace gp
