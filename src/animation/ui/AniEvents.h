// What the widgets of the pane need to forward their events.
#pragma once

#include "animation/AniSession.h"

#include <functional>
#include <string>

namespace gp {

struct AniEvents {
  AniSession& session;
  // Runs a handler, and reports its exceptions as run-time errors under the name of the event.
  std::function<void(const char* event, const std::function<void()>& handler)> guarded;
  // Shows a short text in the status bar, and has it spoken.
  std::function<void(const std::string& text)> announce;

  // A click on cmdANI(button), or a key that does the same; nothing while the button is disabled.
  void press(int button) const {
    if (session.isEnabled(button)) guarded("cmdANI_Click", [this, button] { session.cmdANI(button); });
  }
};

}  // namespace gp
