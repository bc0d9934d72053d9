#include "extraction/ListGrid.h"

#include <algorithm>

namespace gp {
namespace {

constexpr int kCellSide = 48;  // of the part of a cell that the gaps surround
constexpr int kIconSide = 32;  // the largest icon that a cell shows
constexpr int kIconIndent = 6;
constexpr int kGapParts = 4;  // the label begins after the first part of the gap

int partOfGap(int cellLength) { return std::max(cellLength - kCellSide - 1, 0) / kGapParts + 1; }

}  // namespace

ListGrid::ListGrid(int width, int baseHeight, int lineHeight)
    : width_(width),
      baseHeight_(baseHeight),
      lineHeight_(lineHeight),
      columnWidth_(std::max(width / kListColumns, 1)),
      rowHeight_(std::max(baseHeight / (kListRows / kListPages), kCellSide + lineHeight)) {}

int ListGrid::scrollMaximum() const { return std::max(height() - baseHeight_, 0); }

CellPlace ListGrid::cellPlace(int cell) const {
  return {cell % kListColumns * columnWidth_, cell / kListColumns * rowHeight_, columnWidth_, rowHeight_};
}

CellPlace ListGrid::labelPlace(int cell) const {
  const CellPlace place = cellPlace(cell);
  const int indent = partOfGap(columnWidth_);
  return {place.left + indent, place.top + partOfGap(rowHeight_), std::max(columnWidth_ - indent, 0), lineHeight_};
}

CellPlace ListGrid::iconPlace(int cell) const {
  const CellPlace label = labelPlace(cell);
  return {label.left + kIconIndent, label.top + lineHeight_ + kIconIndent, kIconSide, kIconSide};
}

int ListGrid::cellAt(int x, int y) const {
  if (x < 0 || y < 0) return -1;
  const int column = x / columnWidth_, row = y / rowHeight_;
  return column < kListColumns && row < kListRows ? row * kListColumns + column : -1;
}

}  // namespace gp
