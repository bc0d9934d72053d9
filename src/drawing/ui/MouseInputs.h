// Mouse events as the drawing tools read them.
#pragma once

#include "drawing/Tools.h"

#include <QPointF>

namespace gp {

// Returns the input at a position in Editing Area pixels. The button is one of left, right and middle, or NoButton for
// a movement.
MouseInput mouseInput(QPointF position, Qt::KeyboardModifiers modifiers, Qt::MouseButton button, bool byKeyboard);

}  // namespace gp
