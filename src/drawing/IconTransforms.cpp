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

template <class Transform>
AlphaMatrix transformedAlpha(const IconImage& icon, const Transform& transform) {
  return icon.hasAlphaValues() ? alphaOf(transform(greysOf(icon.alpha))) : AlphaMatrix();
}

IconImage transformed(const IconImage& icon, Surface (*transform)(const Surface& source)) {
  return {transform(icon.image), transform(icon.mask), transformedAlpha(icon, transform)};
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
  const auto rotatedGreys = [angleDegrees](const Surface& greys) { return rotated(greys, angleDegrees, kOpaqueGrey); };
  return {rotated(icon.image, angleDegrees, kBlack), rotated(icon.mask, angleDegrees, kWhite),
          transformedAlpha(icon, rotatedGreys)};
}

}  // namespace gp
