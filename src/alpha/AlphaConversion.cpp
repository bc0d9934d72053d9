#include "alpha/AlphaConversion.h"

#include "colour/ColorCount.h"
#include "document/AlphaCompositing.h"

namespace gp {

IconImage convertRetainAlpha(const IconImage& icon) {
  IconImage result{Surface(icon.width(), icon.height(), kBlack), Surface(icon.width(), icon.height(), kWhite), {}};
  Surface look(icon.width(), icon.height(), kGround);
  composeAlpha(icon.mask, icon.image, icon.alpha, look);
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x) {
      if (icon.mask.GetPixel(x, y) != kBlack || alphaPercent(icon.alpha.at(x, y)) == 0) continue;
      result.image.SetPixelV(x, y, look.GetPixel(x, y));
      result.mask.SetPixelV(x, y, kBlack);
    }
  return result;
}

IconContainerRec recordWithoutAlpha(IconContainerRec record, const IconImage& converted, bool asPalette) {
  int colors = kTrueColor;
  if (asPalette) GetColorBitCount_Image(converted.image, colors);
  record.setDepth(depthOfColors(colors));
  record.setHeaderDepth(depthOfColors(colors));
  record.hasAlpha = false;
  return record;
}

IconImage withAlphaValues(const IconImage& icon) {
  if (icon.hasAlphaValues()) return icon;
  return {icon.image, icon.mask, AlphaMatrix(icon.width(), icon.height(), kOpaqueAlpha)};
}

IconContainerRec recordWithAlpha(IconContainerRec record) {
  record.setDepth(depthOfColors(kTrueColor, true));
  record.setHeaderDepth(depthOfColors(kTrueColor, true));
  record.hasAlpha = true;
  return record;
}

}  // namespace gp
