// The pixels of one icon by value: the result of decoders, previews and the browser, and the input of IconArrival.
// Where the Mask is black, the icon is opaque; where it is white, the icon is transparent and the image black. An icon
// without an alpha channel has an alpha matrix of 1 x 1.
#pragma once

#include "document/AlphaMatrix.h"
#include "platform/gdi/Surface.h"

namespace gp {

struct IconImage {
  Surface image = Surface();
  Surface mask = Surface();
  AlphaMatrix alpha;

  int width() const { return image.width(); }
  int height() const { return image.height(); }
  bool isEmpty() const { return width() == 0 || height() == 0; }
  // Returns true when there is one alpha value for each pixel.
  bool hasAlphaValues() const { return alpha.width() == width() && alpha.height() == height(); }
  // Returns the alpha value of a pixel, which must exist; opaque without alpha values.
  std::uint8_t alphaAt(int x, int y) const { return hasAlphaValues() ? alpha.at(x, y) : kOpaqueAlpha; }
};

// Makes a pixel, which must exist, transparent. If it is painted again, it is opaque.
inline void erasePixel(IconImage& icon, int x, int y) {
  icon.image.SetPixelV(x, y, kBlack);
  icon.mask.SetPixelV(x, y, kWhite);
  if (icon.hasAlphaValues()) icon.alpha.at(x, y) = kOpaqueAlpha;
}

// Returns an icon of size x size without an opaque pixel.
inline IconImage transparentIcon(int size) {
  return {Surface(size, size, kBlack), Surface(size, size, kWhite), AlphaMatrix()};
}

}  // namespace gp
