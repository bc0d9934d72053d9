#include "drawing/ShapeTools.h"

#include "document/AlphaGreys.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "drawing/DrawState.h"
#include "drawing/ShapeGeometry.h"
#include "drawing/Tools.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/Pens.h"
#include "platform/ports/MessagePump.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace gp {

namespace {

constexpr int kConstrainKeys = kShiftKey | kCtrlKey | kAltKey;
// The pen width of Filled Oval, independent of the brush.
constexpr int kFilledOvalPen = 2;
// The angle in radians at which the two arcs of an oval meet: a full turn, truncated to an integer.
constexpr double kArcEnd = 6;

struct Corners {
  int x1, y1, x2, y2;
};

Corners wholeCorners(const DrawRect& rect) {
  return {roundToInteger(rect.x1), roundToInteger(rect.y1), roundToInteger(rect.x2), roundToInteger(rect.y2)};
}

ShapeBox boxOf(const DrawRect& rect) {
  const Corners c = wholeCorners(rect);
  return {std::min(c.x1, c.x2), std::min(c.y1, c.y2), std::max(c.x1, c.x2) + 1, std::max(c.y1, c.y2) + 1};
}

ShapeBox unite(const ShapeBox& a, const ShapeBox& b) {
  if (a.isEmpty()) return b;
  if (b.isEmpty()) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

// Sets a Surface's pen for one shape. Afterwards the pen has its former width, is solid and does not fill.
class ShapePen {
 public:
  ShapePen(Surface& surface, int width, FillMode fillMode, Color fillColor)
      : surface_(surface), formerWidth_(surface.penWidth) {
    surface.penWidth = width;
    surface.penStyle = PenStyle::Solid;
    surface.drawMode = DrawMode::Copy;
    surface.fillMode = fillMode;
    surface.fillColor = fillColor;
  }
  ShapePen(const ShapePen&) = delete;
  ShapePen& operator=(const ShapePen&) = delete;
  ~ShapePen() {
    surface_.penWidth = formerWidth_;
    surface_.penStyle = PenStyle::Solid;
    surface_.fillMode = FillMode::Transparent;
  }

 private:
  Surface& surface_;
  const int formerWidth_;
};

void drawLine(Surface& surface, const DrawRect& rect, Color color) {
  const Corners c = wholeCorners(rect);
  DrawLine(surface, c.x1, c.y1, c.x2, c.y2, color);
  // A thin pen does not draw the end pixel; a wider pen does.
  if (surface.penWidth == 1) surface.SetPixelV(c.x2, c.y2, color);
}

void drawBox(Surface& surface, const DrawRect& rect, Color color) {
  const Corners c = wholeCorners(rect);
  DrawBox(surface, c.x1, c.y1, c.x2, c.y2, color);
}

// Draws two arcs; the second one starts where the first one ends. Wider pens close the outline; a thin pen misses a
// pixel between the arcs at most sizes, as on the platform.
void drawOval(Surface& surface, const DrawRect& rect, Color color) {
  OvalGeometry oval;
  if (ovalGeometry(rect, oval) == 0) return;
  for (const auto& [start, end] : {std::pair{0.0, kArcEnd}, std::pair{kArcEnd, 0.0}})
    DrawEllipseArc(surface, oval.mOvalCenterX, oval.mOvalCenterY, oval.mOvalRadius, oval.mOvalAspect, color, start,
                   end);
}

void drawFilledOval(Surface& surface, const DrawRect& rect, Color color) {
  OvalGeometry oval;
  if (ovalGeometry(rect, oval) == 0) return;
  DrawEllipse(surface, oval.mOvalCenterX, oval.mOvalCenterY, oval.mOvalRadius, oval.mOvalAspect, color);
}

struct ShapeRow {
  Tool tool;
  void (*draw)(Surface& surface, const DrawRect& rect, Color color);
  FillMode fillMode;
  bool isBox;    // the band has a box
  bool isOval;   // the band has an ellipse
  int penWidth;  // 0: the width of the brush
};

constexpr std::array<ShapeRow, 5> kShapes = {{
    {kLine, drawLine, FillMode::Transparent, false, false, 0},
    {kRectangle, drawBox, FillMode::Transparent, true, false, 0},
    {kFilledRectangle, drawBox, FillMode::Solid, true, false, 0},
    {kOval, drawOval, FillMode::Transparent, true, true, 0},
    {kFilledOval, drawFilledOval, FillMode::Solid, true, true, kFilledOvalPen},
}};

const ShapeRow* findShape(Tool tool) {
  const auto row = std::ranges::find(kShapes, tool, &ShapeRow::tool);
  return row == kShapes.end() ? nullptr : &*row;
}

void drawOn(Surface& surface, const ShapeRow& row, int penWidth, const DrawRect& rect, Color color) {
  const ShapePen pen(surface, penWidth, row.fillMode, color);
  row.draw(surface, rect, color);
}

}  // namespace

ShapeTool::ShapeTool(const Context& context, EditingArea& editingArea, UndoHistory& history, const Tools& tools,
                     DrawState& drawState)
    : context_(context),
      state_(context.state),
      editingArea_(editingArea),
      history_(history),
      tools_(tools),
      drawState_(drawState) {}

ShapeTool::DragTarget ShapeTool::currentTarget() const {
  return {state_.iconSerial, state_.screen.mActivePanel, state_.mRegionExists, tools_.selectedTool() == kShift};
}

bool ShapeTool::isCurrent(const DragTarget& target) const {
  return state_.current().present && target == currentTarget();
}

bool ShapeTool::isDragging() const { return dragged_ && drawState_.mPainting && isCurrent(dragTarget_); }

void ShapeTool::press(const ToolMouse& mouse) {
  drawState_.mPainting = true;
  dragged_ = true;
  dragTarget_ = currentTarget();
  follow(mouse);
  drawState_.draw.x1 = drawState_.draw.x2;
  drawState_.draw.y1 = drawState_.draw.y2;
  drawState_.band.x1 = drawState_.band.x2;
  drawState_.band.y1 = drawState_.band.y2;
}

// Moves the second corner to the pointer.
void ShapeTool::follow(const ToolMouse& mouse) {
  const int m = state_.gMagnification;
  drawState_.draw.x2 = mouse.pixelX;
  drawState_.draw.y2 = mouse.pixelY;
  drawState_.band.x2 = snapToCell(static_cast<double>(mouse.x), SnapMode::CellCentre, m);
  drawState_.band.y2 = snapToCell(static_cast<double>(mouse.y), SnapMode::CellCentre, m);
}

void ShapeTool::move(const ToolMouse& mouse) {
  // A drag that has ended otherwise must leave nothing for a release to draw.
  if (!isDragging()) {
    cancel();
    return;
  }
  follow(mouse);
  if ((mouse.modifiers & kConstrainKeys) != 0)
    constrainToSquare(drawState_, state_.current().size, state_.gMagnification);
  showBand(mouse.tool);
}

void ShapeTool::followMagnification() {
  if (!isDragging()) return;
  const auto centre = [m = state_.gMagnification](double pixel) {
    return snapToCell(pixel * m, SnapMode::CellCentre, m);
  };
  const DrawRect& draw = drawState_.draw;
  drawState_.band.x1 = centre(draw.x1);
  drawState_.band.y1 = centre(draw.y1);
  drawState_.band.x2 = centre(draw.x2);
  drawState_.band.y2 = centre(draw.y2);
  showBand(tools_.selectedTool());
}

std::optional<DrawnSize> ShapeTool::drawnSize() const {
  if (!isDragging()) return std::nullopt;
  const Corners c = wholeCorners(drawState_.draw);
  return DrawnSize{std::abs(c.x2 - c.x1) + 1, std::abs(c.y2 - c.y1) + 1};
}

void ShapeTool::showBand(Tool tool) {
  const ShapeRow* row = findShape(tool);
  if (row == nullptr) return;
  state_.picDisp.clearDrawing();
  const DrawRect& band = drawState_.band;
  const Corners c = wholeCorners(band);
  (row->isBox ? BandBox : BandLine)(state_.picDisp, c.x1, c.y1, c.x2, c.y2);
  OvalGeometry oval;
  if (row->isOval && ovalGeometry(band, oval) > 0)
    BandEllipse(state_.picDisp, oval.mOvalCenterX, oval.mOvalCenterY, oval.mOvalRadius, oval.mOvalAspect);
  const ShapeBox former = std::exchange(shownBand_, boxOf(band));
  const ShapeBox changed = unite(former, shownBand_);
  context_.display.repaintEditingArea(changed.left, changed.top, changed.width(), changed.height());
}

void ShapeTool::cancel() {
  dragged_ = false;
  clearBand();
}

void ShapeTool::clearBand() {
  const ShapeBox former = std::exchange(shownBand_, {});
  if (former.isEmpty()) return;
  state_.picDisp.clearDrawing();
  context_.display.repaintEditingArea(former.left, former.top, former.width(), former.height());
}

void ShapeTool::release(const ToolMouse& mouse) {
  // There is nothing to draw on the second button's release, or on a release without a press.
  const bool mayDraw = dragged_ && isCurrent(dragTarget_);
  cancel();
  const ShapeRow* row = findShape(mouse.tool);
  if (!mayDraw || row == nullptr) return;
  // A nested press starts another drag, so the values of this one are copied first.
  const DrawRect corners = drawState_.draw;
  const DragTarget target = dragTarget_;
  if (row->isOval) context_.pump.pump();
  if (!isCurrent(target)) return;
  const int penWidth = row->penWidth != 0 ? row->penWidth : state_.screen.brushIndex + 1;
  drawOn(state_.picImage, *row, penWidth, corners, state_.mCurrentColor);
  drawOn(state_.picMask, *row, penWidth, corners, kBlack);
  drawOn(state_.picAlpha, *row, penWidth, corners, kOpaqueGrey);
  editingArea_.showChangedIcon();
  history_.recordUndo();
}

}  // namespace gp
