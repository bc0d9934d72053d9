#include "animation/format/FrameDrawing.h"

#include "files/format/IcoLayout.h"
#include "files/format/ImageDrawing.h"
#include "platform/files/ByteReader.h"

namespace gp {
namespace {

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
  const Surface image = drawnOn(icon, kWhite);
  DrawnFrame frame;
  frame.picture = {scaledTo(image, kFrameSide), scaledTo(icon.mask, kFrameSide)};
  frame.image = facts;
  frame.hotspotX = facts.hotspotX * kFrameSide / facts.width;
  frame.hotspotY = facts.hotspotY * kFrameSide / facts.height;
  frame.hasAlpha = losesAlpha(icon, image);
  return frame;
}

bool isOneOfSize(std::span<const std::uint8_t> file, const FrameImageFacts& image) {
  return ByteReader(file).u16At(ico::kDirCount) == 1 && image.width == kFrameSide && image.height == kFrameSide;
}

}  // namespace

std::optional<DrawnFrame> drawFrame(std::span<const std::uint8_t> file) {
  for (const FrameImageFacts& image : frameImagesToTry(file, kFrameSide)) {
    const auto icon = decodeFrameImage(file, image);
    if (!icon) continue;
    DrawnFrame frame = drawn(*icon, image);
    frame.isOneOfSize = isOneOfSize(file, image);
    return frame;
  }
  return std::nullopt;
}

}  // namespace gp
