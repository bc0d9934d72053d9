#include "document/Compositing.h"

#include "platform/gdi/RasterOps.h"

namespace gp {

void composeIcon(const Surface& image, const Surface& mask, Surface& target) {
  target.clearPicture();
  BitBlt(target, 0, 0, target.width(), target.height(), mask, 0, 0, RasterOp::SRCAND);
  BitBlt(target, 0, 0, target.width(), target.height(), image, 0, 0, RasterOp::SRCINVERT);
  target.makePersistent();
}

Surface composedIcon(const Surface& image, const Surface& mask) {
  Surface icon(image.width(), image.height(), kGround);
  composeIcon(image, mask, icon);
  return icon;
}

}  // namespace gp
