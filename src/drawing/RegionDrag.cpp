#include "drawing/RegionDrag.h"

#include "document/Display.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/Stretch.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/text/Numbers.h"

#include <utility>

namespace gp {

namespace {

void magnify(const Surface& source, Surface& target, int factor) {
  MakePicSize(target, source.width() * factor, source.height() * factor);
  StretchbltPic(source, target, false);
}

}  // namespace

RegionDrag::RegionDrag(const Context& context, EditingArea& editingArea)
    : context_(context), state_(context.state), editingArea_(editingArea) {}

void RegionDrag::build(IconImage& beneath, const IconImage& content) {
  showWithoutRegion(beneath);
  MakeSameSize(state_.picDisp, picDragSnap_);
  BitBlt(picDragSnap_, 0, 0, state_.picDisp.width(), state_.picDisp.height(), state_.picDisp, 0, 0, RasterOp::SRCCOPY);
  editingArea_.ComposeCurrentIcon();
  editingArea_.MagnifyIcon();
  magnify(content.image, picImageDrag_, state_.gMagnification);
  magnify(content.mask, picMaskDrag_, state_.gMagnification);
  ready_ = true;
}

// The Editing Area knows how to show an icon with its grid or pattern, so it is lent the icon without the region.
void RegionDrag::showWithoutRegion(IconImage& beneath) {
  const bool active = std::exchange(state_.mRegionActive, false);
  std::swap(state_.picImage, beneath.image);
  std::swap(state_.picMask, beneath.mask);
  editingArea_.ComposeCurrentIcon();
  editingArea_.MagnifyIcon();
  std::swap(state_.picImage, beneath.image);
  std::swap(state_.picMask, beneath.mask);
  state_.mRegionActive = active;
}

void RegionDrag::forget() {
  ready_ = false;
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
  // The grid stands still under the mouse, as it does when the whole Editing Area is built.
  if (state_.gGridColor != kNoGrid) BitBlt(disp, left, top, width, height, state_.PicGrid, left, top, RasterOp::SRCAND);
  context_.display.repaintEditingArea(oldLeft, oldTop, oldWidth, oldHeight);
  context_.display.repaintEditingArea(left, top, width + 1, height + 1);
}

}  // namespace gp
