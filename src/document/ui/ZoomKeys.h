// The keys that zoom the Editing Area: Ctrl with plus, equals, minus and 0, also on the number pad.
#pragma once

#include "document/Zoom.h"

#include <functional>

class QWidget;

namespace gp {

// Calls `zoom` at each of the keys, whichever control of the window has the focus, for as long as the window lives.
void addZoomKeys(QWidget* window, const std::function<void(ZoomStep)>& zoom);

}  // namespace gp
