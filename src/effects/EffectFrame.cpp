#include "effects/EffectFrame.h"

#include "colour/ColorCount.h"
#include "document/CurrentIcon.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "document/Messages.h"
#include "document/PanelNumbers.h"
#include "effects/EffectTable.h"
#include "effects/EffectTexts.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {

EffectFrame::EffectFrame(const Context& context, Document& document, UndoHistory& history)
    : context_(context), state_(context.state), document_(document), history_(history) {}

bool EffectFrame::isUp(int panel) const { return state_.screen.mActivePanel == panel; }

bool EffectFrame::mayApply() {
  const IconContainerRec& record = state_.current();
  if (!record.present) {
    context_.boxes.tell(kNoIconYet);
    return false;
  }
  if (record.hasAlpha) context_.boxes.tell(kIconIsWithAlpha);
  return !record.hasAlpha;
}

bool EffectFrame::mayApply(const EffectRow& effect, const EffectValues& values) {
  if (!mayApply()) return false;
  const Refusal refusal = refusalOf(effect, currentIcon(), values);
  if (refusal.text) tell(refusal);
  return !refusal.text;
}

void EffectFrame::tell(const Refusal& refusal) { context_.boxes.tell(refusal.text, refusal.icon); }

bool EffectFrame::hasIcon() const { return state_.current().present; }

IconImage EffectFrame::currentIcon() const { return gp::currentIcon(state_); }

void EffectFrame::applyTemps(const IconImage& result) {
  replacePixels(state_, result);
  copyPanelAfterApply();
}

void EffectFrame::copyPanelAfterApply() {
  // First, because a visible panel makes new samples whenever the icon changes.
  context_.editor.showPanel(kColorPanel);
  state_.current().modified = true;
  document_.editingArea.ComposeCurrentIcon();
  document_.editingArea.UpdatePanelFromCurrent();
  document_.editingArea.RefreshStatusBar();
  document_.editingArea.MagnifyIcon();
}

int EffectFrame::countMaskColors(const Surface& surface) {
  const Hourglass hourglass(context_);
  return CountColors(surface);
}

}  // namespace gp
