#include "platform/gdi/Outlines.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace gp {
namespace {

int signOf(int v) { return (v > 0) - (v < 0); }

// The lesser coordinate's offset after `step` of `steps` steps, when it changes by sign * distance in all of them.
int slant(std::int64_t step, std::int64_t steps, std::int64_t distance, int sign) {
  return sign * static_cast<int>((2 * step * distance + steps - (sign > 0 ? 1 : 0)) / (2 * steps));
}

// The lower right quadrant, from its right end downwards. Each step goes to the next column, row or both, whichever
// keeps the error between the two thresholds.
PixelPath lowerRightQuadrant(const ShapeBox& box) {
  const std::int64_t a = box.width() - 1;
  const std::int64_t b = box.height() - 1;
  const std::int64_t odd = b & 1;
  PixelPath path;
  Pixel p = {box.right - 1, box.top + static_cast<int>((b + 1) / 2)};
  if (a <= 1) {
    for (; p.y < box.bottom; ++p.y) path.push_back(p);
    return path;
  }
  std::int64_t xError = 4 * (1 - a) * b * b;
  std::int64_t yError = 4 * (1 + odd) * a * a;
  std::int64_t error = xError + yError + odd * a * a;
  const int middle = box.left + box.right - 1;
  while (2 * p.x >= middle) {
    path.push_back(p);
    const std::int64_t doubled = 2 * error;
    if (doubled >= xError) {
      --p.x;
      xError += 8 * b * b;
      error += xError;
    }
    if (doubled <= yError) {
      ++p.y;
      yError += 8 * a * a;
      error += yError;
    }
  }
  return path;
}

Pixel mirroredX(const ShapeBox& box, Pixel p) { return {box.left + box.right - 1 - p.x, p.y}; }
Pixel mirroredY(const ShapeBox& box, Pixel p) { return {p.x, box.top + box.bottom - 1 - p.y}; }

PixelPath wholePath(const ShapeBox& box, const PixelPath& quadrant) {
  PixelPath path;
  path.reserve(4 * quadrant.size());
  for (Pixel p : quadrant) path.push_back(mirroredY(box, p));
  for (auto p = quadrant.rbegin(); p != quadrant.rend(); ++p) path.push_back(mirroredX(box, mirroredY(box, *p)));
  for (Pixel p : quadrant) path.push_back(mirroredX(box, p));
  path.insert(path.end(), quadrant.rbegin(), quadrant.rend());
  return path;
}

// The index in the whole path at which the direction (x, y) from the middle meets it; y points upwards. In two
// quadrants a pixel exactly in that direction comes after the index, in the other two before it.
std::int64_t placeOnPath(const PixelPath& quadrant, Pixel middle, std::int64_t x, std::int64_t y) {
  const bool right = x >= 0;
  const auto meets = [&](Pixel p) {
    const std::int64_t steepness = (p.y - middle.y) * std::abs(x) - (p.x - middle.x) * std::abs(y);
    return right ? steepness >= 0 : steepness > 0;
  };
  const std::int64_t i = std::find_if(quadrant.begin(), quadrant.end(), meets) - quadrant.begin();
  const std::int64_t count = static_cast<std::int64_t>(quadrant.size());
  if (y >= 0) return right ? i : 2 * count - i;
  return right ? 4 * count - i : 2 * count + i;
}

}  // namespace

PixelPath linePath(Pixel from, Pixel to) {
  const int dx = std::abs(to.x - from.x);
  const int dy = std::abs(to.y - from.y);
  const int signX = signOf(to.x - from.x);
  const int signY = signOf(to.y - from.y);
  const int steps = std::max(dx, dy);
  PixelPath path = {from};
  path.reserve(static_cast<std::size_t>(steps) + 1);
  for (int i = 1; i <= steps; ++i) {
    if (dx >= dy)
      path.push_back({from.x + signX * i, from.y + slant(i, steps, dy, signY)});
    else
      path.push_back({from.x + slant(i, steps, dx, signX), from.y + signY * i});
  }
  return path;
}

PixelPath rectanglePath(const ShapeBox& box) {
  const int right = box.right - 1;
  const int bottom = box.bottom - 1;
  PixelPath path;
  for (int x = box.left; x < right; ++x) path.push_back({x, box.top});
  for (int y = box.top; y < bottom; ++y) path.push_back({right, y});
  // A box of one row or column is traversed only once.
  if (box.height() > 1)
    for (int x = right; x > box.left; --x) path.push_back({x, bottom});
  if (box.width() > 1)
    for (int y = bottom; y > box.top; --y) path.push_back({box.left, y});
  if (box.height() == 1 || box.width() == 1) path.push_back({right, bottom});
  return path;
}

PixelPath ellipsePath(const ShapeBox& box) {
  if (box.isEmpty()) return {};
  return wholePath(box, lowerRightQuadrant(box));
}

PixelPath arcPath(const ShapeBox& box, Pixel start, Pixel end, ArcDirection direction) {
  if (box.isEmpty()) return {};
  PixelPath quadrant = lowerRightQuadrant(box);
  // In a box one pixel wide the platform's arcs contain only the middle.
  if (box.width() == 1) quadrant.resize(1);
  const PixelPath whole = wholePath(box, quadrant);
  const Pixel middle = {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
  // A clockwise arc is the counter-clockwise arc mirrored vertically.
  const int upwards = direction == ArcDirection::CounterClockwise ? 1 : -1;
  const auto placeOf = [&](Pixel p) {
    return placeOnPath(quadrant, middle, std::int64_t{p.x} - middle.x, upwards * (std::int64_t{middle.y} - p.y));
  };
  const std::int64_t count = static_cast<std::int64_t>(whole.size());
  const std::int64_t first = placeOf(start);
  std::int64_t last = placeOf(end);
  if (last <= first) last += count;
  PixelPath path;
  for (std::int64_t i = first; i < last; ++i) {
    const Pixel p = whole[static_cast<std::size_t>(i % count)];
    path.push_back(upwards > 0 ? p : mirroredY(box, p));
  }
  return path;
}

}  // namespace gp
