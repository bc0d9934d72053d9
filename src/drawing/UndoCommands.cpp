#include "drawing/UndoCommands.h"

#include "document/EditingArea.h"
#include "document/Editor.h"
#include "drawing/Regions.h"
#include "drawing/Tools.h"
#include "drawing/UndoHistory.h"

namespace gp {

UndoCommands::UndoCommands(const Context& context, EditingArea& editingArea, UndoHistory& history, Regions& regions,
                           Tools& tools)
    : context_(context), editingArea_(editingArea), history_(history), regions_(regions), tools_(tools) {}

void UndoCommands::doUndo() {
  if (!history_.canUndo()) return;
  context_.editor.closePanels();
  // A shift is undone as a whole, not step by step: the history started again when Shift was turned on.
  const bool wholeShift = tools_.selectedTool() == kShift;
  if (wholeShift)
    tools_.clearAllTools();
  else
    regions_.clearRegion();
  if (history_.restoreUndo(wholeShift ? UndoMode::Baseline : UndoMode::OneStep)) editingArea_.MagnifyIcon();
}

void UndoCommands::doUndoAll() {
  if (!history_.canUndo()) return;
  context_.editor.closePanels();
  regions_.clearRegion();
  if (history_.restoreUndo(UndoMode::Baseline)) editingArea_.MagnifyIcon();
}

void UndoCommands::doRedo() {
  if (!history_.canRedo()) return;
  context_.editor.closePanels();
  regions_.clearRegion();
  if (history_.restoreRedo()) editingArea_.MagnifyIcon();
}

}  // namespace gp
