#include "drawing/Freehand.h"

#include "document/AlphaGreys.h"
#include "document/Containers.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "drawing/DrawState.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/Pens.h"
#include "platform/ports/MessagePump.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace gp {

namespace {

struct Square {
  int x1, y1, x2, y2;
};

Square squareOf(const DrawRect& rect) {
  return {roundToInteger(rect.x1), roundToInteger(rect.y1), roundToInteger(rect.x2), roundToInteger(rect.y2)};
}

}  // namespace

FreehandTool::FreehandTool(const Context& context, EditingArea& editingArea, UndoHistory& history, DrawState& drawState)
    : context_(context), state_(context.state), editingArea_(editingArea), history_(history), drawState_(drawState) {}

bool& FreehandTool::stroke(Tool tool) { return tool == kErase ? drawState_.mErasing : drawState_.mPainting; }

void FreehandTool::press(const ToolMouse& mouse) {
  state_.current().modified = true;
  stroke(mouse.tool) = true;
  stamp(mouse);
  editingArea_.showChangedIcon();
}

// Stamps at the pointer's position without interpolation, so a fast drag leaves gaps.
void FreehandTool::move(const ToolMouse& mouse) {
  if (!stroke(mouse.tool)) return;
  context_.pump.pump();
  if (!stroke(mouse.tool)) return;
  stamp(mouse);
  editingArea_.ComposeCurrentIcon();
  showStamp(mouse.tool);
}

void FreehandTool::release(const ToolMouse& /*mouse*/) {
  editingArea_.showChangedIcon();
  // Recording processes events last, so these find the stroke recorded.
  history_.recordUndo();
}

void FreehandTool::cancel() {
  if (!drawState_.mPainting && !drawState_.mErasing) return;
  drawState_.mPainting = drawState_.mErasing = false;
  history_.recordUndo();
}

// The pointer is at the brush's top left pixel. The brush is cut at the right and bottom edges of the icon.
void FreehandTool::stamp(const ToolMouse& mouse) {
  const int last = state_.current().size - 1;
  drawState_.draw = {static_cast<double>(mouse.pixelX), static_cast<double>(mouse.pixelY),
                     static_cast<double>(std::min(mouse.pixelX + state_.screen.brushIndex, last)),
                     static_cast<double>(std::min(mouse.pixelY + state_.screen.brushIndex, last))};
  const Square square = squareOf(drawState_.draw);
  const bool erase = mouse.tool == kErase;
  FillBox(state_.picImage, square.x1, square.y1, square.x2, square.y2, erase ? kBlack : state_.mCurrentColor);
  FillBox(state_.picMask, square.x1, square.y1, square.x2, square.y2, erase ? kWhite : kBlack);
  FillBox(state_.picAlpha, square.x1, square.y1, square.x2, square.y2, kOpaqueGrey);
}

// On picDisp the square does not cover the grid lines to its left and top, and can exceed the right and bottom edges.
void FreehandTool::showStamp(Tool tool) {
  const int m = state_.gMagnification;
  const int reach = 1 + state_.screen.brushIndex;
  const Square square = squareOf(drawState_.draw);
  const auto first = [m](int cell) { return cell == 0 ? 0 : m * cell + 1; };
  editingArea_.showSquare(first(square.x1), first(square.y1), (square.x1 + reach) * m - 1, (square.y1 + reach) * m - 1,
                          tool == kErase ? kGround : state_.mCurrentColor);
}

RestoreTool::RestoreTool(const Context& context, EditingArea& editingArea, DrawState& drawState)
    : state_(context.state), editingArea_(editingArea), drawState_(drawState) {}

void RestoreTool::press(const ToolMouse& mouse) {
  drawState_.mRestoring = true;
  restorePixel(mouse);
}

void RestoreTool::move(const ToolMouse& mouse) {
  if (drawState_.mRestoring) restorePixel(mouse);
}

void RestoreTool::cancel() { drawState_.mRestoring = false; }

void RestoreTool::restorePixel(const ToolMouse& mouse) {
  const auto container = static_cast<std::size_t>(state_.mCurContainer);
  const Color image = state_.picPanelImage.at(container).GetPixel(mouse.pixelX, mouse.pixelY);
  const Color mask = state_.picPanelMask.at(container).GetPixel(mouse.pixelX, mouse.pixelY);
  if (image == kNoColor || mask == kNoColor) return;
  state_.picImage.SetPixelV(mouse.pixelX, mouse.pixelY, image);
  state_.picMask.SetPixelV(mouse.pixelX, mouse.pixelY, mask);
  const AlphaMatrix& alpha = state_.mAlphaRecs.at(container);
  const bool hasAlpha = AlphaRecIsReady(state_);
  state_.picAlpha.SetPixelV(mouse.pixelX, mouse.pixelY,
                            hasAlpha ? greyOf(alpha.at(mouse.pixelX, mouse.pixelY)) : kOpaqueGrey);
  editingArea_.showChangedIcon();
}

}  // namespace gp
