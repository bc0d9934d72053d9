#include "drawing/ContainerCopies.h"

#include "document/Announcements.h"
#include "document/Containers.h"
#include "document/CurrentIconGuard.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "drawing/Regions.h"
#include "platform/ports/MessageBoxes.h"

#include <string>

namespace gp {

namespace {

constexpr const char* kNotAllowed = "\nduplication to another container not allowed.";

IconContainerRec copyOf(const IconContainerRec& source) {
  IconContainerRec record = source;
  record.neverSaved = true;
  return record;
}

// Returns the message that refuses to copy an icon, empty when it can be copied.
std::string refusal(const IconContainerRec& record, const std::string& icon) {
  if (record.fromMultiIconFile) return icon + " originates from a multi-icon file," + kNotAllowed;
  if (record.hasAlpha) return icon + " is with alpha channel," + kNotAllowed;
  return {};
}

}  // namespace

ContainerCopies::ContainerCopies(const Context& context, Document& document, Regions& regions)
    : context_(context), state_(context.state), document_(document), regions_(regions) {}

bool ContainerCopies::mayCopyTo(int target) {
  if (const std::string text = refusal(state_.current(), "Current icon"); !text.empty()) {
    context_.boxes.tell(text);
    return false;
  }
  const IconContainerRec& record = state_.mIconRecs.at(static_cast<std::size_t>(target));
  if (record.used && (record.modified || record.neverSaved) &&
      !context_.boxes.ask("You have not saved the icon in target container yet.  Proceed still?\n"))
    return false;
  return context_.boxes.ask("Copy current icon to Container " + std::to_string(target + 1) + ".  Proceed?\n");
}

void ContainerCopies::mnuEditSubCopyToContainer(int target) {
  if (!mayCopyTo(target)) return;
  regions_.finishDrag();
  document_.arrival.fillContainer(target, {state_.picImage, state_.picMask, {}}, copyOf(state_.current()));
  context_.editor.UpdateCommands();
  context_.display.announce(news::kCopied);
}

bool ContainerCopies::mayCopyFrom(int source) {
  const IconContainerRec& record = state_.mIconRecs.at(static_cast<std::size_t>(source));
  if (const std::string text = refusal(record, "Icon in source container"); !text.empty()) {
    context_.boxes.tell(text);
    return false;
  }
  return context_.boxes.ask("Copy from Container " + std::to_string(source + 1) + " to current container.  Proceed?");
}

void ContainerCopies::mnuEditSubCopyFromContainer(int source) {
  if (!mayCopyFrom(source)) return;
  const auto from = static_cast<std::size_t>(source);
  const IconImage icon{state_.picPanelImage.at(from), state_.picPanelMask.at(from), {}};
  document_.arrival.arrive(icon, copyOf(state_.mIconRecs.at(from)));
  context_.display.announce(news::kCopied);
}

void ContainerCopies::doClearContainer() {
  if (!mayCurrentIconGo(context_) || !context_.boxes.ask("Clear current icon from container.  Proceed?\n")) return;
  regions_.clearRegion();
  ClearContainer(state_);
  // Switching to an empty container resets its Surfaces.
  document_.iconsPanel.SwitchContainer(state_.mCurContainer);
}

}  // namespace gp
