// The Undo and Redo history of the Current Icon: snapshots of its pixels, one after each completed step. Owns
// both stacks. There is one history, which starts again with each new icon in the Editing Area. A snapshot whose size
// does not match the icon is never applied.
//
// A region and Shift change the icon many times before they end. They open a step, which is recorded as one when they
// end, and in any case before anything is undone.
#pragma once

#include "document/Context.h"
#include "platform/gdi/Surface.h"

#include <cstdint>
#include <vector>

namespace gp {

inline constexpr int kMaxUndoSteps = 10;

enum class UndoMode { OneStep = 1, Baseline = 2 };

class EditingArea;

class UndoHistory {
 public:
  UndoHistory(const Context& context, EditingArea& editingArea);

  // Pushes a snapshot of picImage, picMask and picAlpha and clears the redo stack. Then processes events, as its last
  // step.
  void recordUndo();
  // The icon has changed and may change further in the same step.
  void openStep() { open_ = true; }
  // Records the open step without processing events. Does nothing without one.
  void recordOpenStep();
  // Forgets the open step, because its changes were taken back or are recorded with the next step.
  void dropOpenStep() { open_ = false; }
  void clearRedoStack();
  void clearUndoHistory();
  // Goes back one step, or to the baseline, which cannot be redone. An open step counts as one. Returns false and
  // changes nothing when there is no step to undo. The icon counts as modified if its pixels change. The caller must
  // redraw the Editing Area. All this holds for restoreRedo too, which has nothing to redo after an open step.
  bool restoreUndo(UndoMode mode);
  bool restoreRedo();

  // The number of entries of mUndoStack, including the baseline, and of mRedoStack.
  int undoCount() const { return static_cast<int>(mUndoStack.size()); }
  int redoCount() const { return static_cast<int>(mRedoStack.size()); }
  bool canUndo() const { return undoCount() > 1 || hasOpenStep(); }
  bool canRedo() const { return redoCount() > 0 && !hasOpenStep(); }
  // The number of snapshots recorded since the history was cleared, including the baseline.
  int undoSeq() const { return mUndoSeq; }

 private:
  bool hasOpenStep() const;
  bool fitsIcon(const Surface& snapshot) const;
  bool equalsIcon(const Surface& snapshot) const;
  void push();
  Surface snapshot(Surface memory) const;
  void apply(const Surface& snapshot);

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;

  // Pictures of triple width: picImage, picMask and picAlpha from left to right. The last one is the icon's current
  // state, the first one the baseline.
  std::vector<Surface> mUndoStack;
  std::vector<Surface> mRedoStack;  // the step undone last is at the end
  std::int16_t mUndoSeq = 0;
  bool open_ = false;
};

}  // namespace gp
