// The whole room at work: makes the Panels of the effects, opens each by its command, and holds them for the shell. It
// decides nothing.
#pragma once

#include "effects/ButtonizePanel.h"
#include "effects/ConfinePanel.h"
#include "effects/DisabledImagePanel.h"
#include "effects/EffectFrame.h"
#include "effects/ShadesPanel.h"

namespace gp {

class Effects {
 public:
  Effects(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, MessagePump& pump);

  // The Effects menu by its index; nothing for an index without an effect.
  void mnuEffectsSub(int index);

 private:
  EffectFrame frame_;

 public:
  ShadesPanel shades{frame_};
  ButtonizePanel buttonize{frame_};
  DisabledImagePanel disabledImage{frame_};
  ConfinePanel confine{frame_};
};

}  // namespace gp
