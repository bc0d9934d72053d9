#include "document/ui/PixelCursor.h"

#include <Qt>

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr int kFar = 1 << 16;  // beyond any icon or chart

struct Move {
  int key;
  QPoint step;
};

constexpr std::array<Move, 8> kMoves = {{{Qt::Key_Left, {-1, 0}},
                                         {Qt::Key_Right, {1, 0}},
                                         {Qt::Key_Up, {0, -1}},
                                         {Qt::Key_Down, {0, 1}},
                                         {Qt::Key_Home, {-kFar, 0}},
                                         {Qt::Key_End, {kFar, 0}},
                                         {Qt::Key_PageUp, {0, -kFar}},
                                         {Qt::Key_PageDown, {0, kFar}}}};

}  // namespace

std::optional<QPoint> cellStep(int key) {
  const auto found = std::ranges::find(kMoves, key, &Move::key);
  return found == kMoves.end() ? std::nullopt : std::optional(found->step);
}

bool PixelCursor::move(int key, int size) {
  const auto step = cellStep(key);
  if (step) place(position_ + *step, size);
  return step.has_value();
}

void PixelCursor::confine(int size) { place(position_, size); }

void PixelCursor::place(const QPoint& position, int size) {
  position_ = {std::clamp(position.x(), 0, size - 1), std::clamp(position.y(), 0, size - 1)};
}

}  // namespace gp
