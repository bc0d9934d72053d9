// Shows the hourglass pointer for the lifetime of this object, then restores the former one, so that uses can be
// nested.
#pragma once

#include "document/Display.h"
#include "document/EditState.h"

#include <utility>

namespace gp {

class Hourglass {
 public:
  Hourglass(EditState& state, Display& display)
      : state_(state), display_(display), before_(std::exchange(state.screen.hourglass, true)) {
    display_.changed(DisplayPart::Pointer);
  }
  ~Hourglass() {
    state_.screen.hourglass = before_;
    display_.changed(DisplayPart::Pointer);
  }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  EditState& state_;
  Display& display_;
  const bool before_;
};

}  // namespace gp
