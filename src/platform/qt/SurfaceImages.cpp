#include "platform/qt/SurfaceImages.h"

#include <QPainter>

#include <algorithm>

namespace gp {

Surface surfaceOf(const QImage& image, Color ground) {
  QImage flat(image.size(), QImage::Format_RGB32);
  flat.fill(qRgb(redOf(ground), greenOf(ground), blueOf(ground)));
  QPainter(&flat).drawImage(0, 0, image);
  Surface surface(flat.width(), flat.height());
  for (int y = 0; y < flat.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(flat.constScanLine(y));
    std::transform(line, line + flat.width(), surface.rowForWriting(y, 0, flat.width()),
                   [](QRgb pixel) { return storedForm(rgb(qRed(pixel), qGreen(pixel), qBlue(pixel))); });
  }
  return surface;
}

QImage opaqueImageOf(const Surface& surface) {
  QImage image(surface.width(), surface.height(), QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const Color color = surface.GetPixel(x, y);
      line[x] = qRgb(redOf(color), greenOf(color), blueOf(color));
    }
  }
  return image;
}

}  // namespace gp
