// What all Panels share that change the Current Icon by an effect: whether it takes one, the Panel's coming and going,
// and putting a result in the icon's place. Nothing touches the icon before that.
#pragma once

#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "effects/IconPicture.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"

namespace gp {

class EffectFrame {
 public:
  EffectFrame(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, MessagePump& pump);

  // Whether an effect may change the Current Icon; if not, says why: there is none, or it has alpha values, which would
  // no longer fit its pixels.
  bool mayApply();
  bool isUp(int panel) const { return state_.screen.mActivePanel == panel; }

  // The result becomes the Current Icon, and the Panel closes. Records no step of Undo.
  void applyTemps(const IconPicture& result);
  // The same where picImage alone has been given its new pixels.
  void copyPanelAfterApply();

  // How many colours a Surface has; 0 without pixels. Effects on the unpainted area ask it of the Mask, which is all
  // painted or all transparent when it has one.
  int countMaskColors(const Surface& surface);

  EditState& state() const { return state_; }
  Editor& editor() const { return editor_; }
  Display& display() const { return display_; }
  MessageBoxes& boxes() const { return boxes_; }
  MessagePump& pump() const { return pump_; }

 private:
  EditState& state_;
  Editor& editor_;
  Display& display_;
  MessageBoxes& boxes_;
  MessagePump& pump_;
};

}  // namespace gp
