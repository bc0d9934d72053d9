#include "drawing/FloatingContent.h"

#include "document/AlphaGreys.h"
#include "document/Tool.h"
#include "drawing/Regions.h"
#include "drawing/Tools.h"
#include "platform/gdi/RasterOps.h"

#include <utility>

namespace gp {

IconImage opaqueContentOf(const Surface& picture) {
  IconImage content{picture, Surface(picture.width(), picture.height()), {}};
  content.mask.fill(kBlack);
  return content;
}

// A copied icon shows the ground in its transparent pixels: these become transparent again.
IconImage contentOf(const Surface& picture, Color transparent) {
  IconImage content = opaqueContentOf(picture);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (picture.GetPixel(x, y) == transparent) erasePixel(content, x, y);
  return content;
}

IconImage contentWithAlpha(const Surface& picture, const Surface& alpha, bool opaque) {
  IconImage content = opaqueContentOf(picture);
  content.alpha = alphaOf(alpha);
  if (opaque) return content;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (content.alpha.at(x, y) == 0) erasePixel(content, x, y);
  return content;
}

void mergeContent(const IconImage& content, int x, int y, Surface& image, Surface& mask) {
  const int width = content.width(), height = content.height();
  BitBlt(mask, x, y, width, height, content.mask, 0, 0, RasterOp::SRCAND);
  BitBlt(image, x, y, width, height, content.mask, 0, 0, RasterOp::SRCAND);
  BitBlt(image, x, y, width, height, content.image, 0, 0, RasterOp::SRCINVERT);
}

void mergeAlpha(const IconImage& content, int x, int y, bool opaque, Surface& alpha) {
  for (int j = 0; j < content.height(); ++j)
    for (int i = 0; i < content.width(); ++i)
      if (opaque || content.mask.GetPixel(i, j) == kBlack) alpha.SetPixelV(x + i, y + j, greyOf(content.alphaAt(i, j)));
}

void placeContent(Tools& tools, Regions& regions, IconImage content, bool opaque) {
  regions.clearRegion();
  tools.clearAllTools();
  tools.selectTool(kRegion);
  regions.place(std::move(content), opaque);
}

}  // namespace gp
