#include "effects/ColorReduction.h"

#include "document/Compositing.h"
#include "effects/PaintedPixels.h"
#include "effects/StandardSnap.h"
#include "palette/DitheredReduction.h"
#include "palette/HalftonePalette.h"
#include "palette/MonoDiffusion.h"
#include "palette/NearestMatch.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr double kChannels = 3.0;

template <auto kDither>
void dithered(clsGPDIB& dib) {
  clsGPPal palette;
  clsGPPalDither dither;
  kDither(dib, palette, dither);
}

void matchToHalftone(clsGPDIB& dib) { matchToPalette(dib, kHalftonePalette); }
void matchToStandard(clsGPDIB& dib) { matchToPalette(dib, kStandardPalette); }

void snapAll(clsGPDIB& dib) {
  for (DibPixel& pixel : dib.DIBBitsPtr()) pixel = dibPixel(snapToStandard(colorOf(pixel)));
}

struct Reduction {
  ReductionMethod method;
  void (*reduce)(clsGPDIB& dib);
  bool keepsInverting = false;  // inverting pixels stay inverting
};
// The methods that work on the image without the Mask.
constexpr std::array kReductions{Reduction{ReductionMethod::Optimal, dithered<ditherToOptimal>},
                                 Reduction{ReductionMethod::System, matchToHalftone},
                                 Reduction{ReductionMethod::Optimized, dithered<ditherToStandard>},
                                 Reduction{ReductionMethod::Nearest, snapAll, true},
                                 Reduction{ReductionMethod::StandardVga, matchToStandard},
                                 Reduction{ReductionMethod::Weighted, ditherWeighted},
                                 Reduction{ReductionMethod::Ordered, ditherOrdered}};

Surface reduced(const Surface& image, const Reduction& reduction) {
  clsGPDIB dib;
  dib.CreateDIBFromPic(image);
  reduction.reduce(dib);
  Surface picture(image.width(), image.height());
  dib.PaintFromDIB(picture, 0, 0, -1, -1, 0, 0, RasterOp::SRCCOPY);
  return picture;
}

bool isBelow(Color color, int threshold) {
  return (redOf(color) + greenOf(color) + blueOf(color)) / kChannels < threshold;
}

// Works on the icon as it looks on the ground colour, which decides about inverting pixels.
IconImage cutOff(const Surface& image, const Surface& mask, int threshold) {
  const Surface look = composedIcon(image, mask);
  IconImage icon = emptyIcon(image.width(), image.height());
  for (int y = 0; y < look.height(); ++y) {
    for (int x = 0; x < look.width(); ++x) {
      const Color color = look.GetPixel(x, y);
      const bool isGround = color == kGround && mask.GetPixel(x, y) == kWhite;
      if (!isGround && isBelow(color, threshold)) icon.mask.SetPixelV(x, y, kBlack);
    }
  }
  return icon;
}

}  // namespace

IconImage reduceColors(const Surface& image, const Surface& mask, const ReductionSettings& settings) {
  const auto reduction = std::ranges::find(kReductions, settings.method, &Reduction::method);
  if (reduction == kReductions.end()) return cutOff(image, mask, settings.threshold);
  const Surface picture = reduced(image, *reduction);
  if (reduction->keepsInverting) return {picture, mask, {}};
  IconImage icon{Surface(image.width(), image.height(), kBlack), mask, {}};
  copyPainted(picture, mask, icon.image);
  return icon;
}

}  // namespace gp
