#include "files/ui/FileIconImage.h"

#include "document/ui/SurfacePainting.h"
#include "files/opening/FileIcon.h"

namespace gp {
namespace {

int alphaAt(const IconImage& icon, int x, int y) {
  if (icon.mask.GetPixel(x, y) != kBlack) return 0;
  return icon.alphaAt(x, y);
}

}  // namespace

QImage imageOfFile(const std::string& path, int side) {
  const IconImage icon = iconOfFile(path, side);
  QImage image(icon.width(), icon.height(), QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const QRgb color = toRgb(icon.image.GetPixel(x, y));
      image.setPixel(x, y, qRgba(qRed(color), qGreen(color), qBlue(color), alphaAt(icon, x, y)));
    }
  return image;
}

}  // namespace gp
