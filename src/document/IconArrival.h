// The only way in which an icon becomes the Current Icon: a new icon, a paste into an empty container, a copy from
// another container, a loaded file, the switch to another container. Replaces the record, the container's Surfaces and
// alpha values, then shows the icon, selects its colour chart and starts the Undo history.
#pragma once

#include "document/Context.h"
#include "document/IconContainerRec.h"
#include "document/IconImage.h"

namespace gp {

class EditingArea;

class IconArrival {
 public:
  IconArrival(const Context& context, EditingArea& editingArea);

  // Replaces the current container's icon and shows the new one. `record` describes it; its number, `used` and `size`
  // are set here. The icon must have one of the icon sizes. Processes events as the last step.
  void arrive(const IconImage& icon, const IconContainerRec& record);
  // Stores the icon in a container without showing it. The record is set as for arrive().
  void fillContainer(int container, const IconImage& icon, const IconContainerRec& record);
  // Shows the icon stored in the current container. Processes events as the last step.
  void showCurrentContainer();
  // True while the Editing Area shows another icon than that of the current container.
  bool displayWaits() const { return displayWaits_; }
  void setDisplayWaits(bool waits) { displayWaits_ = waits; }

 private:
  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  bool displayWaits_ = false;
};

}  // namespace gp
