#include "drawing/Freehand.h"

#include "drawing/ToolTable.h"
#include "platform/gdi/Pens.h"
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

FreehandTool::FreehandTool(EditState& state, Editor& editor, EditingArea& editingArea, MessagePump& pump,
                           DrawState& drawState)
    : state_(state), editor_(editor), editingArea_(editingArea), pump_(pump), drawState_(drawState) {}

bool FreehandTool::isErase() const { return editor_.selectedTool() == kErase; }

void FreehandTool::press(const ToolMouse& mouse) {
  state_.current().modified = true;
  (isErase() ? drawState_.mErasing : drawState_.mPainting) = true;
  stamp(mouse);
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
}

// Stamps where the pointer is; nothing is interpolated, so a fast drag leaves gaps.
void FreehandTool::move(const ToolMouse& mouse) {
  if (!drawState_.mPainting && !drawState_.mErasing) return;
  pump_.pump();
  if (!drawState_.mPainting && !drawState_.mErasing) return;
  stamp(mouse);
  editor_.ComposeCurrentIcon();
  showStamp();
}

void FreehandTool::release(const ToolMouse& /*mouse*/) {
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
  // Messages are pumped last, by the recording: what arrives there finds the stroke recorded.
  editor_.recordUndo();
}

void FreehandTool::cancel() {
  if (!drawState_.mPainting && !drawState_.mErasing) return;
  drawState_.mPainting = drawState_.mErasing = false;
  editor_.recordUndo();
}

// The brush hangs from its top left pixel and is cut at the right and bottom edges of the icon.
void FreehandTool::stamp(const ToolMouse& mouse) {
  const int last = state_.current().size - 1;
  drawState_.draw = {static_cast<double>(mouse.pixelX), static_cast<double>(mouse.pixelY),
                     static_cast<double>(std::min(mouse.pixelX + state_.screen.brushIndex, last)),
                     static_cast<double>(std::min(mouse.pixelY + state_.screen.brushIndex, last))};
  const Square square = squareOf(drawState_.draw);
  const bool erase = isErase();
  FillBox(state_.picImage, square.x1, square.y1, square.x2, square.y2, erase ? kBlack : state_.mCurrentColor);
  FillBox(state_.picMask, square.x1, square.y1, square.x2, square.y2, erase ? kWhite : kBlack);
}

// The square on picDisp spares the grid lines to its left and top, and may run past the right and bottom edge.
void FreehandTool::showStamp() {
  const int m = state_.gMagnification;
  const int reach = 1 + state_.screen.brushIndex;
  const Square square = squareOf(drawState_.draw);
  const auto first = [m](int cell) { return cell == 0 ? 0 : m * cell + 1; };
  editingArea_.showSquare(first(square.x1), first(square.y1), (square.x1 + reach) * m - 1, (square.y1 + reach) * m - 1,
                          isErase() ? kGround : state_.mCurrentColor);
}

RestoreTool::RestoreTool(EditState& state, Editor& editor, DrawState& drawState)
    : state_(state), editor_(editor), drawState_(drawState) {}

void RestoreTool::press(const ToolMouse& mouse) {
  drawState_.mRestoring = true;
  restorePixel(mouse);
}

void RestoreTool::move(const ToolMouse& mouse) {
  if (drawState_.mRestoring) restorePixel(mouse);
}

void RestoreTool::restorePixel(const ToolMouse& mouse) {
  const auto container = static_cast<std::size_t>(state_.mCurContainer);
  const Color image = state_.picPanelImage.at(container).GetPixel(mouse.pixelX, mouse.pixelY);
  const Color mask = state_.picPanelMask.at(container).GetPixel(mouse.pixelX, mouse.pixelY);
  if (image == kNoColor || mask == kNoColor) return;
  state_.picImage.SetPixelV(mouse.pixelX, mouse.pixelY, image);
  state_.picMask.SetPixelV(mouse.pixelX, mouse.pixelY, mask);
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
}

}  // namespace gp
