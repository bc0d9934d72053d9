#include "document/ui/RegionMark.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace gp {
namespace {

// A handle covers what the pointer and the press take for a side, in Editing Area pixels before and behind it. The
// bands of right and bottom sides are mirrored.
constexpr int kHandleOutside = 4;
constexpr int kHandleInside = 2;
constexpr int kHandle = kHandleOutside + 1 + kHandleInside;
constexpr int kLeastForCorners = 3 * kHandle;  // sides of a box in Editing Area pixels
constexpr int kLeastForSides = 6 * kHandle;

// From the first pixel to the one behind the last.
struct Span {
  int from;
  int to;
  int length() const { return to - from; }
};

// Inside the icon as a whole, so that a handle at its edge can be recognised.
Span inside(const Span& span, const ScreenScale& scale) {
  const int from = std::clamp(span.from, 0, scale.deviceSize() - span.length());
  return {from, from + span.length()};
}

Span handleAt(int first, const ScreenScale& scale) {
  return inside({scale.deviceOf(first), scale.deviceOf(first) + scale.deviceOf(kHandle)}, scale);
}

// The handles along one direction: before, in the middle and behind.
std::array<Span, 3> handlesBetween(int first, int last, const ScreenScale& scale) {
  const int middle = (first + last - kHandle) / 2;
  return {handleAt(first - kHandleOutside, scale), handleAt(middle, scale), handleAt(last - kHandleInside, scale)};
}

// A side outside the icon is not seen.
bool isOnIcon(int side, int length) { return side >= 0 && side <= length; }

Span frameBetween(int first, int last, const ScreenScale& scale, int line) {
  const int end = scale.deviceSize();
  Span frame{scale.deviceOf(first), scale.deviceOf(last) + line};
  if (isOnIcon(frame.from, end)) frame.from = std::max(frame.from, line);
  if (isOnIcon(frame.to - line, end)) frame.to = std::min(frame.to, end - line);
  return frame;
}

void paintFrame(QPainter& painter, const QRect& outside, int line, Qt::GlobalColor color) {
  const QRect hole = outside.adjusted(line, line, -line, -line);
  const QRegion frame = hole.isValid() ? QRegion(outside) - hole : QRegion(outside);
  for (const QRect& part : frame) painter.fillRect(part, color);
}

}  // namespace

QRect regionFrame(const RegionOutline& outline, const ScreenScale& scale, int line) {
  const Span columns = frameBetween(outline.left, outline.right, scale, line);
  const Span rows = frameBetween(outline.top, outline.bottom, scale, line);
  return {columns.from, rows.from, columns.length(), rows.length()};
}

std::vector<QRect> regionHandles(const RegionOutline& outline, const ScreenScale& scale) {
  const int width = outline.right - outline.left;
  const int height = outline.bottom - outline.top;
  if (!outline.hasHandles || std::min(width, height) < kLeastForCorners) return {};
  const auto columns = handlesBetween(outline.left, outline.right, scale);
  const auto rows = handlesBetween(outline.top, outline.bottom, scale);
  std::vector<QRect> handles;
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 3; ++x) {
      if ((x == 1 && (y == 1 || width < kLeastForSides)) || (y == 1 && height < kLeastForSides)) continue;
      const Span& column = columns.at(static_cast<std::size_t>(x));
      const Span& row = rows.at(static_cast<std::size_t>(y));
      handles.emplace_back(column.from, row.from, column.length(), row.length());
    }
  return handles;
}

void paintRegionMark(QPainter& painter, const RegionOutline& outline, const ScreenScale& scale, int line) {
  const QRect frame = regionFrame(outline, scale, line);
  paintFrame(painter, frame.adjusted(-line, -line, line, line), line, Qt::white);
  paintFrame(painter, frame, line, Qt::black);
  for (const QRect& handle : regionHandles(outline, scale)) {
    painter.fillRect(handle, Qt::white);
    paintFrame(painter, handle, line, Qt::black);
  }
}

}  // namespace gp
