#include "files/HotspotMark.h"

#include "platform/scope/FlagFor.h"

namespace gp {
namespace {

constexpr int kPhases = 2 * 3;  // three times red and white
constexpr int kPhaseMilliseconds = 150;
constexpr Color kRed = 0x0000FF;

}  // namespace

ShownIcon shownIcon(const EditState& state) {
  const IconContainerRec& record = state.current();
  return {state.mCurContainer, record.size, record.present, record.path.trimmed(), record.multiIconIndex};
}

HotspotMark::HotspotMark(EditState& state, Editor& editor, MessagePump& pump)
    : state_(state), editor_(editor), pump_(pump) {}

void HotspotMark::FlashHotspot(int x, int y) {
  if (mHotspotFlashing_ || !state_.picImage.contains(x, y)) return;
  const FlagFor flashing(mHotspotFlashing_);
  const ShownIcon before = shownIcon(state_);
  cancelled_ = false;
  for (int phase = 0; phase < kPhases && !cancelled_ && shownIcon(state_) == before; ++phase) {
    showMark(x, y, phase % 2 == 0 ? kRed : kWhite);
    pump_.wait(kPhaseMilliseconds);
  }
  if (!state_.current().present) return;
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
}

// The icon is true again before anybody else comes to see it: PicIcon and what clearing would bring back, too.
void HotspotMark::showMark(int x, int y, Color color) {
  const Color image = state_.picImage.GetPixel(x, y);
  const Color mask = state_.picMask.GetPixel(x, y);
  state_.picImage.SetPixelV(x, y, color);
  state_.picMask.SetPixelV(x, y, kBlack);
  editor_.ComposeCurrentIcon();
  editor_.MagnifyIcon();
  state_.picImage.SetPixelV(x, y, image);
  state_.picMask.SetPixelV(x, y, mask);
  editor_.ComposeCurrentIcon();
}

}  // namespace gp
