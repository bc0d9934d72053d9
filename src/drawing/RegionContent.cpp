// What is in a region: lifting it from the icon, merging it back, and showing it while it moves.
#include "drawing/Regions.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/text/Numbers.h"

namespace gp {

namespace {

void copyPicture(const Surface& source, Surface& target) {
  MakeSameSize(source, target);
  BitbltPic(source, target);
}

}  // namespace

// Another size of the icon empties picImageSnap: what was lifted belongs to an icon that is gone.
bool Regions::isLifted() const {
  return mRegionLifted && state_.picImageSnap.hasPicture() && !SurfaceSizeDiffers(state_.picImageSnap, state_.picImage);
}

void Regions::keepIconBeneath() {
  copyPicture(state_.picImage, state_.picImageSnap);
  copyPicture(state_.picMask, state_.picMaskSnap);
}

void Regions::liftRegion(bool blankSource) {
  regionToPixels();
  const DrawRect& at = draw_.draw;
  const int x1 = roundToInteger(at.x1);
  const int y1 = roundToInteger(at.y1);
  const int width = roundToInteger(at.x2) - x1 + 1;
  const int height = roundToInteger(at.y2) - y1 + 1;
  MakePicSize(state_.picImageRegion, width, height);
  MakePicSize(state_.picMaskRegion, width, height);
  keepIconBeneath();
  if (blankSource)
    liftOpaquePixels();
  else
    liftBlock(width, height);
  state_.picImageRegion.makePersistent();
  state_.picMaskRegion.makePersistent();
  FillBox(state_.picImageSnap, x1, y1, x1 + width - 1, y1 + height - 1, kBlack);
  FillBox(state_.picMaskSnap, x1, y1, x1 + width - 1, y1 + height - 1, kWhite);
  mRegionLifted = true;
  setRegionLimits();
  startDragAtBox();
  buildDragSurfaces();
}

void Regions::liftOpaquePixels() {
  state_.picImageRegion.fill(kBlack);
  state_.picMaskRegion.fill(kWhite);
  const int x1 = roundToInteger(draw_.draw.x1);
  const int y1 = roundToInteger(draw_.draw.y1);
  for (int y = 0; y < state_.picMaskRegion.height(); ++y) {
    for (int x = 0; x < state_.picMaskRegion.width(); ++x) {
      if (state_.picMask.GetPixel(x1 + x, y1 + y) != kBlack) continue;
      state_.picImageRegion.SetPixelV(x, y, state_.picImage.GetPixel(x1 + x, y1 + y));
      state_.picMaskRegion.SetPixelV(x, y, kBlack);
    }
  }
}

void Regions::liftBlock(int width, int height) {
  const int x1 = roundToInteger(draw_.draw.x1);
  const int y1 = roundToInteger(draw_.draw.y1);
  BitBlt(state_.picImageRegion, 0, 0, width, height, state_.picImage, x1, y1, RasterOp::SRCCOPY);
  BitBlt(state_.picMaskRegion, 0, 0, width, height, state_.picMask, x1, y1, RasterOp::SRCCOPY);
}

void Regions::placePicture(const Surface& picture, bool opaque) {
  setRegionFromPicture(picture, 0, 0);
  setRegionLimits();
  copyPicture(picture, state_.picImageRegion);
  MakeSameSize(picture, state_.picMaskRegion);
  state_.picMaskRegion.fill(kBlack);
  mPasteOpaque = opaque;
  if (!opaque) maskPicture();
  state_.picMaskRegion.makePersistent();
  setFloating(true);
  setExists();
  keepIconBeneath();
  mRegionLifted = true;
  state_.current().modified = true;
  buildDragSurfaces();
  renderRegion();
}

// The ground behind transparent pixels is what a copied icon shows there: such pixels are transparent again.
void Regions::maskPicture() {
  const Color transparent = state_.PicIcon.backColor;
  Surface& image = state_.picImageRegion;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.GetPixel(x, y) != transparent) continue;
      image.SetPixelV(x, y, kBlack);
      state_.picMaskRegion.SetPixelV(x, y, kWhite);
    }
  }
  image.makePersistent();
}

void Regions::buildDragSurfaces() {
  if (state_.options.updateOnlyEditingArea) dragView_.build();
}

void Regions::renderRegion() {
  regionToPixels();
  unrendered_ = false;
  if (!isLifted()) return;
  BitbltPic(state_.picImageSnap, state_.picImage);
  BitbltPic(state_.picMaskSnap, state_.picMask);
  mergeContent();
  state_.current().modified = true;
  // What lies beneath the region is as it was.
  const bool ready = dragView_.isReady();
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
  dragView_.setReady(ready);
}

void Regions::mergeContent() {
  const int x = roundToInteger(draw_.draw.x1);
  const int y = roundToInteger(draw_.draw.y1);
  const Surface& image = state_.picImageRegion;
  const Surface& mask = state_.picMaskRegion;
  const int width = image.width();
  const int height = image.height();
  if (mPasteOpaque) {
    BitBlt(state_.picMask, x, y, width, height, mask, 0, 0, RasterOp::SRCCOPY);
    BitBlt(state_.picImage, x, y, width, height, image, 0, 0, RasterOp::SRCCOPY);
    return;
  }
  BitBlt(state_.picMask, x, y, width, height, mask, 0, 0, RasterOp::SRCAND);
  BitBlt(state_.picImage, x, y, width, height, mask, 0, 0, RasterOp::SRCAND);
  BitBlt(state_.picImage, x, y, width, height, image, 0, 0, RasterOp::SRCINVERT);
}

void Regions::renderRegionFast() {
  if (!isLifted()) return;
  regionToPixels();
  DrawRect former = shown_;
  if (!dragView_.isReady()) {
    // A redraw shows the content where the icon has it, which is not where the box was drawn.
    dragView_.build();
    former = {0, 0, static_cast<double>(state_.picDisp.width()), static_cast<double>(state_.picDisp.height())};
  }
  dragView_.moveContent(former, draw_.region);
  drawRegionBox();
  unrendered_ = true;
}

void Regions::contentChanged() {
  setFloating(true);
  buildDragSurfaces();
  renderRegion();
}

void Regions::contentTurned() {
  setRegionFromPicture(state_.picImageRegion, roundToInteger(draw_.draw.x1), roundToInteger(draw_.draw.y1));
  setRegionLimits();
  contentChanged();
}

}  // namespace gp
