// The phases of a region: what each event does in each of them.
#include "drawing/Regions.h"

#include "document/Announcements.h"
#include "document/CurrentIcon.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "drawing/ShapeGeometry.h"
#include "drawing/Tools.h"
#include "drawing/UndoHistory.h"
#include "platform/text/Numbers.h"

namespace gp {

namespace {

constexpr int kConstrainingKeys = kShiftKey | kCtrlKey | kAltKey;

bool isResize(RegionPointer pointer) {
  return pointer == RegionPointer::HorizontalResize || pointer == RegionPointer::VerticalResize;
}

bool isHorizontal(RegionEdge edge) { return edge == RegionEdge::Left || edge == RegionEdge::Right; }

// The coordinate of a side; null for None.
double* sideOf(DrawRect& box, RegionEdge edge) {
  switch (edge) {
    case RegionEdge::Left:
      return &box.x1;
    case RegionEdge::Right:
      return &box.x2;
    case RegionEdge::Top:
      return &box.y1;
    case RegionEdge::Bottom:
      return &box.y2;
    case RegionEdge::None:
      break;
  }
  return nullptr;
}

}  // namespace

Regions::Regions(const Context& context, EditingArea& editingArea, UndoHistory& history, DrawState& draw)
    : context_(context),
      state_(context.state),
      editingArea_(editingArea),
      history_(history),
      draw_(draw),
      dragView_(context) {}

void Regions::enter(RegionPhase phase) {
  phase_ = phase;
  if (phase != RegionPhase::Sizing) pulledEdge_ = RegionEdge::None;
  if (!isDragged()) byKeyboard_ = false;
  if (!exists()) floating_ = opaque_ = pasted_ = false;
  state_.mRegionExists = exists();
  state_.mPendingPaint = floating_;
}

// The mouse.

bool Regions::press(double x, double y) {
  finishDrag();
  const Point corner = snapped(x, y);
  if (!exists()) {
    beginBox(corner);
  } else if (isResize(pointerAt(x, y))) {
    pullEdge(x, y);
  } else if (isInBox(draw_.region, corner.x, corner.y)) {
    grab_ = {draw_.region.x1 - corner.x, draw_.region.y1 - corner.y};
    takeHold();
  } else {
    return false;
  }
  return true;
}

void Regions::move(double x, double y, int modifiers) {
  switch (phase_) {
    case RegionPhase::None:
    case RegionPhase::Standing:
      return;
    case RegionPhase::Drawing:
      return extendBox(snapped(x, y), modifiers);
    case RegionPhase::Moving:
    case RegionPhase::MovingView:
      return moveTo(snapped(x, y));
    case RegionPhase::Sizing:
      return moveEdge(x, y);
  }
}

void Regions::release() {
  if (phase_ == RegionPhase::Drawing)
    finishBox();
  else if (phase_ == RegionPhase::Sizing)
    finishEdge();
  else
    finishDrag();
}

// Drawing a box.

void Regions::beginBox(const Point& corner) {
  clearRegion();
  enter(RegionPhase::Drawing);
  draw_.region = {corner.x, corner.y, corner.x, corner.y};
  magnification_ = state_.gMagnification;
  regionToPixels();
  drawRegionBox();
}

void Regions::extendBox(const Point& corner, int modifiers) {
  wipeRegionBox();
  draw_.region.x2 = corner.x;
  draw_.region.y2 = corner.y;
  if (modifiers & kConstrainingKeys) constrainToSquare(draw_, state_.current().size, state_.gMagnification);
  regionToPixels();
  drawRegionBox();
}

void Regions::finishBox() {
  if (isFlatBox(draw_.region)) return clearRegion();
  if (normalizeRegion()) updateRegionLabel();
  liftRegion(true);
  enter(RegionPhase::Standing);
  outlineBox(true);
  repaintBox();
  announceSize();
}

void Regions::announceSize() {
  context_.display.announce(news::region(content_.image.width(), content_.image.height()));
}

// Moving a side.

void Regions::pullEdge(double x, double y) {
  enter(RegionPhase::Sizing);
  pulledEdge_ = edgeUnderPress(draw_.region, x, y);
  mEdgeMouse_ = isHorizontal(pulledEdge_) ? x : y;
}

void Regions::moveEdge(double x, double y) {
  wipeRegionBox();
  if (double* side = sideOf(draw_.region, pulledEdge_)) {
    const double position = isHorizontal(pulledEdge_) ? x : y;
    *side += position - mEdgeMouse_;
    mEdgeMouse_ = position;
  }
  drawRegionBox();
}

void Regions::finishEdge() {
  if (double* side = sideOf(draw_.region, pulledEdge_))
    *side = static_cast<double>(Fix(*side / state_.gMagnification)) * state_.gMagnification;
  if (isFlatBox(draw_.region)) return finishDrag();
  enter(RegionPhase::Standing);
  normalizeRegion();
  liftRegion(true);
  wipeRegionBox();
  drawRegionBox();
  announceSize();
}

// Moving the region.

void Regions::takeHold() {
  atPress_ = {draw_.draw, currentIcon(state_), state_.current().modified};
  enter(RegionPhase::Moving);
}

void Regions::moveTo(const Point& corner) {
  const double left = grab_.x + corner.x;
  const double top = grab_.y + corner.y;
  if (limits_.allow(left, top)) placeBox(left, top);
}

void Regions::placeBox(double left, double top) {
  DrawRect& box = draw_.region;
  if (left == box.x1 && top == box.y1) return;
  box = {left, top, left + (box.x2 - box.x1), top + (box.y2 - box.y1)};
  regionToPixels();
  if (!state_.options.updateOnlyEditingArea) return renderRegion();
  enter(RegionPhase::MovingView);
  renderRegionFast();
}

// Ending.

void Regions::cancel() {
  if (phase_ == RegionPhase::Drawing)
    clearRegion();
  else
    finishDrag();
}

void Regions::finishDrag() {
  const RegionPhase ending = phase_;
  if (!exists()) return;
  enter(RegionPhase::Standing);
  if (ending == RegionPhase::Sizing) {
    wipeRegionBox();
    pixelsToRegion();
    drawRegionBox();
  } else if (ending == RegionPhase::MovingView) {
    renderRegion();
  }
}

void Regions::settleAtNewMagnification() {
  // Positions of the mouse have another meaning now, so that its drag ends here. The keyboard means pixels.
  const bool unwritten = phase_ == RegionPhase::MovingView;
  const bool goesOn = byKeyboard_ && (unwritten || phase_ == RegionPhase::Moving);
  enter(goesOn ? RegionPhase::Moving : RegionPhase::Standing);
  pixelsToRegion();
  setRegionLimits();
  if (unwritten)
    renderRegion();
  else
    drawRegionBox();
}

void Regions::redrawRegion() {
  if (!exists()) return;
  state_.picDisp.clearDrawing();
  dragView_.forget();
  if (magnification_ != state_.gMagnification)
    settleAtNewMagnification();
  else
    drawRegionBox();
}

void Regions::clearRegion() {
  history_.recordOpenStep();
  draw_.draw = draw_.region = {};
  draw_.mPainting = draw_.mErasing = draw_.mRestoring = false;
  enter(RegionPhase::None);
  outlineBox(false);
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
  const bool restores = exists() && isOfCurrentIcon();
  history_.dropOpenStep();
  clearRegion();
  if (!restores) return;
  replacePixels(state_, beneath_);
}

}  // namespace gp
