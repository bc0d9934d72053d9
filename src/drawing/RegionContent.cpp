// The content of a region: lifts it from the icon, merges it back, and shows it while it moves.
#include "document/AlphaGreys.h"
#include "document/CurrentIcon.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "drawing/FloatingContent.h"
#include "drawing/Regions.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/text/Numbers.h"

#include <utility>

namespace gp {

namespace {

struct Block {
  int x, y, width, height;
};

Block blockAt(const DrawRect& pixels) {
  const int x = roundToInteger(pixels.x1);
  const int y = roundToInteger(pixels.y1);
  return {x, y, roundToInteger(pixels.x2) - x + 1, roundToInteger(pixels.y2) - y + 1};
}

Surface blockOf(const Surface& surface, const Block& box, Color outside) {
  Surface block(box.width, box.height, outside);
  BitBlt(block, 0, 0, box.width, box.height, surface, box.x, box.y, RasterOp::SRCCOPY);
  return block;
}

// Returns a part of an icon. Pixels outside the icon are transparent.
IconImage blockOf(const IconImage& icon, const Block& box) {
  AlphaMatrix alpha;
  if (icon.hasAlphaValues()) alpha = alphaOf(blockOf(greysOf(icon.alpha), box, kOpaqueGrey));
  return {blockOf(icon.image, box, kBlack), blockOf(icon.mask, box, kWhite), std::move(alpha)};
}

// Makes all other pixels transparent, inverting ones too.
void keepPaintedPixels(IconImage& icon) {
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x)
      if (icon.mask.GetPixel(x, y) != kBlack) erasePixel(icon, x, y);
}

void blank(IconImage& icon, const Block& box) {
  for (int y = box.y; y < box.y + box.height; ++y)
    for (int x = box.x; x < box.x + box.width; ++x)
      if (icon.image.contains(x, y)) erasePixel(icon, x, y);
}

}  // namespace

bool Regions::isOfCurrentIcon() const {
  return liftedFrom_ == state_.iconSerial && !SurfaceSizeDiffers(beneath_.image, state_.picImage);
}

void Regions::keepIconBeneath() {
  beneath_ = currentIcon(state_);
  liftedFrom_ = state_.iconSerial;
  dragView_.forget();
}

void Regions::liftRegion(bool blankSource) {
  regionToPixels();
  keepIconBeneath();
  const Block box = blockAt(draw_.draw);
  content_ = blockOf(beneath_, box);
  if (blankSource) keepPaintedPixels(content_);
  content_.image.makePersistent();
  content_.mask.makePersistent();
  blank(beneath_, box);
  setRegionLimits();
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
  replacePixels(state_, beneath_);
  mergeContent();
  state_.current().modified = true;
  history_.openStep();
  editingArea_.showChangedIcon();
}

void Regions::mergeContent() {
  const int x = roundToInteger(draw_.draw.x1);
  const int y = roundToInteger(draw_.draw.y1);
  mergeAlpha(content_, x, y, opaque_, state_.picAlpha);
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
