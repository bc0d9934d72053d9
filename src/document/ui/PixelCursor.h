// The position that the keyboard moves over the Editing Area: one icon pixel, never outside the icon.
#pragma once

#include <QPoint>

#include <optional>

namespace gp {

// The step of a key over a grid of cells: arrows by one, Home and End along the row, Page Up and Page Down along the
// column, further than any grid is wide; nothing for any other key.
std::optional<QPoint> cellStep(int key);

class PixelCursor {
 public:
  const QPoint& position() const { return position_; }
  // A key moves the cursor by its cellStep(). False for any other key.
  bool move(int key, int size);
  // Keeps the cursor inside an icon of that size.
  void confine(int size);
  void place(const QPoint& position, int size);

 private:
  QPoint position_;
};

}  // namespace gp
