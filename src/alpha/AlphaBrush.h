// Paints alpha values on an icon: a square brush at the pointer, or straight lines.
#pragma once

#include "alpha/AlphaCanvas.h"

#include <optional>

namespace gp {

struct IconPixel {
  int x = 0, y = 0;
  bool operator==(const IconPixel&) const = default;
};

class AlphaBrush {
 public:
  static constexpr int kSizes = 6;

  // The canvas must outlive the brush.
  explicit AlphaBrush(AlphaCanvas& canvas) : canvas_(canvas) {}

  // The list index of cboBrushSize; the brush is one wider. Other numbers are limited to the list.
  int index() const { return index_; }
  void setIndex(int index);

  // The pointer is pressed at, or drags to, a pixel inside the icon, which is the brush's top left one. The brush is
  // cut at the right and bottom edges. `straight` paints a line from the position before the drag instead, which
  // follows the pointer until `release` or a position without `straight`; the first position of all starts a line.
  // Returns true when a pixel got the value.
  bool paint(IconPixel at, std::uint8_t alpha, bool straight);
  // The drag ends: what it has painted stays.
  void release();
  // The next line starts at its first position. Must be called when other code has changed the alpha values.
  void forget() { from_.reset(); }

 private:
  bool stamp(IconPixel at, std::uint8_t alpha);
  bool drawLine(IconPixel from, IconPixel to, std::uint8_t alpha);
  void startFrom(IconPixel at);

  AlphaCanvas& canvas_;
  int index_ = 0;
  std::optional<IconPixel> from_;  // where a line starts
  IconPixel last_;                 // the last position, while there is a start
  AlphaMatrix before_;             // the values without the line
};

}  // namespace gp
