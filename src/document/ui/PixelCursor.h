// The position that the keyboard moves over the Editing Area: one icon pixel, never outside the icon.
#pragma once

#include <QPoint>

namespace gp {

class PixelCursor {
 public:
  const QPoint& position() const { return position_; }
  // A key moves the cursor: arrows by one pixel, Home and End along the row, Page Up and Page Down along the column.
  // False for any other key.
  bool move(int key, int size);
  // Keeps the cursor inside an icon of that size.
  void confine(int size);
  void place(const QPoint& position, int size);

 private:
  QPoint position_;
};

}  // namespace gp
