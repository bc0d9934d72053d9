// The icon in shades of grey.
#include "effects/EffectTable.h"
#include "effects/PaintedPixels.h"
#include "platform/text/Numbers.h"

namespace gp {
namespace {

// The part of each channel in the brightness.
constexpr double kRedPart = 0.3, kGreenPart = 0.59, kBluePart = 1.0 - kRedPart - kGreenPart;

Color greyOf(Color color) {
  const int grey = roundToByte(kRedPart * redOf(color) + kGreenPart * greenOf(color) + kBluePart * blueOf(color));
  return rgb(grey, grey, grey);
}

IconImage grayscale(const IconImage& icon, const EffectValues& /*values*/) { return mapPainted(icon, greyOf); }

}  // namespace

extern const EffectRow kGrayscale{.name = "grayscale",
                                  .title = "Grayscale",
                                  .help = "shades of grey",
                                  .menu = {17, "&Grayscale ....", "", ""},
                                  .apply = grayscale};

}  // namespace gp
