// The position that the keyboard moves over a magnified icon: one icon pixel, never outside the icon.
#pragma once

#include <QPoint>

#include <optional>

namespace gp {

// The step of a key over a grid of cells. Arrows step by one; Home and End along the row, Page Up and Page Down along
// the column, by more than any grid has cells. Nothing for any other key.
std::optional<QPoint> cellStep(int key);

class PixelCursor {
 public:
  const QPoint& position() const { return position_; }
  // Moves the cursor by the cellStep() of a key. False for a key without a step. Sizes are in icon pixels, at least 1.
  bool move(int key, int size);
  // Moves the cursor inside an icon of that size.
  void confine(int size);
  void place(const QPoint& position, int size);

 private:
  QPoint position_;
};

}  // namespace gp
