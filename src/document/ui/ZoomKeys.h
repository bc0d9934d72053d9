// The keys that zoom the Editing Area: Ctrl with plus, equals, minus and 0, also on the number pad.
#pragma once

#include "document/Zoom.h"

#include <optional>

class QKeyEvent;

namespace gp {

// Returns the step of a key, nothing for any other key.
std::optional<ZoomStep> zoomStepOf(const QKeyEvent& event);

}  // namespace gp
