#include "effects/PaintedPixels.h"

#include <algorithm>

namespace gp {

IconImage emptyIcon(int width, int height) {
  return {Surface(width, height, kBlack), Surface(width, height, kWhite), {}};
}

IconImage mapPainted(const IconImage& icon, const std::function<Color(Color)>& map) {
  IconImage result{icon.image, icon.mask, {}};
  for (int y = 0; y < icon.height(); ++y) {
    const std::uint32_t* shape = icon.mask.row(y).data();
    std::uint32_t* pixels = result.image.rowForWriting(y, 0, icon.width());
    for (int x = 0; x < icon.width(); ++x)
      if (isPainted(shape[x])) pixels[x] = storedForm(map(static_cast<Color>(pixels[x] & kColorBits)));
  }
  return result;
}

void stamp(IconImage& icon, const Surface& mask, int step, Color color) {
  const int first = std::max(0, -step);
  const int right = mask.width() - std::max(0, step);
  const int bottom = mask.height() - std::max(0, step);
  for (int y = first; y < bottom; ++y) {
    const std::uint32_t* shape = mask.row(y).data();
    std::uint32_t* image = icon.image.rowForWriting(y + step, 0, mask.width());
    std::uint32_t* painted = icon.mask.rowForWriting(y + step, 0, mask.width());
    for (int x = first; x < right; ++x) {
      if (!isPainted(shape[x])) continue;
      image[x + step] = storedForm(color);
      painted[x + step] = storedForm(kBlack);
    }
  }
}

void copyPainted(const Surface& image, const Surface& mask, Surface& target) {
  for (int y = 0; y < mask.height(); ++y) {
    const std::uint32_t* from = image.row(y).data();
    const std::uint32_t* shape = mask.row(y).data();
    std::uint32_t* to = target.rowForWriting(y, 0, mask.width());
    for (int x = 0; x < mask.width(); ++x)
      if (isPainted(shape[x])) to[x] = from[x] & kColorBits;
  }
}

}  // namespace gp
