#include "document/IconContainerRec.h"

namespace gp {

void IconContainerRec::clearOrigin() {
  fromMultiIconFile = false;
  multiIconIndex = 0;
  isCursor = false;
  hotspotX = 0;
  hotspotY = 0;
  neverSaved = false;
  modified = false;
}

}  // namespace gp
