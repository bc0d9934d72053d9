#include "platform/gdi/RasterOps.h"

#include <algorithm>
#include <cstring>

namespace gp {
namespace {

// One axis of a copy: `length` pixels from source to target. 64 bits, so that sums of positions cannot overflow.
struct Range {
  std::int64_t target, source, length;
};

// Returns the part of the range that lies inside both Surfaces.
Range clipped(Range r, int targetSize, int sourceSize) {
  const std::int64_t cut = std::max<std::int64_t>({0, -r.target, -r.source});
  r.target += cut;
  r.source += cut;
  r.length = std::min({r.length - cut, targetSize - r.target, sourceSize - r.source});
  return r;
}

Range rangeOf(int target, int source, int length) {
  if (length >= 0) return {target, source, length};
  return {std::int64_t{target} + length + 1, std::int64_t{source} + length + 1, -std::int64_t{length}};
}

void combineArea(Surface& target, const Surface& source, const Range& columns, const Range& rows, RasterOp op) {
  const int x1 = static_cast<int>(columns.target);
  const int count = static_cast<int>(columns.length);
  for (int i = 0; i < rows.length; ++i) {
    const std::uint32_t* from = source.row(static_cast<int>(rows.source) + i).data() + columns.source;
    combineRow(target.rowForWriting(static_cast<int>(rows.target) + i, x1, x1 + count) + x1, from, count, op);
  }
}

void combineWithin(Surface& surface, const Range& columns, const Range& rows, RasterOp op) {
  Surface copy(static_cast<int>(columns.length), static_cast<int>(rows.length));
  combineArea(copy, surface, {0, columns.source, columns.length}, {0, rows.source, rows.length}, RasterOp::SRCCOPY);
  combineArea(surface, copy, {columns.target, 0, columns.length}, {rows.target, 0, rows.length}, op);
}

}  // namespace

bool isKnown(RasterOp op) {
  return op == RasterOp::SRCCOPY || op == RasterOp::SRCAND || op == RasterOp::SRCINVERT || op == RasterOp::SRCPAINT;
}

void combineRow(std::uint32_t* target, const std::uint32_t* source, int count, RasterOp op) {
  switch (op) {
    case RasterOp::SRCCOPY:
      std::memcpy(target, source, static_cast<std::size_t>(count) * sizeof *target);
      return;
    case RasterOp::SRCAND:
      for (int i = 0; i < count; ++i) target[i] &= source[i];
      return;
    case RasterOp::SRCINVERT:
      for (int i = 0; i < count; ++i) target[i] ^= source[i];
      return;
    case RasterOp::SRCPAINT:
      for (int i = 0; i < count; ++i) target[i] |= source[i];
      return;
  }
}

bool BitBlt(Surface& target, int x, int y, int width, int height, const Surface& source, int sourceX, int sourceY,
            RasterOp op) {
  if (!isKnown(op)) return false;
  const Range columns = clipped(rangeOf(x, sourceX, width), target.width(), source.width());
  const Range rows = clipped(rangeOf(y, sourceY, height), target.height(), source.height());
  if (columns.length <= 0 || rows.length <= 0) return true;
  if (&target == &source)
    combineWithin(target, columns, rows, op);
  else
    combineArea(target, source, columns, rows, op);
  return true;
}

}  // namespace gp
