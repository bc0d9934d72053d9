// Copying an icon from one container to another, and clearing a container: commands of the Edit menu. Only icons that
// are whole in one container may be copied: not those of a file with several icons, and not those with alpha.
#pragma once

#include "document/Context.h"

namespace gp {

class Regions;
struct Document;

class ContainerCopies {
 public:
  ContainerCopies(const Context& context, Document& document, Regions& regions);

  // The current icon replaces that of another container, 0 to 5, and counts as never saved there.
  void mnuEditSubCopyToContainer(int target);
  // The icon that a container holds, 0 to 5, replaces the current one; a new baseline of Undo.
  void mnuEditSubCopyFromContainer(int source);
  // mnuEditSub(13): empties the current container, after asking.
  void doClearContainer();

 private:
  bool mayCopyTo(int target);
  bool mayCopyFrom(int source);

  Context context_;
  EditState& state_;
  Document& document_;
  Regions& regions_;
};

}  // namespace gp
