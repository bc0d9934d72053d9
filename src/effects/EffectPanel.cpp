#include "effects/EffectPanel.h"

#include "document/Compositing.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "drawing/UndoHistory.h"

namespace gp {

void EffectPanel::open(int) {
  if (frame_.mayApply()) show();
}

void EffectPanel::show() {
  // Which control takes the focus depends on the settings.
  if (onChange) onChange();
  frame_.context().editor.showPanel(number_);
  preview();
}

void EffectPanel::preview() {
  const EditState& state = frame_.state();
  if (!frame_.isUp(number_)) return;
  {
    const Hourglass hourglass(frame_.context());
    picture_ = state.current().present ? apply(state.picImage, state.picMask) : IconImage{};
    sample_ = composedIcon(picture_.image, picture_.mask);
  }
  if (onChange) onChange();
}

void EffectPanel::proceed() {
  if (!mayProceed()) return;
  EditState& state = frame_.state();
  {
    const Hourglass hourglass(frame_.context());
    frame_.document().iconsPanel.EndToolAction();
    frame_.applyTemps(apply(state.picImage, state.picMask));
  }
  // It pumps messages, and so comes when the Panel can no longer be used.
  if (!isStep()) frame_.history().clearUndoHistory();
  frame_.history().recordUndo();
}

}  // namespace gp
