// The one way in which an icon becomes the Current Icon: a new icon, a paste into an empty container, a copy from
// another container, a loaded file, the switch to another container. It replaces the record, the container's Surfaces
// and alpha values, then shows the icon, chooses the colour chart that fits it and starts the Undo history.
#pragma once

#include "document/Context.h"
#include "document/IconContainerRec.h"
#include "document/IconImage.h"

namespace gp {

class EditingArea;

class IconArrival {
 public:
  IconArrival(const Context& context, EditingArea& editingArea);

  // The icon replaces what the current container holds and is shown. `record` describes it: its number, `used`,
  // `present` and `size` are set here. The icon must have one of the icon sizes. Pumps messages last.
  void arrive(const IconImage& icon, const IconContainerRec& record);
  // Stores the icon in a container without showing it. `present` is taken from the record.
  void fillContainer(int container, const IconImage& icon, const IconContainerRec& record);
  // Shows the icon that the current container holds, as it was stored. Pumps messages last.
  void showCurrentContainer();

 private:
  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
};

}  // namespace gp
