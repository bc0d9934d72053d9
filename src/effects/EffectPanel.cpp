#include "effects/EffectPanel.h"

#include "document/Compositing.h"
#include "document/Hourglass.h"

namespace gp {

void EffectPanel::open(int) {
  if (frame_.mayApply()) show();
}

void EffectPanel::show() {
  // Which control takes the focus depends on the settings.
  if (onChange) onChange();
  frame_.editor().showPanel(number_);
  preview();
}

void EffectPanel::preview() {
  const EditState& state = frame_.state();
  if (!frame_.isUp(number_)) return;
  {
    const Hourglass hourglass(frame_.state(), frame_.display());
    picture_ = state.current().present ? apply(state.picImage, state.picMask) : IconPicture{};
    sample_ = composedIcon(picture_.image, picture_.mask);
  }
  if (onChange) onChange();
}

void EffectPanel::proceed() {
  if (!mayProceed()) return;
  EditState& state = frame_.state();
  Editor& editor = frame_.editor();
  {
    const Hourglass hourglass(state, frame_.display());
    editor.EndToolAction();
    frame_.applyTemps(apply(state.picImage, state.picMask));
  }
  // It pumps messages, and so comes when the Panel can no longer be used.
  if (!isStep()) editor.clearUndoHistory();
  editor.recordUndo();
}

}  // namespace gp
