#include "drawing/ui/MouseInputs.h"

namespace gp {
namespace {

int modifierBits(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? kShiftKey : 0) | (modifiers & Qt::ControlModifier ? kCtrlKey : 0) |
         (modifiers & Qt::AltModifier ? kAltKey : 0);
}

}  // namespace

static_assert(Qt::LeftButton == kLeftButton && Qt::RightButton == kRightButton);

MouseInput mouseInput(QPointF position, Qt::KeyboardModifiers modifiers, Qt::MouseButton button, bool byKeyboard) {
  return {static_cast<int>(button), modifierBits(modifiers), static_cast<float>(position.x()),
          static_cast<float>(position.y()), byKeyboard};
}

}  // namespace gp
