#include "drawing/Regions.h"

#include "document/Display.h"
#include "document/Editor.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/text/Numbers.h"

namespace gp {

namespace {

// A side on the far edge of the Editing Area is drawn one pixel in, where it can be seen.
int drawnSide(double position, int length) {
  const int side = roundToInteger(position);
  return side == length ? side - 1 : side;
}

}  // namespace

Regions::Regions(const Context& context, EditingArea& editingArea, DrawState& draw)
    : context_(context), state_(context.state), editingArea_(editingArea), draw_(draw), dragView_(context) {}

RegionScale Regions::scale() const {
  return {state_.gMagnification, state_.picDisp.width(), state_.picDisp.height(), state_.PicIcon.width(),
          state_.PicIcon.height()};
}

// Ending.

void Regions::clearRegion() {
  draw_.draw = draw_.region = {};
  draw_.mPainting = draw_.mErasing = draw_.mRestoring = draw_.mRegionDown = false;
  state_.mRegionExists = state_.mRegionActive = false;
  setFloating(false);
  mPasteOpaque = mRegionLifted = unrendered_ = false;
  drag_ = {};
  shown_ = {};
  dragView_.forget();
  state_.picDisp.clearDrawing();
  setLabel("");
  state_.screen.editingPointer = kDefaultPointer;
  context_.display.changed(DisplayPart::Pointer);
  context_.display.changed(DisplayPart::EditingArea);
  context_.editor.UpdateCommands();
}

void Regions::dropContent() {
  const bool lifted = isLifted();
  clearRegion();
  if (!lifted) return;
  BitbltPic(beneath_.image, state_.picImage);
  BitbltPic(beneath_.mask, state_.picMask);
}

void Regions::finishDrag() {
  if (!exists()) return;
  if (drag_.mEdgeDrag) {
    drag_.mEdgeDrag = false;
    wipeRegionBox();
    pixelsToRegion();
    drawRegionBox();
  }
  if (unrendered_) renderRegion();
}

void Regions::setExists() { state_.mRegionExists = state_.mRegionActive = true; }

void Regions::setFloating(bool floating) {
  mRegionFloating = floating;
  state_.mPendingPaint = floating;
}

// The box.

RegionPointer Regions::pointerAt(double x, double y) const {
  return exists() ? pointerOverRegion(draw_.region, mRegionFloating, x, y) : RegionPointer::Cross;
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

// The box goes around the whole picture, so that box, label and content tell the same size.
void Regions::setRegionFromPicture(const Surface& picture, int x, int y) {
  draw_.draw = {static_cast<double>(x), static_cast<double>(y), static_cast<double>(x + picture.width() - 1),
                static_cast<double>(y + picture.height() - 1)};
  pixelsToRegion();
  startDragAtBox();
  drag_.mRegionGrabX = drag_.mRegionGrabY = 0;
}

void Regions::startDragAtBox() {
  drag_.mRegionStartX = draw_.region.x1;
  drag_.mRegionStartY = draw_.region.y1;
}

void Regions::drawRegionBox() {
  const int width = state_.picDisp.width();
  const int height = state_.picDisp.height();
  const DrawRect& box = draw_.region;
  BandBox(state_.picDisp, drawnSide(box.x1, width), drawnSide(box.y1, height), drawnSide(box.x2, width),
          drawnSide(box.y2, height));
  shown_ = box;
  repaintBox();
  updateRegionLabel();
}

void Regions::wipeRegionBox() {
  state_.picDisp.clearDrawing();
  repaintBox();
}

void Regions::repaintBox() {
  DrawRect box = shown_;
  normalizeBox(box);
  const int left = roundToInteger(box.x1) - 1;
  const int top = roundToInteger(box.y1) - 1;
  context_.display.repaintEditingArea(left, top, roundToInteger(box.x2) - left + 1, roundToInteger(box.y2) - top + 1);
}

void Regions::updateRegionLabel() { setLabel(drag_.mEdgeDrag ? "" : regionLabel(draw_.region, draw_.draw)); }

void Regions::setLabel(const std::string& text) {
  std::string& label = state_.screen.lblDispXY.at(static_cast<std::size_t>(Readout::Region));
  if (label == text) return;
  label = text;
  context_.display.changed(DisplayPart::Readouts);
}

void Regions::redrawRegion() {
  if (!exists() || !state_.mRegionActive) return;
  state_.picDisp.clearDrawing();
  dragView_.forget();
  if (magnification_ != state_.gMagnification) {
    // Positions of the mouse no longer mean what they did: a drag ends here, and its release writes it.
    draw_.mRegionDown = drag_.mEdgeDrag = false;
    pixelsToRegion();
    setRegionLimits();
    startDragAtBox();
  }
  drawRegionBox();
}

}  // namespace gp
