#include "platform/gdi/StretchAxis.h"

#include <algorithm>
#include <cstdlib>

namespace gp {
namespace {

constexpr int kFarPosition = 1 << 29;

std::int64_t floorDivide(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }
std::int64_t ceilDivide(std::int64_t a, std::int64_t b) { return -floorDivide(-a, b); }

int lowestOf(int position, int length) { return length < 0 ? position + length + 1 : position; }

// Returns true when no rectangle reaches a Surface from this position. Nearer positions can be added without overflow.
bool isFarOutside(int position) { return position < -kFarPosition || position > kFarPosition; }

StretchCell cellOf(std::int64_t first, std::int64_t last) { return {static_cast<int>(first), static_cast<int>(last)}; }

// Returns the last source pixel whose centre lies in or before target pixel i, which may be -1.
std::int64_t lastOfGroup(std::int64_t i, std::int64_t source, std::int64_t target) {
  return floorDivide(2 * (i + 1) * source - target, 2 * target);
}

// Returns the group of source pixels of target pixel i; when enlarging, the source pixel under its centre.
StretchCell groupCell(std::int64_t i, std::int64_t source, std::int64_t target) {
  if (target < source) return cellOf(lastOfGroup(i - 1, source, target) + 1, lastOfGroup(i, source, target));
  const std::int64_t under = ceilDivide((2 * i + 1) * source, 2 * target) - 1;
  return cellOf(under, under);
}

// Target pixel i covers [i * source, (i + 1) * source) in units in which a source pixel has the length `target`.
StretchCell averageCell(std::int64_t i, std::int64_t source, std::int64_t target) {
  const std::int64_t begin = i * source;
  const std::int64_t end = begin + source;
  StretchCell cell = cellOf(begin / target, (end - 1) / target);
  cell.firstWeight = std::min((cell.first + 1) * target, end) - begin;
  cell.middleWeight = target;
  cell.lastWeight = end - cell.last * target;
  return cell;
}

// The centre of target pixel i is computed in units of 1 / (2 * target) source pixels from the first pixel's centre.
StretchCell mixedCell(std::int64_t i, std::int64_t source, std::int64_t target) {
  const std::int64_t unit = 2 * target;
  const std::int64_t centre = std::clamp<std::int64_t>((2 * i + 1) * source - target, 0, (source - 1) * unit);
  const std::int64_t fraction = centre % unit;
  StretchCell cell = cellOf(centre / unit, centre / unit + (fraction > 0 ? 1 : 0));
  cell.firstWeight = unit - fraction;
  cell.lastWeight = fraction > 0 ? fraction : unit;
  return cell;
}

StretchCell cellFor(std::int64_t i, std::int64_t source, std::int64_t target, StretchMode mode, KeptPixel kept) {
  if (mode == StretchMode::Halftone)
    return target < source ? averageCell(i, source, target) : mixedCell(i, source, target);
  StretchCell cell = groupCell(i, source, target);
  if (mode == StretchMode::KeepOrDrop) cell.first = cell.last = kept == KeptPixel::First ? cell.first : cell.last;
  return cell;
}

// Moves a cell by `offset` and clips it to the Surface. Returns false when nothing is left.
bool placeCell(StretchCell& cell, int offset, int size) {
  const StretchCell whole = {cell.first + offset, cell.last + offset, cell.firstWeight, cell.middleWeight,
                             cell.lastWeight};
  cell = whole;
  cell.first = std::max(whole.first, 0);
  cell.last = std::min(whole.last, size - 1);
  if (cell.first > cell.last) return false;
  cell.firstWeight = whole.weight(cell.first);
  cell.lastWeight = whole.weight(cell.last);
  return true;
}

}  // namespace

StretchCells stretchCells(const StretchAxis& axis, StretchMode mode, KeptPixel kept) {
  StretchCells result;
  const int target = std::abs(axis.targetLength);
  const int source = std::abs(axis.sourceLength);
  if (target == 0 || source == 0 || isFarOutside(axis.target) || isFarOutside(axis.source)) return result;
  const bool mirrored = (axis.targetLength < 0) != (axis.sourceLength < 0);
  const int begin = lowestOf(axis.target, axis.targetLength);
  const int offset = lowestOf(axis.source, axis.sourceLength);
  for (int t = std::max(begin, 0); t < std::min(begin + target, axis.targetSize); ++t) {
    const int i = mirrored ? begin + target - 1 - t : t - begin;
    StretchCell cell = cellFor(i, source, target, mode, kept);
    if (!placeCell(cell, offset, axis.sourceSize)) continue;
    if (result.cells.empty()) result.start = t;
    result.cells.push_back(cell);
  }
  return result;
}

}  // namespace gp
