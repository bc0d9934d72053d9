#include "document/ScreenScale.h"

#include <algorithm>
#include <cmath>

namespace gp {

namespace {

int floorDivide(int dividend, int divisor) {
  return dividend >= 0 ? dividend / divisor : -((divisor - 1 - dividend) / divisor);
}

}  // namespace

ScreenScale::ScreenScale(int cells, int magnification, double ratio)
    : cells_(cells),
      magnification_(magnification),
      cellSize_(std::max(1, static_cast<int>(std::floor(magnification * ratio)))) {}

int ScreenScale::sourceOf(int device) const {
  const int cell = floorDivide(device, cellSize_);
  const int within = device - cell * cellSize_;
  if (within == 0) return cell * magnification_;
  // The first pixel of a cell may be a grid line, which must be shown on one device pixel only.
  return cell * magnification_ + std::max(std::min(1, magnification_ - 1), within * magnification_ / cellSize_);
}

int ScreenScale::deviceOf(int source) const {
  const int cell = floorDivide(source, magnification_);
  const int within = source - cell * magnification_;
  if (within == 0) return cell * cellSize_;
  if (within == 1) return cell * cellSize_ + 1;
  return cell * cellSize_ + (within * cellSize_ + magnification_ - 1) / magnification_;
}

}  // namespace gp
