#include "drawing/ShiftTool.h"

#include "document/Messages.h"
#include "drawing/ToolTable.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/SurfaceOps.h"
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
// What each cell adds to the offsets, by its index.
constexpr std::array<Change, kShiftPictureCount> kChanges = {
    {{0, 0}, {1, 1}, {0, 1}, {-1, 1}, {1, 0}, {-1, 0}, {1, -1}, {0, -1}, {-1, -1}}};

// A picture that has left the icon comes in from the other side.
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

ShiftTool::ShiftTool(EditState& state, Editor& editor, MessageBoxes& boxes)
    : state_(state), editor_(editor), boxes_(boxes) {}

// The history gets two like entries: the first is the baseline that an Undo during Shift returns to.
void ShiftTool::turnOn() {
  MakeSameSize(state_.picImage, state_.picImageRegion);
  MakeSameSize(state_.picMask, state_.picMaskRegion);
  BitbltPic(state_.picImage, state_.picImageRegion);
  BitbltPic(state_.picMask, state_.picMaskRegion);
  mShiftX_ = mShiftY_ = 0;
  editor_.clearUndoHistory();
  editor_.recordUndo();
  // Recording pumps messages, in which Shift may have been ended again.
  if (editor_.selectedTool() == kShift) editor_.recordUndo();
}

void ShiftTool::padPress(ShiftCell cell) { shown_ = cell; }

void ShiftTool::padRelease(ShiftCell cell) {
  shown_ = ShiftCell::Rest;
  if (!state_.current().present) {
    editor_.clearAllTools();
    tellNoIconYet(boxes_);
    return;
  }
  if (editor_.selectedTool() != kShift) {
    boxes_.tell(kSelectShiftFirst);
    return;
  }
  shift(cell);
}

bool ShiftTool::isPictureKept() const {
  return state_.picImageRegion.hasPicture() && !SurfaceSizeDiffers(state_.picImageRegion, state_.picImage) &&
         !SurfaceSizeDiffers(state_.picMaskRegion, state_.picMask);
}

void ShiftTool::shift(ShiftCell cell) {
  if (cell == ShiftCell::Rest || !isPictureKept()) return;
  const Change change = kChanges[static_cast<std::size_t>(cell)];
  const int size = state_.current().size;
  mShiftX_ = moved(mShiftX_, change.x, size);
  mShiftY_ = moved(mShiftY_, change.y, size);
  redraw();
}

// Pixels that invert what is behind them are written as opaque, and so become plain colours.
void ShiftTool::redraw() {
  const int size = state_.current().size;
  FillBox(state_.picImage, 0, 0, size - 1, size - 1, kBlack);
  FillBox(state_.picMask, 0, 0, size - 1, size - 1, kWhite);
  for (int j = std::max(mShiftY_, 0); j < size; ++j) {
    for (int i = std::max(mShiftX_, 0); i < size; ++i) {
      const Color color = state_.picImageRegion.GetPixel(i, j);
      if (color == kBlack && state_.picMaskRegion.GetPixel(i, j) != kBlack) continue;
      state_.picImage.SetPixelV(i - mShiftX_, j - mShiftY_, color);
      state_.picMask.SetPixelV(i - mShiftX_, j - mShiftY_, kBlack);
    }
  }
  state_.current().modified = true;
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
}

}  // namespace gp
