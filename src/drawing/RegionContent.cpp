// The content of a region: lifts it from the icon, merges it back, and shows it while it moves.
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "drawing/FloatingContent.h"
#include "drawing/Regions.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/text/Numbers.h"

#include <utility>

namespace gp {

namespace {

void copyPicture(const Surface& source, Surface& target) {
  MakeSameSize(source, target);
  BitbltPic(source, target);
}

}  // namespace

bool Regions::isOfCurrentIcon() const {
  return liftedFrom_ == state_.iconSerial && !SurfaceSizeDiffers(beneath_.image, state_.picImage);
}

void Regions::keepIconBeneath() {
  copyPicture(state_.picImage, beneath_.image);
  copyPicture(state_.picMask, beneath_.mask);
  liftedFrom_ = state_.iconSerial;
  dragView_.forget();
}

void Regions::liftRegion(bool blankSource) {
  regionToPixels();
  const DrawRect& at = draw_.draw;
  const int x1 = roundToInteger(at.x1);
  const int y1 = roundToInteger(at.y1);
  const int width = roundToInteger(at.x2) - x1 + 1;
  const int height = roundToInteger(at.y2) - y1 + 1;
  MakePicSize(content_.image, width, height);
  MakePicSize(content_.mask, width, height);
  keepIconBeneath();
  if (blankSource)
    liftOpaquePixels();
  else
    liftBlock(width, height);
  content_.image.makePersistent();
  content_.mask.makePersistent();
  FillBox(beneath_.image, x1, y1, x1 + width - 1, y1 + height - 1, kBlack);
  FillBox(beneath_.mask, x1, y1, x1 + width - 1, y1 + height - 1, kWhite);
  setRegionLimits();
}

void Regions::liftOpaquePixels() {
  content_.image.fill(kBlack);
  content_.mask.fill(kWhite);
  const int x1 = roundToInteger(draw_.draw.x1);
  const int y1 = roundToInteger(draw_.draw.y1);
  for (int y = 0; y < content_.mask.height(); ++y) {
    for (int x = 0; x < content_.mask.width(); ++x) {
      if (state_.picMask.GetPixel(x1 + x, y1 + y) != kBlack) continue;
      content_.image.SetPixelV(x, y, state_.picImage.GetPixel(x1 + x, y1 + y));
      content_.mask.SetPixelV(x, y, kBlack);
    }
  }
}

void Regions::liftBlock(int width, int height) {
  const int x1 = roundToInteger(draw_.draw.x1);
  const int y1 = roundToInteger(draw_.draw.y1);
  BitBlt(content_.image, 0, 0, width, height, state_.picImage, x1, y1, RasterOp::SRCCOPY);
  BitBlt(content_.mask, 0, 0, width, height, state_.picMask, x1, y1, RasterOp::SRCCOPY);
}

void Regions::place(IconImage content, bool opaque) {
  content_ = std::move(content);
  content_.image.makePersistent();
  content_.mask.makePersistent();
  setRegionFromPicture(content_.image, 0, 0);
  keepIconBeneath();
  floatWith(opaque);
  pasted_ = true;
  renderRegion();
}

void Regions::floatWith(bool opaque) {
  floating_ = true;
  opaque_ = opaque;
  enter(RegionPhase::Standing);
}

void Regions::renderRegion() {
  if (!isOfCurrentIcon()) return;
  BitbltPic(beneath_.image, state_.picImage);
  BitbltPic(beneath_.mask, state_.picMask);
  mergeContent();
  state_.current().modified = true;
  history_.openStep();
  editingArea_.showChangedIcon();
}

void Regions::mergeContent() {
  const int x = roundToInteger(draw_.draw.x1);
  const int y = roundToInteger(draw_.draw.y1);
  if (!opaque_) return gp::mergeContent(content_, x, y, state_.picImage, state_.picMask);
  const int width = content_.width();
  const int height = content_.height();
  BitBlt(state_.picMask, x, y, width, height, content_.mask, 0, 0, RasterOp::SRCCOPY);
  BitBlt(state_.picImage, x, y, width, height, content_.image, 0, 0, RasterOp::SRCCOPY);
}

void Regions::renderRegionFast() {
  if (!isOfCurrentIcon()) return;
  DrawRect former = shown_;
  if (!dragView_.isBuilt()) {
    // picDisp shows the content where the icon has it, which need not be where the box was drawn.
    dragView_.build(beneath_, content_);
    former = {0, 0, static_cast<double>(state_.picDisp.width()), static_cast<double>(state_.picDisp.height())};
  }
  dragView_.moveContent(former, draw_.region);
  repaintBox();
  drawRegionBox();
}

void Regions::replaceContent(IconImage content) {
  content_ = std::move(content);
  if (content_.width() != roundToInteger(draw_.draw.x2 - draw_.draw.x1) + 1 ||
      content_.height() != roundToInteger(draw_.draw.y2 - draw_.draw.y1) + 1)
    setRegionFromPicture(content_.image, roundToInteger(draw_.draw.x1), roundToInteger(draw_.draw.y1));
  floatWith(opaque_);
  renderRegion();
}

}  // namespace gp
