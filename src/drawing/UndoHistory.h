// The Undo and Redo history of the Current Icon: snapshots of picImage and picMask, one after each finished step. Owns
// both stacks; there is one history, which a new icon in the Editing Area starts afresh. A snapshot that does not fit
// the icon's size is never applied.
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

  // Pushes the state now on picImage and picMask, which ends the redo chain. Pumps messages, last of all.
  void recordUndo();
  void clearRedoStack();
  void clearUndoHistory();
  // One step back, or to the oldest state there is, which cannot be redone. False, and nothing done, when there is no
  // step to take back. The Editing Area is the caller's to redraw; the same for restoreRedo.
  bool restoreUndo(UndoMode mode);
  bool restoreRedo();

  // Entries of mUndoStack, the baseline included, and of mRedoStack.
  int undoCount() const { return static_cast<int>(mUndoStack.size()); }
  int redoCount() const { return static_cast<int>(mRedoStack.size()); }
  bool canUndo() const { return undoCount() > 1; }
  bool canRedo() const { return redoCount() > 0; }
  // Counts the steps recorded since the baseline.
  int undoSeq() const { return mUndoSeq; }

 private:
  bool fitsIcon(const Surface& snapshot) const;
  Surface snapshot(Surface memory) const;
  void apply(const Surface& snapshot);

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;

  // Pictures of double width: picImage to the left, picMask to the right. The last one is the state now on the icon,
  // the first the baseline.
  std::vector<Surface> mUndoStack;
  std::vector<Surface> mRedoStack;  // the one undone last at the end
  std::int16_t mUndoSeq = 0;
};

}  // namespace gp
