// The Undo, Redo and Undo All commands. They end a region or Shift before a step and update the Editing Area after it.
#pragma once

#include "document/Context.h"

namespace gp {

class EditingArea;
class Regions;
class Tools;
class UndoHistory;

class UndoCommands {
 public:
  UndoCommands(const Context& context, EditingArea& editingArea, UndoHistory& history, Regions& regions, Tools& tools);

  // mnuEditSub(1), (0) and (2). They do nothing when there is no step.
  void doUndo();
  void doUndoAll();
  void doRedo();

 private:
  Context context_;
  EditingArea& editingArea_;
  UndoHistory& history_;
  Regions& regions_;
  Tools& tools_;
};

}  // namespace gp
