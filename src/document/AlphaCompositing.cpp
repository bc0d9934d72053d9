#include "document/AlphaCompositing.h"

#include "platform/text/Numbers.h"

namespace gp {
namespace {

constexpr double kFullAlpha = 255.0;
constexpr int kFullPercent = 100;

// Intended: this step and the conversion to percent both truncate; an alpha of 128 counts as 50 percent.
int blendChannel(int channel, int ground, int percent) {
  return divide((kFullPercent - percent) * ground + percent * channel, kFullPercent);
}

}  // namespace

int alphaPercent(int alpha) { return Fix(alpha / kFullAlpha * kFullPercent); }

Color blendOver(Color ground, Color color, int alpha) {
  const int percent = alphaPercent(alpha);
  return rgb(blendChannel(redOf(color), redOf(ground), percent), blendChannel(greenOf(color), greenOf(ground), percent),
             blendChannel(blueOf(color), blueOf(ground), percent));
}

void composeAlpha(const Surface& mask, const Surface& image, const AlphaMatrix& alpha, Surface& target, Color ground) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (mask.GetPixel(x, y) != kBlack) continue;
      target.SetPixelV(x, y, blendOver(ground, image.GetPixel(x, y), alpha.at(x, y)));
    }
  }
}

}  // namespace gp
