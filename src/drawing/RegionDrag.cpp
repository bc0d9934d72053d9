#include "drawing/RegionDrag.h"

#include "document/Display.h"
#include "document/EditState.h"
#include "document/Magnifier.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/text/Numbers.h"

namespace gp {

RegionDrag::RegionDrag(const Context& context) : context_(context), state_(context.state) {}

void RegionDrag::build(const IconImage& beneath, const IconImage& content) {
  picDragSnap_ = magnified(beneath.image, beneath.mask, state_.gMagnification, gridOf(state_.gGridColor));
  picImageDrag_ = enlarged(content.image, state_.gMagnification);
  picMaskDrag_ = enlarged(content.mask, state_.gMagnification);
}

void RegionDrag::forget() {
  for (Surface* surface : {&picDragSnap_, &picImageDrag_, &picMaskDrag_}) MakePicSize(*surface, 0, 0);
}

void RegionDrag::moveContent(const DrawRect& former, const DrawRect& box) {
  Surface& disp = state_.picDisp;
  // The box was drawn on its right and bottom sides too.
  const int oldLeft = roundToInteger(former.x1);
  const int oldTop = roundToInteger(former.y1);
  const int oldWidth = roundToInteger(former.x2) - oldLeft + 1;
  const int oldHeight = roundToInteger(former.y2) - oldTop + 1;
  BitBlt(disp, oldLeft, oldTop, oldWidth, oldHeight, picDragSnap_, oldLeft, oldTop, RasterOp::SRCCOPY);

  const int left = roundToInteger(box.x1);
  const int top = roundToInteger(box.y1);
  const int width = picImageDrag_.width();
  const int height = picImageDrag_.height();
  BitBlt(disp, left, top, width, height, picMaskDrag_, 0, 0, RasterOp::SRCAND);
  BitBlt(disp, left, top, width, height, picImageDrag_, 0, 0, RasterOp::SRCINVERT);
  // The grid does not move with the content.
  if (state_.gGridColor != kNoGrid) BitBlt(disp, left, top, width, height, state_.PicGrid, left, top, RasterOp::SRCAND);
  context_.display.repaintEditingArea(oldLeft, oldTop, oldWidth, oldHeight);
  context_.display.repaintEditingArea(left, top, width + 1, height + 1);
}

}  // namespace gp
