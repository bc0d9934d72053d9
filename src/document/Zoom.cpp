#include "document/Zoom.h"

#include <algorithm>

namespace gp {

namespace {

constexpr int kFineSteps = 16;  // up to this magnification steps are of one pixel

}  // namespace

int zoomed(int magnification, ZoomStep step) {
  if (step == ZoomStep::In) return std::min(magnification + (magnification < kFineSteps ? 1 : 2), kMostZoom);
  if (step == ZoomStep::Out) return std::max(magnification - (magnification <= kFineSteps ? 1 : 2), kLeastZoom);
  return magnification;
}

}  // namespace gp
