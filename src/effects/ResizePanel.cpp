#include "effects/ResizePanel.h"

#include "document/Announcements.h"
#include "document/Compositing.h"
#include "document/CurrentIconGuard.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/PanelNumbers.h"
#include "effects/EffectTable.h"
#include "effects/Resize.h"
#include "files/format/IconFile.h"

#include <algorithm>

namespace gp {
namespace {

constexpr std::array kLarger{24, 32, 48};   // mnuEffectsSub1
constexpr std::array kSmaller{32, 24, 16};  // mnuEffectsSub2
constexpr int kSoftened = 0;

struct DirectionTexts {
  const char* verb;
  const char* done;
  const char* otherSizes;
};
constexpr DirectionTexts kTexts[] = {
    {"Expand", "Expanded from ",
     "Current icon originates from a multi-icon file which has\n"
     "already had alternative size(s).  If you wish to expand the\n"
     "current one, save it as a single-icon file first."},
    {"Shrink", "Shrunk from ",
     "Current icon originates from a multi-icon file which has\n"
     "already had alternative size(s).  If you wish to shrink the\n"
     "current one, save it as a single-icon file first."},
};

const DirectionTexts& textsOf(auto direction) { return kTexts[static_cast<std::size_t>(direction)]; }

bool isSame(const Surface& a, const Surface& b) { return std::ranges::equal(a.pixels(), b.pixels()); }

std::string product(int size, const char* times) { return std::to_string(size) + times + std::to_string(size); }

}  // namespace

void ResizePanel::expandTo(int index) { openFor(Direction::Expand, kLarger.at(static_cast<std::size_t>(index))); }
void ResizePanel::shrinkTo(int index) { openFor(Direction::Shrink, kSmaller.at(static_cast<std::size_t>(index))); }

std::string ResizePanel::caption() const {
  return std::string(textsOf(direction_).verb) + " size to " + product(mResizeTo_, " x ");
}

void ResizePanel::openFor(Direction direction, int size) {
  if (!mayResize(direction, size) || !mayIconGo()) return;
  direction_ = direction;
  mResizeTo_ = size;
  show();
}

bool ResizePanel::mayResize(Direction direction, int size) {
  const IconContainerRec& record = frame().state().current();
  const bool isSuitable = record.present && (direction == Direction::Expand ? record.size < size : record.size > size);
  if (!isSuitable) {
    frame().tell(kNotOfSuitableSize);
    return false;
  }
  if (!frame().mayApply()) return false;
  if (!fileHasOtherSizes()) return true;
  frame().tell({textsOf(direction).otherSizes});
  return false;
}

// By the directory, so that a file counts too that is shorter than its directory states. One that cannot be read holds
// no other size.
bool ResizePanel::fileHasOtherSizes() const {
  const IconContainerRec& record = frame().state().current();
  if (!record.fromMultiIconFile) return false;
  const auto file = readIconFile(record.path.trimmed());
  return file && file->isIcon() && std::ranges::any_of(file->directory.entries, [&record](const IconEntry& entry) {
           return entry.width != record.size || entry.height != record.size;
         });
}

bool ResizePanel::mayIconGo() {
  const EditState& state = frame().state();
  const bool isAgreed =
      agreedSerial_ == state.iconSerial && isSame(agreed_.image, state.picImage) && isSame(agreed_.mask, state.picMask);
  if (isAgreed && frame().isUp(kNumber)) return true;
  if (!mayCurrentIconGo(frame().context())) return false;
  agreed_ = frame().currentIcon();
  agreedSerial_ = state.iconSerial;
  return true;
}

void ResizePanel::pickOption(int index) {
  if (index < 0 || index >= kOptions) return;
  option_ = index;
  preview();
}

IconImage ResizePanel::apply(const IconImage& icon) const {
  return resizedIcon(icon, mResizeTo_, option_ == kSoftened);
}

void ResizePanel::drawSamples() {
  for (int i = 0; i < kOptions; ++i) {
    IconImage resized;
    if (frame().hasIcon()) resized = resizedIcon(frame().currentIcon(), mResizeTo_, i == kSoftened);
    picResizeIcon_.at(static_cast<std::size_t>(i)) = composedIcon(resized.image, resized.mask);
  }
}

// The icon may be another one than the panel was opened for, or changed since.
bool ResizePanel::mayProceed() { return mayResize(direction_, mResizeTo_) && mayIconGo(); }

void ResizePanel::finish() { frame().context().display.announce(news::kApplied); }

void ResizePanel::commit() {
  EditState& state = frame().state();
  const int oldSize = state.current().size;
  const IconImage resized = apply(frame().currentIcon());
  IconContainerRec record = recordOfResized(state.current(), resized);
  record.modified = true;
  frame().context().editor.showPanel(kColorPanel);
  const unsigned serial = state.iconSerial;
  frame().document().arrival.arrive(resized, record);
  // The arrival lets events in, which may have brought another icon.
  if (state.iconSerial != serial + 1) return;
  state.screen.lblStatusPanel.at(static_cast<std::size_t>(StatusPanel::Path)) =
      textsOf(direction_).done + product(oldSize, "x");
  frame().context().display.changed(DisplayPart::StatusBar);
}

}  // namespace gp
