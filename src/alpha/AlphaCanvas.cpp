#include "alpha/AlphaCanvas.h"

#include "alpha/AlphaConversion.h"
#include "alpha/AlphaShade.h"
#include "document/AlphaCompositing.h"
#include "document/AlphaGreys.h"
#include "document/Magnifier.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/RasterOps.h"

#include <algorithm>
#include <utility>

namespace gp {
namespace {

PixelBox withPixel(const PixelBox& box, int x, int y) {
  if (box.isEmpty()) return {x, y, x + 1, y + 1};
  return {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1), std::max(box.bottom, y + 1)};
}

}  // namespace

AlphaCanvas::AlphaCanvas(const IconImage& icon, const Grid& grid)
    : icon_(withAlphaValues(icon)),
      magnification_(kSide / icon.width()),
      PicGrid_(gridAlone(icon.width(), icon.height(), magnification_, grid)),
      picDisp_(kSide, kSide),
      picIconAlpha_(icon.width(), icon.height(), kGround),
      picMaskAlpha_(icon.width(), icon.height(), kWhite) {
  for (std::size_t i = 0; i < kGrounds.size(); ++i)
    onGrounds_.at(i) = Surface(icon.width(), icon.height(), kGrounds.at(i));
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x) isPainted(x, y) ? showPixel(x, y) : magnifyPixel(x, y);
}

bool AlphaCanvas::setAlpha(int x, int y, std::uint8_t alpha) {
  if (!isPainted(x, y)) return false;
  if (std::exchange(icon_.alpha.at(x, y), alpha) != alpha) showPixel(x, y);
  return true;
}

void AlphaCanvas::replaceAlpha(const AlphaMatrix& alpha) {
  for (int y = 0; y < alpha.height(); ++y)
    for (int x = 0; x < alpha.width(); ++x) setAlpha(x, y, alpha.at(x, y));
}

PixelBox AlphaCanvas::takeChanged() { return std::exchange(changed_, {}); }

void AlphaCanvas::showPixel(int x, int y) {
  const Color color = icon_.image.GetPixel(x, y);
  const int alpha = icon_.alpha.at(x, y);
  picMaskAlpha_.SetPixelV(x, y, greyOf(shadeOf(alpha)));
  picIconAlpha_.SetPixelV(x, y, blendOver(kGround, color, alpha));
  for (std::size_t i = 0; i < kGrounds.size(); ++i)
    onGrounds_.at(i).SetPixelV(x, y, blendOver(kGrounds.at(i), color, alpha));
  magnifyPixel(x, y);
  changed_ = withPixel(changed_, x, y);
}

void AlphaCanvas::magnifyPixel(int x, int y) {
  const int m = magnification_, left = x * m, top = y * m;
  FillBox(picDisp_, left, top, left + m - 1, top + m - 1, picIconAlpha_.GetPixel(x, y));
  BitBlt(picDisp_, left, top, m, m, PicGrid_, left, top, RasterOp::SRCAND);
}

}  // namespace gp
