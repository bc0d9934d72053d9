#include "effects/EffectFrame.h"

#include "document/Hourglass.h"
#include "document/Messages.h"
#include "document/PanelNumbers.h"
#include "effects/EffectTexts.h"
#include "platform/gdi/SurfaceOps.h"

#include <cstdint>
#include <set>

namespace gp {

EffectFrame::EffectFrame(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, MessagePump& pump)
    : state_(state), editor_(editor), display_(display), boxes_(boxes), pump_(pump) {}

bool EffectFrame::mayApply() {
  const IconContainerRec& record = state_.current();
  if (!record.present) {
    tellNoIconYet(boxes_);
    return false;
  }
  if (record.hasAlpha) boxes_.tell(kIconIsWithAlpha);
  return !record.hasAlpha;
}

void EffectFrame::applyTemps(const IconPicture& result) {
  BitbltPic(result.image, state_.picImage);
  BitbltPic(result.mask, state_.picMask);
  copyPanelAfterApply();
}

void EffectFrame::copyPanelAfterApply() {
  // First of all: a Panel that is up follows the icon with its samples.
  editor_.showPanel(kColorPanel);
  state_.current().modified = true;
  editor_.ComposeCurrentIcon();
  editor_.UpdatePanelFromCurrent();
  editor_.RefreshStatusBar();
  editor_.MagnifyIcon();
}

int EffectFrame::countMaskColors(const Surface& surface) {
  const Hourglass hourglass(state_, display_);
  std::set<std::uint32_t> colors;
  for (const std::uint32_t pixel : surface.pixels()) colors.insert(pixel & kColorBits);
  return static_cast<int>(colors.size());
}

}  // namespace gp
