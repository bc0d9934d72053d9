// The grey, etched look of a toolbar button that cannot be pressed: the dark painted pixels in grey with a white edge
// to the bottom right. Colours with a channel of 153 or more drop out; an icon made only of these colours becomes
// empty.
#include "effects/EffectTable.h"
#include "effects/PaintedPixels.h"

namespace gp {
namespace {

constexpr int kPaleLevel = 153;

bool isDark(std::uint32_t pixel) {
  const Color color = static_cast<Color>(pixel & kColorBits);
  return redOf(color) < kPaleLevel && greenOf(color) < kPaleLevel && blueOf(color) < kPaleLevel;
}

// Returns the dark painted pixels as a Mask.
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

IconImage disabledImage(const IconImage& icon, const EffectValues& /*values*/) {
  const Surface shape = darkShape(icon.image, icon.mask);
  IconImage result = emptyIcon(icon.width(), icon.height());
  stamp(result, shape, 1, kWhite);
  stamp(result, shape, 0, kEdgeGrey);
  return result;
}

}  // namespace

extern const EffectRow kDisabledImage{.name = "disabled",
                                      .title = "Image for disabled button",
                                      .help = "the look of a toolbar button that cannot be pressed",
                                      .menu = {21, "Image For &Disabled Buton ....", "", ""},
                                      .panel = {15, "picImageForDisabledBtn"},
                                      .apply = disabledImage};

}  // namespace gp
