// The face of the room: makes the panels of the effects, opens each by its command, and hands them to the rooms to the
// right. It decides nothing.
#pragma once

#include "effects/EffectFrame.h"
#include "effects/EffectPanel.h"

#include <memory>
#include <vector>

namespace gp {

class Effects {
 public:
  Effects(const Context& context, Document& document, UndoHistory& history);

  // Whether an index of the Effects menu stands for an effect.
  bool has(int command) const;
  // Opens the panel of the effect that an index of the Effects menu stands for; nothing for another index.
  void open(int command);
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
