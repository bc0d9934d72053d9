#include "drawing/UndoCommands.h"

#include "document/Announcements.h"
#include "document/Display.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "drawing/Regions.h"
#include "drawing/Tools.h"
#include "drawing/UndoHistory.h"

namespace gp {

UndoCommands::UndoCommands(const Context& context, EditingArea& editingArea, UndoHistory& history, Regions& regions,
                           Tools& tools)
    : context_(context), editingArea_(editingArea), history_(history), regions_(regions), tools_(tools) {}

// A drag ends where the mouse has taken the region, so that the step contains all of it.
void UndoCommands::endToolAction() {
  if (tools_.selectedTool() == kShift) tools_.clearAllTools();
  regions_.finishDrag();
  regions_.clearRegion();
}

void UndoCommands::restore(UndoMode mode, const char* news) {
  if (!history_.canUndo()) return;
  context_.editor.closePanels();
  endToolAction();
  if (!history_.restoreUndo(mode)) return;
  editingArea_.MagnifyIcon();
  context_.display.announce(news);
}

// A shift is undone as a whole, not step by step: the history started again when Shift was turned on.
void UndoCommands::doUndo() {
  restore(tools_.selectedTool() == kShift ? UndoMode::Baseline : UndoMode::OneStep, news::kUndone);
}

void UndoCommands::doUndoAll() { restore(UndoMode::Baseline, news::kAllUndone); }

void UndoCommands::doRedo() {
  if (!history_.canRedo()) return;
  context_.editor.closePanels();
  endToolAction();
  if (!history_.restoreRedo()) return;
  editingArea_.MagnifyIcon();
  context_.display.announce(news::kRedone);
}

}  // namespace gp
