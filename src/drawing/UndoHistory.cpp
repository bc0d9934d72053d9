#include "drawing/UndoHistory.h"

#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/ports/MessagePump.h"

#include <algorithm>
#include <limits>
#include <span>
#include <utility>

namespace gp {

namespace {

constexpr int kParts = 3;                               // of a snapshot: image, Mask, alpha
constexpr std::size_t kMaxEntries = kMaxUndoSteps + 1;  // the baseline is not a step

bool sameColors(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b) {
  return std::ranges::equal(a, b, [](std::uint32_t x, std::uint32_t y) { return ((x ^ y) & kColorBits) == 0; });
}

void moveLast(std::vector<Surface>& from, std::vector<Surface>& to) {
  to.push_back(std::move(from.back()));
  from.pop_back();
}

}  // namespace

UndoHistory::UndoHistory(const Context& context, EditingArea& editingArea)
    : context_(context), state_(context.state), editingArea_(editingArea) {
  mUndoStack.reserve(kMaxEntries);
}

void UndoHistory::recordUndo() {
  push();
  context_.editor.UpdateCommands();
  context_.pump.pump();
}

void UndoHistory::push() {
  dropOpenStep();
  clearRedoStack();
  if (mUndoSeq < std::numeric_limits<std::int16_t>::max()) ++mUndoSeq;
  // The newest entry replaces the oldest one and reuses its memory.
  Surface memory;
  if (mUndoStack.size() == kMaxEntries) {
    memory = std::move(mUndoStack.front());
    mUndoStack.erase(mUndoStack.begin());
  }
  mUndoStack.push_back(snapshot(std::move(memory)));
}

void UndoHistory::recordOpenStep() {
  if (hasOpenStep()) push();
  dropOpenStep();
}

// A step that has brought all pixels back is none.
bool UndoHistory::hasOpenStep() const {
  return open_ && !mUndoStack.empty() && fitsIcon(mUndoStack.back()) && !equalsIcon(mUndoStack.back());
}

void UndoHistory::clearRedoStack() { mRedoStack.clear(); }

void UndoHistory::clearUndoHistory() {
  mUndoStack.clear();
  clearRedoStack();
  dropOpenStep();
  mUndoSeq = 0;
}

bool UndoHistory::restoreUndo(UndoMode mode) {
  recordOpenStep();
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
  editingArea_.ComposeCurrentIcon();
  return true;
}

bool UndoHistory::restoreRedo() {
  recordOpenStep();
  if (!canRedo() || !fitsIcon(mRedoStack.back())) return false;
  apply(mRedoStack.back());
  moveLast(mRedoStack, mUndoStack);
  editingArea_.ComposeCurrentIcon();
  return true;
}

bool UndoHistory::fitsIcon(const Surface& snapshot) const {
  return snapshot.width() == kParts * state_.picImage.width() && snapshot.height() == state_.picImage.height();
}

bool UndoHistory::equalsIcon(const Surface& snapshot) const {
  const auto width = static_cast<std::size_t>(state_.picImage.width());
  for (int y = 0; y < state_.picImage.height(); ++y) {
    const auto row = snapshot.row(y);
    if (!sameColors(row.first(width), state_.picImage.row(y)) ||
        !sameColors(row.subspan(width, width), state_.picMask.row(y)) ||
        !sameColors(row.last(width), state_.picAlpha.row(y)))
      return false;
  }
  return true;
}

// Returns a snapshot of the icon. `picUndo` is memory to reuse.
Surface UndoHistory::snapshot(Surface picUndo) const {
  const int width = state_.picImage.width();
  const int height = state_.picImage.height();
  // Every pixel is written below, so a picUndo of the right size need not be cleared.
  if (!fitsIcon(picUndo)) MakePicSize(picUndo, kParts * width, height);
  BitBlt(picUndo, 0, 0, width, height, state_.picImage, 0, 0, RasterOp::SRCCOPY);
  BitBlt(picUndo, width, 0, width, height, state_.picMask, 0, 0, RasterOp::SRCCOPY);
  BitBlt(picUndo, 2 * width, 0, width, height, state_.picAlpha, 0, 0, RasterOp::SRCCOPY);
  picUndo.makePersistent();
  return picUndo;
}

void UndoHistory::apply(const Surface& snapshot) {
  if (equalsIcon(snapshot)) return;
  state_.current().modified = true;
  const int width = state_.picImage.width();
  const int height = state_.picImage.height();
  BitBlt(state_.picImage, 0, 0, width, height, snapshot, 0, 0, RasterOp::SRCCOPY);
  BitBlt(state_.picMask, 0, 0, width, height, snapshot, width, 0, RasterOp::SRCCOPY);
  BitBlt(state_.picAlpha, 0, 0, width, height, snapshot, 2 * width, 0, RasterOp::SRCCOPY);
  state_.picImage.makePersistent();
  state_.picMask.makePersistent();
  state_.picAlpha.makePersistent();
}

}  // namespace gp
