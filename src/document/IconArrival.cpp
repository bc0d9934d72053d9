#include "document/IconArrival.h"

#include "document/Containers.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "platform/gdi/SurfaceOps.h"

namespace gp {

IconArrival::IconArrival(const Context& context, EditingArea& editingArea)
    : context_(context), state_(context.state), editingArea_(editingArea) {}

void IconArrival::arrive(const IconImage& icon, const IconContainerRec& record) {
  fillContainer(state_.mCurContainer, icon, record);
  showCurrentContainer();
}

void IconArrival::fillContainer(int container, const IconImage& icon, const IconContainerRec& record) {
  SetRecord(state_, container, icon, record);
  editingArea_.storeInContainer(container, icon);
}

void IconArrival::showCurrentContainer() {
  Editor& editor = context_.editor;
  const auto container = static_cast<std::size_t>(state_.mCurContainer);
  // The region of the former icon must end before the Surfaces change.
  editor.clearRegion();
  displayWaits_ = false;
  ++state_.iconSerial;
  editingArea_.SizeEditSurfaces(state_.current().size);
  BitbltPic(state_.picPanelImage.at(container), state_.picImage);
  BitbltPic(state_.picPanelMask.at(container), state_.picMask);
  // Whatever brought the icon has ended; alpha values are taken over only for an icon that is there.
  state_.current().present = true;
  LoadAlphaFromRec(state_);
  editingArea_.ComposeCurrentIcon();
  // Views that follow the Current Icon have not been notified since it changed.
  context_.display.changed(DisplayPart::IconsPanel);
  editingArea_.ShowCurrentIcon();
  editor.chooseColorChart();
  editor.clearUndoHistory();
  editor.recordUndo();
}

}  // namespace gp
