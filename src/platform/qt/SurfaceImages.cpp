#include "platform/qt/SurfaceImages.h"

#include <QPainter>

#include <algorithm>

namespace gp {
namespace {

Color colorOf(QRgb pixel) { return rgb(qRed(pixel), qGreen(pixel), qBlue(pixel)); }

// The image must have 32 bits for each pixel.
template <class Convert>
Surface converted(const QImage& image, const Convert& convert) {
  Surface surface(image.width(), image.height());
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    std::transform(line, line + image.width(), surface.rowForWriting(y, 0, image.width()),
                   [&convert](QRgb pixel) { return storedForm(convert(pixel)); });
  }
  return surface;
}

// `pixelAt` returns the pixel of a position.
template <class PixelAt>
QImage drawn(const Surface& surface, QImage::Format format, const PixelAt& pixelAt) {
  QImage image(surface.width(), surface.height(), format);
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) line[x] = pixelAt(x, y);
  }
  return image;
}

QRgb pixelOf(Color color, int alpha) { return qRgba(redOf(color), greenOf(color), blueOf(color), alpha); }

}  // namespace

Surface surfaceOf(const QImage& image, Color ground) {
  QImage flat(image.size(), QImage::Format_RGB32);
  flat.fill(pixelOf(ground, 255));
  QPainter(&flat).drawImage(0, 0, image);
  return converted(flat, colorOf);
}

Surface colorsOf(const QImage& image, Color ground) {
  return converted(image.convertToFormat(QImage::Format_ARGB32),
                   [ground](QRgb pixel) { return qAlpha(pixel) == 0 ? ground : colorOf(pixel); });
}

Surface alphaGreysOf(const QImage& image) {
  return converted(image.convertToFormat(QImage::Format_ARGB32),
                   [](QRgb pixel) { return rgb(qAlpha(pixel), qAlpha(pixel), qAlpha(pixel)); });
}

QImage opaqueImageOf(const Surface& surface) {
  return drawn(surface, QImage::Format_RGB32, [&](int x, int y) { return pixelOf(surface.GetPixel(x, y), 255); });
}

QImage imageWithAlpha(const Surface& surface, const Surface& alpha) {
  return drawn(surface, QImage::Format_ARGB32,
               [&](int x, int y) { return pixelOf(surface.GetPixel(x, y), redOf(alpha.GetPixel(x, y))); });
}

}  // namespace gp
