#include "effects/DisabledImage.h"

#include "effects/PaintedPixels.h"

namespace gp {
namespace {

constexpr int kPaleLevel = 153;

bool isDark(std::uint32_t pixel) {
  const Color color = static_cast<Color>(pixel & kColorBits);
  return redOf(color) < kPaleLevel && greenOf(color) < kPaleLevel && blueOf(color) < kPaleLevel;
}

// The dark painted pixels, as a Mask.
Surface darkShape(const Surface& image, const Surface& mask) {
  Surface shape(image.width(), image.height(), kWhite);
  for (int y = 0; y < image.height(); ++y) {
    const std::uint32_t* pixels = image.row(y).data();
    const std::uint32_t* painted = mask.row(y).data();
    std::uint32_t* row = shape.rowForWriting(y, 0, image.width());
    for (int x = 0; x < image.width(); ++x)
      if (isPainted(painted[x]) && isDark(pixels[x])) row[x] = storedForm(kBlack);
  }
  return shape;
}

}  // namespace

IconImage disabledImage(const Surface& image, const Surface& mask) {
  const Surface shape = darkShape(image, mask);
  IconImage icon = emptyIcon(image.width(), image.height());
  stamp(icon, shape, 1, kWhite);
  stamp(icon, shape, 0, kEdgeGrey);
  return icon;
}

}  // namespace gp
