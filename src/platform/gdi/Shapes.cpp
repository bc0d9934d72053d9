#include "platform/gdi/Shapes.h"

#include "platform/gdi/Stroke.h"

#include <algorithm>
#include <utility>

namespace gp {
namespace {

bool isReachable(int v) { return v >= -kMaxPenPosition && v <= kMaxPenPosition; }
bool isReachable(Pixel p) { return isReachable(p.x) && isReachable(p.y); }
bool isReachable(const ShapeBox& box) {
  return isReachable(Pixel{box.left, box.top}) && isReachable(Pixel{box.right, box.bottom});
}

ShapeBox ordered(const ShapeBox& box) {
  return {std::min(box.left, box.right), std::min(box.top, box.bottom), std::max(box.left, box.right),
          std::max(box.top, box.bottom)};
}

// A thin pen draws nothing when the outline is a single pixel.
bool isDrawn(const Surface& surface, const ShapeBox& box) {
  const bool isSinglePixel = box.width() == 1 && box.height() == 1;
  return !box.isEmpty() && (!isSinglePixel || surface.penWidth > 1);
}

// A thin pen does not draw the end pixel, which the path may repeat.
PixelPath withoutEnd(PixelPath path) {
  if (path.empty()) return path;
  const Pixel last = path.back();
  path.pop_back();
  while (!path.empty() && path.back() == last) path.pop_back();
  return path;
}

// Covers each row from the leftmost to the rightmost pixel of the outline with the brush.
void fillInside(Stroke& stroke, const ShapeBox& box, const PixelPath& outline) {
  const std::size_t rows = static_cast<std::size_t>(box.height());
  std::vector<std::pair<int, int>> spans(rows, {box.right, box.left - 1});
  for (Pixel p : outline) {
    auto& [left, right] = spans[static_cast<std::size_t>(p.y - box.top)];
    left = std::min(left, p.x);
    right = std::max(right, p.x);
  }
  for (std::size_t i = 0; i < rows; ++i) stroke.brush(box.top + static_cast<int>(i), spans[i].first, spans[i].second);
}

void drawClosed(Surface& surface, const ShapeBox& box, const PixelPath& outline, Color color) {
  Stroke stroke(surface, box);
  if (surface.fillMode == FillMode::Solid) fillInside(stroke, box, outline);
  stroke.pen(outline, true);
  stroke.draw(color);
}

}  // namespace

void LineTo(Surface& surface, Pixel from, Pixel to, Color color) {
  if (!isReachable(from) || !isReachable(to)) return;
  Stroke stroke(surface, boxAround(from, to));
  const PixelPath path = linePath(from, to);
  stroke.pen(stroke.isWide() ? path : withoutEnd(path), false);
  stroke.draw(color);
}

void Rectangle(Surface& surface, ShapeBox box, Color color) {
  box = ordered(box);
  if (isReachable(box) && isDrawn(surface, box)) drawClosed(surface, box, rectanglePath(box), color);
}

void Ellipse(Surface& surface, ShapeBox box, Color color) {
  box = ordered(box);
  if (isReachable(box) && isDrawn(surface, box)) drawClosed(surface, box, ellipsePath(box), color);
}

void Arc(Surface& surface, ShapeBox box, Pixel start, Pixel end, Color color, ArcDirection direction) {
  box = ordered(box);
  if (!isReachable(box) || !isReachable(start) || !isReachable(end) || box.isEmpty()) return;
  Stroke stroke(surface, box);
  const PixelPath path = arcPath(box, start, end, direction);
  // A pen that does not move draws nothing, whatever its width.
  if (path.size() < 2) return;
  stroke.pen(stroke.isWide() ? path : withoutEnd(path), false);
  stroke.draw(color);
}

}  // namespace gp
