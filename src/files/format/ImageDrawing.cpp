#include "files/format/ImageDrawing.h"

#include "platform/gdi/Stretch.h"

namespace gp {
namespace {

constexpr std::uint32_t kMost = 255;

std::uint32_t blendedChannel(std::uint32_t channel, std::uint32_t ground, std::uint32_t alpha) {
  return ((channel & 0xFF) * alpha + (ground & 0xFF) * (kMost - alpha) + kMost / 2) / kMost;
}

// Rounded.
std::uint32_t blended(std::uint32_t color, std::uint32_t ground, std::uint32_t alpha) {
  return blendedChannel(color, ground, alpha) | blendedChannel(color >> 8, ground >> 8, alpha) << 8 |
         blendedChannel(color >> 16, ground >> 16, alpha) << 16;
}

// The alpha values replace the Mask.
Surface blendedOn(const IconImage& icon, std::uint32_t ground) {
  Surface picture = icon.image;
  for (int y = 0; y < icon.height(); ++y) {
    std::uint32_t* const row = picture.rowForWriting(y, 0, icon.width());
    for (int x = 0; x < icon.width(); ++x) row[x] = blended(row[x], ground, icon.alpha.at(x, y));
  }
  return picture;
}

Surface combinedWith(const IconImage& icon, Color ground) {
  Surface picture(icon.width(), icon.height(), ground);
  BitBlt(picture, 0, 0, icon.width(), icon.height(), icon.mask, 0, 0, RasterOp::SRCAND);
  BitBlt(picture, 0, 0, icon.width(), icon.height(), icon.image, 0, 0, RasterOp::SRCINVERT);
  return picture;
}

}  // namespace

Surface drawnOn(const IconImage& icon, Color ground) {
  return icon.hasAlphaValues() ? blendedOn(icon, storedForm(ground)) : combinedWith(icon, ground);
}

Surface scaledTo(const Surface& picture, int side) {
  if (picture.width() == side && picture.height() == side) return picture;
  Surface target(side, side);
  target.stretchMode = StretchMode::KeepOrDrop;
  StretchBlt(target, 0, 0, side, side, picture, 0, 0, picture.width(), picture.height(), RasterOp::SRCCOPY);
  return target;
}

}  // namespace gp
