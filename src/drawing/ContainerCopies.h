// Copying an icon from one container to another, and clearing a container: commands of the Edit menu. Only icons that
// are whole in one container may be copied: not those of a file with several icons, and not those with alpha.
#pragma once

#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "drawing/Regions.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {

class ContainerCopies {
 public:
  ContainerCopies(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, Regions& regions);

  // The current icon replaces that of another container, 0 to 5, and counts as never saved there.
  void mnuEditSubCopyToContainer(int target);
  // The icon that a container holds, 0 to 5, replaces the current one; a new baseline of Undo.
  void mnuEditSubCopyFromContainer(int source);
  // mnuEditSub(13): empties the current container, after asking.
  void doClearContainer();

 private:
  bool mayCopyTo(int target);
  bool mayCopyFrom(int source);
  void showCopied(int size);

  EditState& state_;
  Editor& editor_;
  Display& display_;
  MessageBoxes& boxes_;
  Regions& regions_;
};

}  // namespace gp
