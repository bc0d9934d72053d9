#include "drawing/RegionTool.h"

#include "document/EditState.h"
#include "drawing/DrawState.h"
#include "drawing/Regions.h"
#include "drawing/ShapeGeometry.h"
#include "drawing/Tools.h"
#include "drawing/UndoHistory.h"
#include "platform/ports/MessagePump.h"
#include "platform/text/Numbers.h"

namespace gp {

namespace {

constexpr int kConstrainingKeys = kShiftKey | kCtrlKey | kAltKey;

bool isResize(RegionPointer pointer) {
  return pointer == RegionPointer::HorizontalResize || pointer == RegionPointer::VerticalResize;
}

bool isHorizontal(RegionEdge edge) { return edge == RegionEdge::Left || edge == RegionEdge::Right; }

// The coordinate that a side stands on; nothing when no side was hit.
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
    default:
      return nullptr;
  }
}

}  // namespace

RegionTool::RegionTool(const Context& context, DrawState& draw, UndoHistory& history, Regions& regions, Tools& tools)
    : context_(context), state_(context.state), draw_(draw), history_(history), regions_(regions), tools_(tools) {}

void RegionTool::cancel() { regions_.finishDrag(); }

void RegionTool::snap(const ToolMouse& mouse) {
  mRegionX = snapToCell(static_cast<double>(mouse.x), SnapMode::NearestCorner, state_.gMagnification);
  mRegionY = snapToCell(static_cast<double>(mouse.y), SnapMode::NearestCorner, state_.gMagnification);
}

void RegionTool::press(const ToolMouse& mouse) {
  regions_.finishDrag();
  draw_.mRegionDown = true;
  snap(mouse);
  if (!regions_.exists()) return beginBox();
  Regions::Drag& drag = regions_.drag();
  drag.mEdgeIndex = RegionEdge::None;
  const auto x = static_cast<double>(mouse.x);
  const auto y = static_cast<double>(mouse.y);
  if (isResize(regions_.pointerAt(x, y))) return beginEdgeDrag(mouse);
  if (!isInBox(draw_.region, mRegionX, mRegionY)) return merge();
  drag.mRegionGrabX = drag.mRegionStartX - mRegionX;
  drag.mRegionGrabY = drag.mRegionStartY - mRegionY;
}

// Drawing a box.

void RegionTool::beginBox() {
  // Whatever ended the last region, nothing of it reaches into a new one.
  regions_.clearRegion();
  draw_.mRegionDown = true;
  draw_.region = {mRegionX, mRegionY, mRegionX, mRegionY};
  regions_.regionToPixels();
  regions_.drawRegionBox();
}

void RegionTool::extendBox(int modifiers) {
  regions_.wipeRegionBox();
  draw_.region.x2 = mRegionX;
  draw_.region.y2 = mRegionY;
  if (modifiers & kConstrainingKeys) constrainToSquare(draw_, state_.current().size, state_.gMagnification);
  regions_.regionToPixels();
  regions_.drawRegionBox();
}

void RegionTool::finishBox() {
  if (isFlatBox(draw_.region)) return regions_.clearRegion();
  regions_.setExists();
  if (regions_.normalizeRegion()) regions_.updateRegionLabel();
  regions_.liftRegion(true);
}

// Moving a side.

void RegionTool::beginEdgeDrag(const ToolMouse& mouse) {
  Regions::Drag& drag = regions_.drag();
  const auto x = static_cast<double>(mouse.x);
  const auto y = static_cast<double>(mouse.y);
  // The bands of the press are not those of the pointer: where they differ no side is taken hold of.
  drag.mEdgeIndex = edgeUnderPress(draw_.region, x, y);
  drag.mEdgeMouse = isHorizontal(drag.mEdgeIndex) ? x : y;
  drag.mEdgeDrag = true;
  context_.pump.pump();
}

void RegionTool::moveEdge(const ToolMouse& mouse) {
  Regions::Drag& drag = regions_.drag();
  regions_.wipeRegionBox();
  if (double* side = sideOf(draw_.region, drag.mEdgeIndex)) {
    const auto position = static_cast<double>(isHorizontal(drag.mEdgeIndex) ? mouse.x : mouse.y);
    *side += position - drag.mEdgeMouse;
    drag.mEdgeMouse = position;
  }
  regions_.drawRegionBox();
  context_.pump.pump();
}

void RegionTool::finishEdgeDrag() {
  Regions::Drag& drag = regions_.drag();
  if (double* side = sideOf(draw_.region, drag.mEdgeIndex))
    *side = static_cast<double>(Fix(*side / state_.gMagnification)) * state_.gMagnification;
  if (isFlatBox(draw_.region)) return regions_.finishDrag();
  regions_.wipeRegionBox();
  drag.mEdgeDrag = false;
  regions_.normalizeRegion();
  regions_.liftRegion(true);
  regions_.wipeRegionBox();
  regions_.drawRegionBox();
  context_.pump.pump();
}

// Moving the region.

void RegionTool::moveRegion() {
  Regions::Drag& drag = regions_.drag();
  const double left = drag.mRegionGrabX + mRegionX;
  const double top = drag.mRegionGrabY + mRegionY;
  DrawRect& box = draw_.region;
  if (!regions_.limits().allow(left, top) || (left == box.x1 && top == box.y1)) return;
  box = {left, top, left + (box.x2 - box.x1), top + (box.y2 - box.y1)};
  drag.mRegionStartX = left;
  drag.mRegionStartY = top;
  if (state_.options.updateOnlyEditingArea)
    regions_.renderRegionFast();
  else
    regions_.renderRegion();
}

// The region is merged where it is, and a new one can be drawn.
void RegionTool::merge() {
  tools_.clearAllTools();
  regions_.clearRegion();
  tools_.selectTool(kRegion);
  history_.recordUndo();
}

void RegionTool::move(const ToolMouse& mouse) {
  if (!draw_.mRegionDown) return;
  snap(mouse);
  if (!regions_.exists())
    extendBox(mouse.modifiers);
  else if (regions_.drag().mEdgeDrag)
    moveEdge(mouse);
  else
    moveRegion();
}

void RegionTool::release(const ToolMouse& /*mouse*/) {
  if (!regions_.exists())
    finishBox();
  else if (regions_.drag().mEdgeDrag)
    finishEdgeDrag();
  else
    regions_.finishDrag();
}

int RegionTool::pointer(float x, float y) const {
  switch (regions_.pointerAt(static_cast<double>(x), static_cast<double>(y))) {
    case RegionPointer::Cross:
      return kCrossPointer;
    case RegionPointer::Custom:
      return kOwnPicture;
    case RegionPointer::HorizontalResize:
      return kHorizontalResizePointer;
    case RegionPointer::VerticalResize:
      return kVerticalResizePointer;
    case RegionPointer::Move:
      return kMovePointer;
    case RegionPointer::Default:
      break;
  }
  return kDefaultPointer;
}

}  // namespace gp
