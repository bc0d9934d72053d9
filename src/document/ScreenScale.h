// Maps a magnified icon to a screen of another pixel density: every icon pixel gets the same whole number of device
// pixels, and a grid line stays one device pixel wide.
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
  // The picDisp position that a device position shows. Positions outside continue in the same measure.
  int sourceOf(int device) const;
  // Returns the first device position that shows a picDisp position or a later one.
  int deviceOf(int source) const;

 private:
  int cells_;
  int magnification_;
  int cellSize_;
};

}  // namespace gp
