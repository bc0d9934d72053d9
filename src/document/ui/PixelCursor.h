// The position that the keyboard moves over the Editing Area: one icon pixel, always inside the icon.
#pragma once

#include <QPoint>

#include <optional>

namespace gp {

// Returns the step of a key on a grid of cells: arrow keys move by one, Home and End along the row, Page Up and Page
// Down along the column, by more than any grid's size; nullopt for other keys.
std::optional<QPoint> cellStep(int key);

class PixelCursor {
 public:
  const QPoint& position() const { return position_; }
  // Moves the cursor by a key's cellStep(). Returns false for other keys.
  bool move(int key, int size);
  // Moves the cursor inside an icon of that size.
  void confine(int size);
  void place(const QPoint& position, int size);

 private:
  QPoint position_;
};

}  // namespace gp
