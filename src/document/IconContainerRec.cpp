#include "document/IconContainerRec.h"

namespace gp {

void IconContainerRec::setDepth(ColorDepth depth) {
  dirColors = depth.colors;
  bitCount = static_cast<std::int16_t>(depth.bits);
}

void IconContainerRec::setHeaderDepth(ColorDepth depth) {
  bihColors = depth.colors;
  bihBitCount = static_cast<std::int16_t>(depth.bits);
}

void IconContainerRec::clearOrigin() {
  fromMultiIconFile = false;
  multiIconIndex = 0;
  isCursor = false;
  hotspotX = 0;
  hotspotY = 0;
  neverSaved = false;
  modified = false;
  origin = {};
}

}  // namespace gp
