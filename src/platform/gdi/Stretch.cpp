#include "platform/gdi/Stretch.h"

#include "platform/gdi/StretchAxis.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace gp {
namespace {

constexpr int kChannels = 3;
constexpr int kChannelBits = 8;
constexpr std::uint32_t kChannelMask = 0xFF;

using Cells = std::vector<StretchCell>;
using Row = std::vector<std::uint32_t>;

// Computes the target rows of one stretch, each from the source rows of its cell.
class RowMaker {
 public:
  RowMaker(const Surface& source, const Cells& columns, StretchMode mode)
      : source_(source), columns_(columns), mode_(mode), row_(columns.size()) {
    for (const StretchCell& c : columns) {
      left_ = std::min(left_, c.first);
      right_ = std::max(right_, c.last + 1);
    }
  }

  // Returns the target row for a cell of source rows. Enlarging requests the same cell many times in succession.
  const Row& make(const StretchCell& rows) {
    if (made_ && rows == madeOf_) return row_;
    if (mode_ == StretchMode::KeepOrDrop)
      pick(rows.first);
    else if (mode_ == StretchMode::BlackOnWhite)
      combine(rows);
    else
      mix(rows);
    made_ = true;
    madeOf_ = rows;
    return row_;
  }

 private:
  void pick(int y) {
    const std::uint32_t* from = source_.row(y).data();
    for (std::size_t i = 0; i < row_.size(); ++i) row_[i] = from[columns_[i].first];
  }

  void combine(const StretchCell& rows) {
    std::fill(row_.begin(), row_.end(), ~std::uint32_t{0});
    for (int y = rows.first; y <= rows.last; ++y) {
      const std::uint32_t* from = source_.row(y).data();
      for (std::size_t i = 0; i < row_.size(); ++i)
        for (int x = columns_[i].first; x <= columns_[i].last; ++x) row_[i] &= from[x];
    }
  }

  void mix(const StretchCell& rows) {
    sumColumns(rows);
    const std::int64_t rowWeight = rows.totalWeight();
    for (std::size_t i = 0; i < row_.size(); ++i) row_[i] = mixedPixel(columns_[i], rowWeight);
  }

  // Computes the weighted sums of each required source column, per channel.
  void sumColumns(const StretchCell& rows) {
    sums_.assign(static_cast<std::size_t>(right_ - left_) * kChannels, 0);
    for (int y = rows.first; y <= rows.last; ++y) {
      const std::uint32_t* from = source_.row(y).data();
      std::int64_t* sum = sums_.data();
      for (int x = left_; x < right_; ++x)
        for (int channel = 0; channel < kChannels; ++channel)
          *sum++ += rows.weight(y) * (from[x] >> channel * kChannelBits & kChannelMask);
    }
  }

  std::uint32_t mixedPixel(const StretchCell& cell, std::int64_t rowWeight) const {
    const std::int64_t total = cell.totalWeight() * rowWeight;
    std::uint32_t pixel = 0;
    for (int channel = 0; channel < kChannels; ++channel) {
      std::int64_t value = total / 2;
      for (int x = cell.first; x <= cell.last; ++x)
        value += cell.weight(x) * sums_[static_cast<std::size_t>(x - left_) * kChannels + channel];
      pixel |= static_cast<std::uint32_t>(value / total) << channel * kChannelBits;
    }
    return pixel;
  }

  const Surface& source_;
  const Cells& columns_;
  const StretchMode mode_;
  Row row_;
  StretchCell madeOf_;
  bool made_ = false;
  int left_ = kMaxStretchLength;
  int right_ = 0;
  std::vector<std::int64_t> sums_;
};

bool isKnown(StretchMode mode) {
  return mode == StretchMode::BlackOnWhite || mode == StretchMode::KeepOrDrop || mode == StretchMode::Halftone;
}

bool isStretchable(int length) { return length >= -kMaxStretchLength && length <= kMaxStretchLength; }

}  // namespace

bool StretchBlt(Surface& target, int x, int y, int width, int height, const Surface& source, int sourceX, int sourceY,
                int sourceWidth, int sourceHeight, RasterOp op) {
  if (!isKnown(op) || !isKnown(target.stretchMode)) return false;
  for (int length : {width, height, sourceWidth, sourceHeight})
    if (!isStretchable(length)) return false;
  if (&target == &source) {
    return StretchBlt(target, x, y, width, height, Surface(source), sourceX, sourceY, sourceWidth, sourceHeight, op);
  }
  const StretchCells columns = stretchCells({x, width, sourceX, sourceWidth, target.width(), source.width()},
                                            target.stretchMode, KeptPixel::Last);
  const StretchCells rows = stretchCells({y, height, sourceY, sourceHeight, target.height(), source.height()},
                                         target.stretchMode, KeptPixel::First);
  if (columns.cells.empty()) return true;
  RowMaker maker(source, columns.cells, target.stretchMode);
  const int count = static_cast<int>(columns.cells.size());
  int rowNumber = rows.start;
  for (const StretchCell& cell : rows.cells) {
    std::uint32_t* to = target.rowForWriting(rowNumber++, columns.start, columns.start + count) + columns.start;
    combineRow(to, maker.make(cell).data(), count, op);
  }
  return true;
}

StretchMode SetStretchBltMode(Surface& target, StretchMode mode) { return std::exchange(target.stretchMode, mode); }

}  // namespace gp
