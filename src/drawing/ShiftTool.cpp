#include "drawing/ShiftTool.h"

#include "document/AlphaGreys.h"
#include "document/CurrentIcon.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "drawing/Tools.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <array>

namespace gp {

namespace {

constexpr int kCellsAcross = 3;
constexpr const char* kSelectShiftFirst = "Please select Shift first (middle square)";

constexpr std::array<std::array<ShiftCell, kCellsAcross>, kCellsAcross> kPad = {{
    {ShiftCell::TopLeft, ShiftCell::Top, ShiftCell::TopRight},
    {ShiftCell::Left, ShiftCell::Rest, ShiftCell::Right},
    {ShiftCell::BottomLeft, ShiftCell::Bottom, ShiftCell::BottomRight},
}};

struct Change {
  int x;
  int y;
};
// The change of the offsets for each cell, by its index.
constexpr std::array<Change, kShiftPictureCount> kChanges = {
    {{0, 0}, {1, 1}, {0, 1}, {-1, 1}, {1, 0}, {-1, 0}, {1, -1}, {0, -1}, {-1, -1}}};

// A picture that has left the icon enters it again at the opposite side.
int moved(int offset, int change, int size) {
  const int last = size - 1;
  if (change > 0 && offset >= last) offset = -size;
  if (change < 0 && offset <= -last) offset = size;
  return offset + change;
}

}  // namespace

ShiftCell shiftCellAt(double x, double y, double side) {
  const double third = side / kCellsAcross;
  if (x < 0 || y < 0 || x >= side || y >= side) return ShiftCell::Rest;
  const auto column = static_cast<std::size_t>(std::min(Int(x / third), kCellsAcross - 1));
  const auto row = static_cast<std::size_t>(std::min(Int(y / third), kCellsAcross - 1));
  return kPad[row][column];
}

ShiftTool::ShiftTool(const Context& context, EditingArea& editingArea, UndoHistory& history, Tools& tools)
    : context_(context), state_(context.state), editingArea_(editingArea), history_(history), tools_(tools) {}

// Records two equal entries: the first is the baseline to which Undo returns during Shift.
void ShiftTool::turnOn() {
  kept_ = currentIcon(state_);
  keptFrom_ = state_.iconSerial;
  mShiftX_ = mShiftY_ = 0;
  history_.clearUndoHistory();
  history_.recordUndo();
  // Recording processes events, which may have ended Shift.
  if (tools_.selectedTool() == kShift) history_.recordUndo();
}

void ShiftTool::cancel() {
  history_.recordOpenStep();
  mShiftX_ = mShiftY_ = 0;
}

void ShiftTool::padPress(ShiftCell cell) { shown_ = cell; }

void ShiftTool::padRelease(ShiftCell cell) {
  shown_ = ShiftCell::Rest;
  if (tools_.selectedTool() == kShift)
    shift(cell);
  else
    context_.boxes.tell(kSelectShiftFirst);
}

bool ShiftTool::isPictureKept() const {
  return keptFrom_ == state_.iconSerial && !SurfaceSizeDiffers(kept_.image, state_.picImage);
}

void ShiftTool::shift(ShiftCell cell) {
  if (cell == ShiftCell::Rest || !isPictureKept()) return;
  const Change change = kChanges[static_cast<std::size_t>(cell)];
  const int size = state_.current().size;
  mShiftX_ = moved(mShiftX_, change.x, size);
  mShiftY_ = moved(mShiftY_, change.y, size);
  redraw();
}

// Pixels that invert the background are written as opaque, so they become plain colours.
void ShiftTool::redraw() {
  const int size = state_.current().size;
  FillBox(state_.picImage, 0, 0, size - 1, size - 1, kBlack);
  FillBox(state_.picMask, 0, 0, size - 1, size - 1, kWhite);
  FillBox(state_.picAlpha, 0, 0, size - 1, size - 1, kOpaqueGrey);
  for (int j = std::max(mShiftY_, 0); j < size; ++j) {
    for (int i = std::max(mShiftX_, 0); i < size; ++i) {
      const Color color = kept_.image.GetPixel(i, j);
      if (color == kBlack && kept_.mask.GetPixel(i, j) != kBlack) continue;
      state_.picImage.SetPixelV(i - mShiftX_, j - mShiftY_, color);
      state_.picMask.SetPixelV(i - mShiftX_, j - mShiftY_, kBlack);
      state_.picAlpha.SetPixelV(i - mShiftX_, j - mShiftY_, greyOf(kept_.alphaAt(i, j)));
    }
  }
  state_.current().modified = true;
  history_.openStep();
  editingArea_.showChangedIcon();
}

}  // namespace gp
