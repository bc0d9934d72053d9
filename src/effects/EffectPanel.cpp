#include "effects/EffectPanel.h"

#include "document/Announcements.h"
#include "document/Compositing.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "drawing/UndoHistory.h"

namespace gp {

void EffectPanel::open(const EffectRow& /*effect*/) {
  if (frame_.mayApply()) show();
}

void EffectPanel::show() {
  // The settings decide which control takes the focus.
  frame_.context().display.changed(DisplayPart::SidePanel);
  frame_.context().editor.showPanel(number_);
  preview();
}

void EffectPanel::preview() {
  if (!frame_.isUp(number_)) return;
  {
    const Hourglass hourglass(frame_.context());
    picture_ = frame_.hasIcon() ? apply(frame_.currentIcon()) : IconImage{};
    sample_ = composedIcon(picture_.image, picture_.mask);
    drawSamples();
  }
  frame_.context().display.changed(DisplayPart::SidePanel);
}

void EffectPanel::commit() { frame_.applyTemps(apply(frame_.currentIcon())); }

void EffectPanel::proceed() {
  if (!mayProceed()) return;
  {
    const Hourglass hourglass(frame_.context());
    frame_.document().iconsPanel.EndToolAction();
    commit();
  }
  finish();
}

void EffectPanel::finish() {
  frame_.context().display.announce(news::kApplied);
  // Recording pumps messages, so it comes after the panel is closed.
  frame_.history().recordUndo();
}

}  // namespace gp
