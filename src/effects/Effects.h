// The whole room at work: makes the Panels of the effects, opens each by its command, and holds them for the shell. It
// decides nothing.
#pragma once

#include "effects/EffectFrame.h"
#include "effects/EffectPanel.h"

#include <memory>
#include <vector>

namespace gp {

class Effects {
 public:
  Effects(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, MessagePump& pump);

  // Whether an index of the Effects menu stands for an effect.
  bool has(int command) const;
  // The Effects menu by its index; nothing for an index without an effect.
  void mnuEffectsSub(int index);
  // Proceed of the Panel of that number; nothing if it is not one of an effect.
  void proceed(int number);

  // A Panel by its class, which is in the table.
  template <class Panel>
  Panel& panel() const {
    return static_cast<Panel&>(*find(Panel::kNumber));
  }

 private:
  EffectPanel* find(int number) const;

  EffectFrame frame_;
  std::vector<std::unique_ptr<EffectPanel>> panels_;
};

}  // namespace gp
