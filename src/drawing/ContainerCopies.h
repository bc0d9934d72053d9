// Copying an icon to or from another container, and clearing a container: commands of the Edit menu. Icons from files
// with several icons and icons with alpha cannot be copied.
#pragma once

#include "document/Context.h"

namespace gp {

class Regions;
struct Document;

class ContainerCopies {
 public:
  ContainerCopies(const Context& context, Document& document, Regions& regions);

  // Replaces the icon of another container, 0 to 5, with the current one, which counts as never saved there.
  void mnuEditSubCopyToContainer(int target);
  // Replaces the current icon with that of a container, 0 to 5; Undo starts again.
  void mnuEditSubCopyFromContainer(int source);
  // mnuEditSub(13): empties the current container after asking the user.
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
