#include "drawing/UndoHistory.h"

#include "document/PanelNumbers.h"
#include "drawing/ToolTable.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/SurfaceOps.h"

#include <limits>
#include <utility>

namespace gp {

namespace {

constexpr std::size_t kMaxEntries = kMaxUndoSteps + 1;  // the baseline is none of the steps

void moveLast(std::vector<Surface>& from, std::vector<Surface>& to) {
  to.push_back(std::move(from.back()));
  from.pop_back();
}

}  // namespace

UndoHistory::UndoHistory(EditState& state, Editor& editor, MessagePump& pump)
    : state_(state), editor_(editor), pump_(pump) {
  mUndoStack.reserve(kMaxEntries);
}

void UndoHistory::recordUndo() {
  clearRedoStack();
  if (mUndoSeq < std::numeric_limits<std::int16_t>::max()) ++mUndoSeq;
  take();
  // The oldest entry makes room for the newest, whose pixels it has the memory for.
  Surface entry;
  if (mUndoStack.size() == kMaxEntries) {
    entry = std::move(mUndoStack.front());
    mUndoStack.erase(mUndoStack.begin());
  }
  entry = state_.picUndo;
  mUndoStack.push_back(std::move(entry));
  editor_.UpdateCommands();
  pump_.pump();
}

void UndoHistory::clearRedoStack() { mRedoStack.clear(); }

void UndoHistory::clearUndoHistory() {
  mUndoStack.clear();
  clearRedoStack();
  mUndoSeq = 0;
  ++era_;
}

bool UndoHistory::restoreUndo(UndoMode mode) {
  if (!canUndo()) return false;
  const bool toBaseline = mode == UndoMode::Baseline;
  const Surface& target = toBaseline ? mUndoStack.front() : mUndoStack[mUndoStack.size() - 2];
  if (!fitsIcon(target)) return false;
  apply(target);
  moveLast(mUndoStack, mRedoStack);
  if (toBaseline) {
    mUndoStack.resize(1);
    clearRedoStack();
    mUndoSeq = 1;
  }
  editor_.ComposeCurrentIcon();
  return true;
}

bool UndoHistory::restoreRedo() {
  if (!canRedo() || !fitsIcon(mRedoStack.back())) return false;
  apply(mRedoStack.back());
  moveLast(mRedoStack, mUndoStack);
  editor_.ComposeCurrentIcon();
  return true;
}

void UndoHistory::doUndo() {
  if (!canUndo()) return;
  bringColorPanelForward();
  // A shift is taken back as a whole, not by one nudge: the history began anew when it was turned on.
  const bool wholeShift = editor_.selectedTool() == kShift;
  if (wholeShift)
    editor_.clearAllTools();
  else
    editor_.clearRegion();
  if (restoreUndo(wholeShift ? UndoMode::Baseline : UndoMode::OneStep)) editor_.MagnifyIcon();
}

void UndoHistory::doUndoAll() {
  if (!canUndo()) return;
  bringColorPanelForward();
  editor_.clearRegion();
  if (restoreUndo(UndoMode::Baseline)) editor_.MagnifyIcon();
}

void UndoHistory::doRedo() {
  if (!canRedo()) return;
  bringColorPanelForward();
  editor_.clearRegion();
  if (restoreRedo()) editor_.MagnifyIcon();
}

void UndoHistory::bringColorPanelForward() {
  if (state_.screen.mActivePanel != kColorPanel) editor_.showPanel(kColorPanel);
}

bool UndoHistory::fitsIcon(const Surface& snapshot) const {
  return snapshot.width() == 2 * state_.picImage.width() && snapshot.height() == state_.picImage.height();
}

void UndoHistory::take() {
  const int width = state_.picImage.width();
  const int height = state_.picImage.height();
  // Every pixel is written below: at its size already, picUndo need not be emptied first.
  if (!fitsIcon(state_.picUndo)) MakePicSize(state_.picUndo, 2 * width, height);
  BitBlt(state_.picUndo, 0, 0, width, height, state_.picImage, 0, 0, RasterOp::SRCCOPY);
  BitBlt(state_.picUndo, width, 0, width, height, state_.picMask, 0, 0, RasterOp::SRCCOPY);
  state_.picUndo.makePersistent();
}

void UndoHistory::apply(const Surface& snapshot) {
  const int width = state_.picImage.width();
  const int height = state_.picImage.height();
  BitBlt(state_.picImage, 0, 0, width, height, snapshot, 0, 0, RasterOp::SRCCOPY);
  BitBlt(state_.picMask, 0, 0, width, height, snapshot, width, 0, RasterOp::SRCCOPY);
  state_.picImage.makePersistent();
  state_.picMask.makePersistent();
}

}  // namespace gp
