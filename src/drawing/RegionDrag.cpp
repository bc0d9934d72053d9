#include "drawing/RegionDrag.h"

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

RegionDrag::RegionDrag(EditState& state, Editor& editor, Display& display)
    : state_(state), editor_(editor), display_(display) {}

void RegionDrag::build() {
  showWithoutRegion();
  MakeSameSize(state_.picDisp, state_.picDragSnap);
  BitBlt(state_.picDragSnap, 0, 0, state_.picDisp.width(), state_.picDisp.height(), state_.picDisp, 0, 0,
         RasterOp::SRCCOPY);
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
  magnify(state_.picImageRegion, state_.picImageDrag, state_.gMagnification);
  magnify(state_.picMaskRegion, state_.picMaskDrag, state_.gMagnification);
  ready_ = true;
}

// The Editing Area knows how to show an icon with its grid or pattern, so it is lent the icon without the region.
void RegionDrag::showWithoutRegion() {
  const bool active = std::exchange(state_.mRegionActive, false);
  std::swap(state_.picImage, state_.picImageSnap);
  std::swap(state_.picMask, state_.picMaskSnap);
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
  std::swap(state_.picImage, state_.picImageSnap);
  std::swap(state_.picMask, state_.picMaskSnap);
  state_.mRegionActive = active;
}

void RegionDrag::forget() {
  ready_ = false;
  for (Surface* surface : {&state_.picDragSnap, &state_.picImageDrag, &state_.picMaskDrag}) MakePicSize(*surface, 0, 0);
}

void RegionDrag::moveContent(const DrawRect& former, const DrawRect& box) {
  Surface& disp = state_.picDisp;
  // The box was drawn on its right and bottom sides too.
  const int oldLeft = roundToInteger(former.x1);
  const int oldTop = roundToInteger(former.y1);
  const int oldWidth = roundToInteger(former.x2) - oldLeft + 1;
  const int oldHeight = roundToInteger(former.y2) - oldTop + 1;
  BitBlt(disp, oldLeft, oldTop, oldWidth, oldHeight, state_.picDragSnap, oldLeft, oldTop, RasterOp::SRCCOPY);

  const int left = roundToInteger(box.x1);
  const int top = roundToInteger(box.y1);
  const int width = state_.picImageDrag.width();
  const int height = state_.picImageDrag.height();
  BitBlt(disp, left, top, width, height, state_.picMaskDrag, 0, 0, RasterOp::SRCAND);
  BitBlt(disp, left, top, width, height, state_.picImageDrag, 0, 0, RasterOp::SRCINVERT);
  // The grid stands still under the mouse, as it does when the whole Editing Area is built.
  if (state_.gGridColor != kNoGrid) BitBlt(disp, left, top, width, height, state_.PicGrid, left, top, RasterOp::SRCAND);
  display_.repaintEditingArea(oldLeft, oldTop, oldWidth, oldHeight);
  display_.repaintEditingArea(left, top, width + 1, height + 1);
}

}  // namespace gp
