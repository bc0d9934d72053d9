// The pictures of the alpha screen: the alpha values of an icon as shades, and how the icon looks with them, magnified
// and at its own size. They follow each changed value at the cost of one pixel.
#pragma once

#include "document/Grid.h"
#include "document/IconImage.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace gp {

// A rectangle of pixels of the icon, right and bottom behind the last ones.
struct PixelBox {
  int left = 0, top = 0, right = 0, bottom = 0;
  bool isEmpty() const { return left >= right || top >= bottom; }
  bool operator==(const PixelBox&) const = default;
};

class AlphaCanvas {
 public:
  static constexpr int kSide = 384;  // width and height of picDisp, a multiple of every icon size
  // The grounds on which the icon is shown at its own size.
  static constexpr std::array<Color, 3> kGrounds{kWhite, kGround, 0x404040};

  // The icon must have one of the icon sizes. Without alpha values all its pixels are opaque.
  AlphaCanvas(const IconImage& icon, const Grid& grid);

  // The icon with its present alpha values.
  const IconImage& icon() const { return icon_; }
  // Returns true for a pixel inside the icon that its Mask does not make transparent.
  bool isPainted(int x, int y) const { return icon_.mask.GetPixel(x, y) == kBlack; }

  // The icon composed with its alpha over kGround, magnified, with the grid, and the pixels of picDisp per icon pixel.
  const Surface& picDisp() const { return picDisp_; }
  const int& magnification() const { return magnification_; }
  // The same at the icon's size and without the grid.
  const Surface& picIconAlpha() const { return picIconAlpha_; }
  // The shades of the alpha values; transparent pixels are white.
  const Surface& picMaskAlpha() const { return picMaskAlpha_; }
  // The icon blended over one of kGrounds.
  const Surface& onGround(std::size_t ground) const { return onGrounds_.at(ground); }

  // Sets the alpha value of a painted pixel. Returns false, and changes nothing, for any other position.
  bool setAlpha(int x, int y, std::uint8_t alpha);
  // Sets the values of all painted pixels. The matrix must have the size of the icon.
  void replaceAlpha(const AlphaMatrix& alpha);

  // Returns the smallest rectangle around all pixels that have changed since the last call.
  PixelBox takeChanged();

 private:
  void showPixel(int x, int y);
  void magnifyPixel(int x, int y);

  IconImage icon_;
  int magnification_;
  Surface PicGrid_;
  Surface picDisp_;
  Surface picIconAlpha_;
  Surface picMaskAlpha_;
  std::array<Surface, kGrounds.size()> onGrounds_;
  PixelBox changed_;
};

}  // namespace gp
