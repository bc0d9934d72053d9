// Maps picDisp to a screen with smaller pixels: each icon pixel covers the same integer number of device pixels, and a
// grid line remains one device pixel wide.
#pragma once

#include <vector>

namespace gp {

class ScreenScale {
 public:
  // `cells` icon pixels of `magnification` picDisp pixels each, on a screen with `ratio` >= 1 device pixels per pixel.
  ScreenScale(int cells, int magnification, double ratio);

  // Device pixels per icon pixel, and in total.
  int cellSize() const { return cellSize_; }
  int deviceSize() const { return cells_ * cellSize_; }
  // Returns the picDisp position shown at a device position; positions outside are extrapolated.
  int sourceOf(int device) const;
  // Returns the first device position that shows a picDisp position or a later one.
  int deviceOf(int source) const;

 private:
  int cells_;
  int magnification_;
  int cellSize_;
};

}  // namespace gp
