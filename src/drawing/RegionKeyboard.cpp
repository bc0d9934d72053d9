// The region by keyboard: drags that go from icon pixel to icon pixel, and sides that move without a drag.
#include "document/CurrentIcon.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "drawing/Regions.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace gp {

namespace {

// The sides of a box around the pixels `anchor` and `pixel`: the first one on the far side of the anchor.
std::pair<int, int> sidesAround(int anchor, int pixel) {
  return pixel < anchor ? std::pair(anchor + 1, pixel) : std::pair(anchor, pixel + 1);
}

}  // namespace

bool Regions::pressPixel(int x, int y) {
  finishDrag();
  const DrawRect& pixels = draw_.draw;
  if (exists() && !isInBox(pixels, x, y)) return false;
  if (exists()) {
    anchor_ = {roundToInteger(pixels.x1) - x, roundToInteger(pixels.y1) - y};
    takeHold();
  } else {
    const double m = state_.gMagnification;
    beginBox({x * m, y * m});
    anchor_ = {x, y};
  }
  byKeyboard_ = true;
  movePixel(x, y, 0);
  return true;
}

void Regions::movePixel(int x, int y, int modifiers) {
  if (!byKeyboard_) return;
  const double m = state_.gMagnification;
  if (phase_ != RegionPhase::Drawing) {
    const auto [left, top] = limits_.nearest((x + anchor_.x) * m, (y + anchor_.y) * m, state_.gMagnification);
    return placeBox(left, top);
  }
  const auto [left, right] = sidesAround(anchor_.x, x);
  const auto [top, bottom] = sidesAround(anchor_.y, y);
  draw_.region.x1 = left * m;
  draw_.region.y1 = top * m;
  extendBox({right * m, bottom * m}, modifiers);
}

void Regions::giveUp() {
  if (phase_ == RegionPhase::Drawing) return clearRegion();
  if (phase_ == RegionPhase::Moving || phase_ == RegionPhase::MovingView) return putBack();
  finishDrag();
}

// The icon is brought back as it was, because merging the content at its place again would not restore pixels that
// invert.
void Regions::putBack() {
  enter(RegionPhase::Standing);
  if (!isOfCurrentIcon() || SurfaceSizeDiffers(atPress_.icon.image, state_.picImage)) return;
  draw_.draw = atPress_.pixels;
  pixelsToRegion();
  replacePixels(state_, atPress_.icon);
  state_.current().modified = atPress_.modified;
  editingArea_.showChangedIcon();
}

void Regions::sizeBy(int dx, int dy) {
  if (phase_ != RegionPhase::Standing || !isInsideIcon()) return;
  DrawRect pixels = draw_.draw;
  pixels.x2 = std::clamp(pixels.x2 + dx, pixels.x1, state_.picImage.width() - 1.0);
  pixels.y2 = std::clamp(pixels.y2 + dy, pixels.y1, state_.picImage.height() - 1.0);
  if (pixels.x2 == draw_.draw.x2 && pixels.y2 == draw_.draw.y2) return;
  history_.recordOpenStep();
  floating_ = opaque_ = pasted_ = false;
  enter(RegionPhase::Standing);
  draw_.draw = pixels;
  pixelsToRegion();
  liftRegion(true);
  wipeRegionBox();
  drawRegionBox();
  announceSize();
  context_.editor.UpdateCommands();
}

bool Regions::isInsideIcon() const {
  const DrawRect& pixels = draw_.draw;
  return pixels.x1 >= 0 && pixels.y1 >= 0 && pixels.x2 < state_.picImage.width() &&
         pixels.y2 < state_.picImage.height();
}

void Regions::followMagnification() {
  if (phase_ != RegionPhase::Drawing) return;
  const double growth = static_cast<double>(state_.gMagnification) / magnification_;
  for (double* side : {&draw_.region.x1, &draw_.region.y1, &draw_.region.x2, &draw_.region.y2}) *side *= growth;
  magnification_ = state_.gMagnification;
  drawRegionBox();
}

std::optional<DrawnSize> Regions::drawnSize() const {
  const DrawRect& box = draw_.region;
  if (phase_ != RegionPhase::Drawing || (box.x1 == box.x2 && box.y1 == box.y2)) return std::nullopt;
  const double m = state_.gMagnification;
  return DrawnSize{roundToInteger(std::abs(box.x2 - box.x1) / m), roundToInteger(std::abs(box.y2 - box.y1) / m)};
}

}  // namespace gp
