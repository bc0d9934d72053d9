#include "drawing/ContainerCopies.h"

#include "document/Messages.h"
#include "platform/gdi/SurfaceOps.h"

#include <string>

namespace gp {

namespace {

constexpr const char* kNotAllowed = "\nduplication to another container not allowed.";

// A copy of a record, without the container's own number.
void copyRecord(const IconContainerRec& source, IconContainerRec& target) {
  const std::int16_t seq = target.seq;
  target = source;
  target.seq = seq;
  target.neverSaved = true;
}

// Why an icon may not be copied; empty when it may.
std::string refusal(const IconContainerRec& record, const std::string& icon) {
  if (record.fromMultiIconFile) return icon + " originates from a multi-icon file," + kNotAllowed;
  if (record.hasAlpha) return icon + " is with alpha channel," + kNotAllowed;
  return {};
}

}  // namespace

ContainerCopies::ContainerCopies(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes,
                                 Regions& regions)
    : state_(state), editor_(editor), display_(display), boxes_(boxes), regions_(regions) {}

bool ContainerCopies::mayCopyTo(int target) {
  if (!state_.current().present) {
    tellNoIconYet(boxes_);
    return false;
  }
  if (target == state_.mCurContainer) {
    boxes_.tell("Cannot copy to current container itself");
    return false;
  }
  if (const std::string text = refusal(state_.current(), "Current icon"); !text.empty()) {
    boxes_.tell(text);
    return false;
  }
  const IconContainerRec& record = state_.mIconRecs.at(static_cast<std::size_t>(target));
  if (record.used && (record.modified || record.neverSaved) &&
      !boxes_.ask("You have not saved the icon in target container yet.  Proceed still?\n"))
    return false;
  return boxes_.ask("Copy current icon to Container " + std::to_string(target + 1) + ".  Proceed?\n");
}

void ContainerCopies::mnuEditSubCopyToContainer(int target) {
  if (!mayCopyTo(target)) return;
  regions_.finishDrag();
  const int current = state_.mCurContainer;
  copyRecord(state_.current(), state_.mIconRecs.at(static_cast<std::size_t>(target)));
  state_.mAlphaRecs.at(static_cast<std::size_t>(target)) = AlphaMatrix();
  // The panel takes the icon over as that of the container which is current.
  state_.mCurContainer = target;
  editor_.UpdatePanelFromCurrent();
  state_.mCurContainer = current;
  display_.changed(DisplayPart::IconsPanel);
  editor_.UpdateCommands();
}

bool ContainerCopies::mayCopyFrom(int source) {
  const IconContainerRec& record = state_.mIconRecs.at(static_cast<std::size_t>(source));
  if (!record.used) {
    boxes_.tell("Cannot copy from empty container");
    return false;
  }
  if (const std::string text = refusal(record, "Icon in source container"); !text.empty()) {
    boxes_.tell(text);
    return false;
  }
  return boxes_.ask("Copy from Container " + std::to_string(source + 1) + " to current container.  Proceed?");
}

void ContainerCopies::mnuEditSubCopyFromContainer(int source) {
  if (!mayCopyFrom(source)) return;
  regions_.clearRegion();
  const auto from = static_cast<std::size_t>(source);
  // Copies: sizing the current container's Surfaces would empty them when it is its own source.
  const Surface image = state_.picPanelImage.at(from);
  const Surface mask = state_.picPanelMask.at(from);
  const IconContainerRec record = state_.mIconRecs.at(from);
  copyRecord(record, state_.current());
  state_.mAlphaRecs.at(static_cast<std::size_t>(state_.mCurContainer)) = AlphaMatrix();
  state_.gAlphaValues = AlphaMatrix();
  editor_.SizePanelSurfaces(record.size);
  editor_.SizeEditSurfaces(record.size);
  BitbltPic(image, state_.picImage);
  BitbltPic(mask, state_.picMask);
  editor_.UpdatePanelFromCurrent();
  editor_.ComposeCurrentIcon();
  editor_.ShowCurrentIcon();
  editor_.chooseColorChart();
  editor_.clearUndoHistory();
  editor_.recordUndo();
}

void ContainerCopies::doClearContainer() {
  if (!state_.current().used && !state_.current().present) {
    tellNoIconYet(boxes_);
    return;
  }
  bool proceed = true;
  if (state_.IsIconChanged()) editor_.AskSaveCurrent("", proceed);
  if (!proceed || !boxes_.ask("Clear current icon from container.  Proceed?\n")) return;
  regions_.clearRegion();
  editor_.ClearContainer();
  // Showing a container that is empty resets its Surfaces.
  editor_.SwitchContainer(state_.mCurContainer);
}

}  // namespace gp
