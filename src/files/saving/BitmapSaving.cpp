#include "files/saving/BitmapSaving.h"

#include "colour/ColorCount.h"
#include "document/AlphaCompositing.h"
#include "document/Compositing.h"
#include "palette/DitheredReduction.h"
#include "palette/clsGPPalSave.h"
#include "platform/files/BitmapFile.h"
#include "platform/files/FileWriting.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

struct Reduction {
  ColorDepth depth;
  void (*reduce)(clsGPDIB& dib, clsGPPal& palette, clsGPPalDither& dither);
};

constexpr std::array<Reduction, 3> kReductions{
    {{kPaletteDepth, ditherToOptimal}, {kStandardDepth, ditherToStandard}, {kMonoDepth, ditherToMono}}};

}  // namespace

Surface composedForBitmap(const IconImage& icon, const IconContainerRec& record, Color ground) {
  Surface look = composedIcon(icon.image, icon.mask);
  if (record.isAlphaIcon() && icon.hasAlphaValues()) composeAlpha(icon.mask, icon.image, icon.alpha, look);
  for (int y = 0; y < look.height(); ++y)
    for (int x = 0; x < look.width(); ++x)
      if (look.GetPixel(x, y) == kGround && icon.mask.GetPixel(x, y) == kWhite) look.SetPixelV(x, y, ground);
  return look;
}

std::vector<std::uint8_t> composeByColors(const Surface& picture) {
  int colors = 0;
  GetColorBitCount_Image(picture, colors);
  const auto reduction = std::ranges::find(kReductions, depthOfColors(colors), &Reduction::depth);
  if (reduction == kReductions.end()) return composeBitmap(picture);
  clsGPDIB dib;
  clsGPPal palette;
  clsGPPalDither dither;
  dib.CreateDIBFromPic(picture);
  reduction->reduce(dib, palette, dither);
  return clsGPPalSave().compose(dib, palette, dither, reduction->depth.bits);
}

bool saveByColors(const Surface& picture, const std::string& path) {
  const std::vector<std::uint8_t> bytes = composeByColors(picture);
  return !bytes.empty() && replaceFile(path, bytes);
}

}  // namespace gp
