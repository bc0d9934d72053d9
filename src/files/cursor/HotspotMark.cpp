#include "files/cursor/HotspotMark.h"

#include "document/EditState.h"
#include "document/EditingArea.h"
#include "platform/ports/MessagePump.h"
#include "platform/scope/FlagFor.h"

namespace gp {
namespace {

constexpr int kPhases = 2 * 3;  // three times red and white
constexpr int kPhaseMilliseconds = 150;
constexpr Color kRed = 0x0000FF;

}  // namespace

HotspotMark::HotspotMark(const Context& context, EditingArea& editingArea)
    : context_(context), state_(context.state), editingArea_(editingArea) {}

void HotspotMark::FlashHotspot(int x, int y) {
  if (mHotspotFlashing_ || !state_.picImage.contains(x, y)) return;
  const FlagFor flashing(mHotspotFlashing_);
  const unsigned icon = state_.iconSerial;
  cancelled_ = false;
  for (int phase = 0; phase < kPhases && !cancelled_ && state_.iconSerial == icon; ++phase) {
    showMark(x, y, phase % 2 == 0 ? kRed : kWhite);
    context_.pump.wait(kPhaseMilliseconds);
  }
  if (state_.current().present) editingArea_.showChangedIcon();
}

// Restores the icon before any other code can read it, including PicIcon, from which the Editing Area is restored.
void HotspotMark::showMark(int x, int y, Color color) {
  const Color image = state_.picImage.GetPixel(x, y);
  const Color mask = state_.picMask.GetPixel(x, y);
  state_.picImage.SetPixelV(x, y, color);
  state_.picMask.SetPixelV(x, y, kBlack);
  editingArea_.showChangedIcon();
  state_.picImage.SetPixelV(x, y, image);
  state_.picMask.SetPixelV(x, y, mask);
  editingArea_.ComposeCurrentIcon();
}

}  // namespace gp
