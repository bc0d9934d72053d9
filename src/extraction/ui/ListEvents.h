// What the widgets of the Icons List need to forward their events.
#pragma once

#include "extraction/IconsList.h"

#include <functional>

namespace gp {

struct ListEvents {
  IconsList& list;
  // Runs a handler, and reports its exceptions as run-time errors under the name of the event.
  std::function<void(const char* event, const std::function<void()>& handler)> guarded;
};

}  // namespace gp
