#include "document/ui/ZoomKeys.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace gp {
namespace {

struct ZoomKey {
  int key;
  ZoomStep step;
};

constexpr std::array<ZoomKey, 4> kZoomKeys = {{{Qt::Key_Plus, ZoomStep::In},
                                               {Qt::Key_Equal, ZoomStep::In},
                                               {Qt::Key_Minus, ZoomStep::Out},
                                               {Qt::Key_0, ZoomStep::ToOption}}};

}  // namespace

std::optional<ZoomStep> zoomStepOf(const QKeyEvent& event) {
  // Many keyboards have plus, and some have 0, only with Shift.
  if ((event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != Qt::ControlModifier) return std::nullopt;
  const auto* const found = std::ranges::find(kZoomKeys, event.key(), &ZoomKey::key);
  return found == kZoomKeys.end() ? std::nullopt : std::optional(found->step);
}

}  // namespace gp
