// The Undo, Redo and Undo All commands. Before a step they end a region or Shift, whose changes are a step of their
// own; after it they update the Editing Area.
#pragma once

#include "document/Context.h"

namespace gp {

class EditingArea;
class Regions;
class Tools;
class UndoHistory;
enum class UndoMode;

class UndoCommands {
 public:
  UndoCommands(const Context& context, EditingArea& editingArea, UndoHistory& history, Regions& regions, Tools& tools);

  // mnuEditSub(1), (0) and (2). They do nothing when there is no step.
  void doUndo();
  void doUndoAll();
  void doRedo();

 private:
  void endToolAction();
  void restore(UndoMode mode, const char* news);

  Context context_;
  EditingArea& editingArea_;
  UndoHistory& history_;
  Regions& regions_;
  Tools& tools_;
};

}  // namespace gp
