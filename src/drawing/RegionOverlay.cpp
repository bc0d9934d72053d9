// The box of a region: its two measures, its limits, and how it is drawn and described on the screen.
#include "document/Display.h"
#include "document/EditState.h"
#include "drawing/Regions.h"
#include "drawing/Tools.h"
#include "platform/gdi/Pens.h"
#include "platform/text/Numbers.h"

namespace gp {

namespace {

// A side on the far edge of the Editing Area is drawn one pixel further in, where it is visible.
int drawnSide(double position, int length) {
  const int side = roundToInteger(position);
  return side == length ? side - 1 : side;
}

}  // namespace

RegionScale Regions::scale() const {
  return {state_.gMagnification, state_.picDisp.width(), state_.picDisp.height(), state_.PicIcon.width(),
          state_.PicIcon.height()};
}

Regions::Point Regions::snapped(double x, double y) const {
  return {static_cast<double>(snapToCell(x, SnapMode::NearestCorner, state_.gMagnification)),
          static_cast<double>(snapToCell(y, SnapMode::NearestCorner, state_.gMagnification))};
}

RegionPointer Regions::pointerAt(double x, double y) const {
  return exists() ? pointerOverRegion(draw_.region, floating_, x, y) : RegionPointer::Cross;
}

void Regions::regionToPixels() { draw_.draw = pixelsOfRegion(draw_.region, scale()); }

void Regions::pixelsToRegion() { draw_.region = boxOfPixels(draw_.draw, state_.gMagnification); }

bool Regions::normalizeRegion() {
  const bool swapped = normalizeBox(draw_.region);
  regionToPixels();
  return swapped;
}

void Regions::setRegionLimits() {
  limits_ = limitsOfRegion(draw_.region, scale());
  magnification_ = state_.gMagnification;
}

// The box goes around the whole picture, so that box, label and content agree on the size.
void Regions::setRegionFromPicture(const Surface& picture, int x, int y) {
  draw_.draw = {static_cast<double>(x), static_cast<double>(y), static_cast<double>(x + picture.width() - 1),
                static_cast<double>(y + picture.height() - 1)};
  pixelsToRegion();
  setRegionLimits();
}

void Regions::drawRegionBox() {
  const int width = state_.picDisp.width();
  const int height = state_.picDisp.height();
  const DrawRect& box = draw_.region;
  BandBox(state_.picDisp, drawnSide(box.x1, width), drawnSide(box.y1, height), drawnSide(box.x2, width),
          drawnSide(box.y2, height));
  shown_ = box;
  outlineBox(true);
  repaintBox();
  updateRegionLabel();
}

// Sides of floating content do not move.
void Regions::outlineBox(bool shown) {
  RegionOutline& outline = state_.screen.regionOutline;
  outline = {};
  if (!shown) return;
  DrawRect box = draw_.region;
  normalizeBox(box);
  outline = {roundToInteger(box.x1), roundToInteger(box.y1), roundToInteger(box.x2), roundToInteger(box.y2), true,
             exists() && !floating_};
}

void Regions::wipeRegionBox() {
  state_.picDisp.clearDrawing();
  repaintBox();
}

void Regions::repaintBox() {
  DrawRect box = shown_;
  normalizeBox(box);
  constexpr int kReach = RegionOutline::kReach;
  const int left = roundToInteger(box.x1) - kReach;
  const int top = roundToInteger(box.y1) - kReach;
  context_.display.repaintEditingArea(left, top, roundToInteger(box.x2) - left + kReach,
                                      roundToInteger(box.y2) - top + kReach);
}

void Regions::updateRegionLabel() {
  setLabel(phase_ == RegionPhase::Sizing ? "" : regionLabel(draw_.region, draw_.draw));
}

void Regions::setLabel(const std::string& text) {
  std::string& label = state_.screen.lblDispXY.at(static_cast<std::size_t>(Readout::Region));
  if (label == text) return;
  label = text;
  context_.display.changed(DisplayPart::Readouts);
}

}  // namespace gp
