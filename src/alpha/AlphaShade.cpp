#include "alpha/AlphaShade.h"

#include "document/AlphaCompositing.h"
#include "platform/text/Numbers.h"

namespace gp {

int shadeOf(int alpha) {
  constexpr double kWhiteLevel = 255, kFullPercent = 100;
  return roundToInteger((kFullPercent - alphaPercent(alpha)) * kWhiteLevel / kFullPercent);
}

void shadeAlpha(const Surface& mask, const AlphaMatrix& alpha, Surface& target) {
  for (int y = 0; y < mask.height(); ++y)
    for (int x = 0; x < mask.width(); ++x) {
      if (mask.GetPixel(x, y) != kBlack) continue;
      const int level = shadeOf(alpha.at(x, y));
      target.SetPixelV(x, y, rgb(level, level, level));
    }
}

}  // namespace gp
