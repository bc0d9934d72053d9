// Computes which source pixels each target pixel of a stretched row or column consists of: the arithmetic behind
// StretchBlt, for one axis.
#pragma once

#include "platform/gdi/Surface.h"

#include <cstdint>
#include <vector>

namespace gp {

// The source pixels first to last that make one target pixel, and their weights. All weights are above 0.
struct StretchCell {
  int first = 0, last = 0;
  std::int64_t firstWeight = 1, middleWeight = 1, lastWeight = 1;

  std::int64_t weight(int i) const { return i == first ? firstWeight : i == last ? lastWeight : middleWeight; }
  std::int64_t totalWeight() const {
    return first == last ? firstWeight : firstWeight + lastWeight + (last - first - 1) * middleWeight;
  }
  bool operator==(const StretchCell&) const = default;
};

// One axis of a stretch as given by the caller, with possibly negative lengths, and the sizes of the two Surfaces.
struct StretchAxis {
  int target, targetLength, source, sourceLength;
  int targetSize, sourceSize;
};

// Which of several source pixels keep-or-drop mode keeps: the first one for rows, the last one for columns.
enum class KeptPixel { First, Last };

// The cells of consecutive target pixels, from `start`. They lie inside both Surfaces; target pixels without a source
// are omitted. No length may exceed kMaxStretchLength.
struct StretchCells {
  int start = 0;
  std::vector<StretchCell> cells;
};
StretchCells stretchCells(const StretchAxis& axis, StretchMode mode, KeptPixel kept);

inline constexpr int kMaxStretchLength = 1 << 20;

}  // namespace gp
