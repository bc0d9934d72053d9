#include "drawing/IconTransforms.h"

#include "document/AlphaGreys.h"
#include "drawing/RotateSurface.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/Stretch.h"
#include "platform/text/Numbers.h"

namespace gp {
namespace {

constexpr double kFullCircle = 360;

Surface mirroredHorizontally(const Surface& source) {
  const int width = source.width(), height = source.height();
  Surface target(width, height);
  StretchBlt(target, width - 1, 0, -width, height, source, 0, 0, width, height, RasterOp::SRCCOPY);
  return target;
}

Surface mirroredVertically(const Surface& source) {
  const int width = source.width(), height = source.height();
  Surface target(width, height);
  StretchBlt(target, 0, height - 1, width, -height, source, 0, 0, width, height, RasterOp::SRCCOPY);
  return target;
}

Surface leftTurn(const Surface& source) {
  Surface target(source.height(), source.width());
  for (int i = 0; i < source.width(); ++i)
    for (int j = 0; j < source.height(); ++j) target.SetPixelV(j, source.width() - 1 - i, source.GetPixel(i, j));
  return target;
}

Surface rightTurn(const Surface& source) {
  Surface target(source.height(), source.width());
  for (int i = 0; i < source.width(); ++i)
    for (int j = 0; j < source.height(); ++j) target.SetPixelV(source.height() - 1 - j, i, source.GetPixel(i, j));
  return target;
}

IconImage transformed(const IconImage& icon, Surface (*transform)(const Surface& source)) {
  return {transform(icon.image), transform(icon.mask),
          icon.hasAlphaValues() ? alphaOf(transform(greysOf(icon.alpha))) : AlphaMatrix()};
}

// The work Surface has the width of the diagonal, rounded to the nearest pixel, and the offset is truncated, so that
// the middle of the icon does not move.
Surface rotated(const Surface& picture, double angle, Color background) {
  const int side = diagonalOf(picture.width(), picture.height());
  Surface work(side, side, background);
  rotateSurface(picture, work, {.angleDegrees = angle, .skipBackground = true, .backgroundColor = background});
  Surface result(picture.width(), picture.height());
  BitBlt(result, 0, 0, picture.width(), picture.height(), work, divide(side - picture.width(), 2),
         divide(side - picture.height(), 2), RasterOp::SRCCOPY);
  return result;
}

// The background of the greys: no grey, so that every painted pixel is written, and its red reads as opaque.
constexpr Color kUnpainted = rgb(kOpaqueAlpha, 0, 0);

Surface paintedGreys(const IconImage& icon) {
  Surface greys = greysOf(icon.alpha);
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x)
      if (icon.mask.GetPixel(x, y) != kBlack) greys.SetPixelV(x, y, kUnpainted);
  return greys;
}

AlphaMatrix rotatedAlpha(const IconImage& icon, double angle) {
  return icon.hasAlphaValues() ? alphaOf(rotated(paintedGreys(icon), angle, kUnpainted)) : AlphaMatrix();
}

}  // namespace

IconImage flippedHorizontally(const IconImage& icon) { return transformed(icon, mirroredHorizontally); }
IconImage flippedVertically(const IconImage& icon) { return transformed(icon, mirroredVertically); }
IconImage turnedLeft(const IconImage& icon) { return transformed(icon, leftTurn); }
IconImage turnedRight(const IconImage& icon) { return transformed(icon, rightTurn); }

bool isWholeTurn(double angleDegrees) {
  return angleDegrees == 0 || angleDegrees == kFullCircle || angleDegrees == -kFullCircle;
}

IconImage rotatedIcon(const IconImage& icon, double angleDegrees) {
  if (isWholeTurn(angleDegrees)) return icon;
  return {rotated(icon.image, angleDegrees, kBlack), rotated(icon.mask, angleDegrees, kWhite),
          rotatedAlpha(icon, angleDegrees)};
}

}  // namespace gp
