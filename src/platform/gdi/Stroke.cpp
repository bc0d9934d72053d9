#include "platform/gdi/Stroke.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>

namespace gp {
namespace {

// Length in pixels of a dot, and of the gap after it.
constexpr std::size_t kDotLength = 3;

// Two nibs one diagonal step apart leave notches between them, which the platform's pen fills. Pixels are relative to
// the left nib, with one row per width and one table each for steps falling and rising to the right. Wider nibs leave
// no noticeable notches.
constexpr int kFirstNotchedWidth = 2;
constexpr int kMaxNotches = 3;
struct Notches {
  int count;
  Pixel pixels[kMaxNotches];
};
constexpr Notches kFallingNotches[] = {
    {1, {{-1, 1}}}, {3, {{-1, 1}, {1, -1}, {2, -1}}}, {1, {{2, -1}}}, {1, {{-2, 2}}}, {3, {{-2, 2}, {2, -2}, {3, -2}}},
};
constexpr Notches kRisingNotches[] = {
    {1, {{1, 0}}},   {3, {{-1, -1}, {1, 1}, {2, 1}}}, {2, {{1, 1}, {2, 1}}},
    {1, {{-2, -2}}}, {3, {{2, 1}, {2, 2}, {3, 2}}},
};

std::span<const Pixel> notchesFor(int width, bool falling) {
  const std::span<const Notches> table = falling ? kFallingNotches : kRisingNotches;
  const std::size_t row = static_cast<std::size_t>(width - kFirstNotchedWidth);
  if (row >= table.size()) return {};
  return std::span<const Pixel>(table[row].pixels).first(static_cast<std::size_t>(table[row].count));
}

// The pixels under a round pen at (0, 0): the platform's circle of that width. An even width cannot be centred and
// extends one pixel further to the left and upwards.
PixelPath nibOf(int width) {
  const int from = -(width / 2);
  PixelPath nib;
  for (Pixel p : ellipsePath({from, from, from + width, from + width}))
    for (int x = std::min(p.x, 2 * from + width - 1 - p.x); x <= p.x; ++x) nib.push_back({x, p.y});
  return nib;
}

// Returns the index of the first byte from i on that is not 0, or `count`. Outlines leave most of their box uncovered,
// so zeros are skipped a word at a time.
int nextCovered(const void* covers, int i, int count) {
  constexpr int kWord = sizeof(std::uint64_t);
  const auto* bytes = static_cast<const unsigned char*>(covers);
  while (i < count) {
    std::uint64_t word = 0;
    if (i + kWord <= count) std::memcpy(&word, bytes + i, kWord);
    if (i + kWord <= count && word == 0)
      i += kWord;
    else if (bytes[i] != 0)
      return i;
    else
      ++i;
  }
  return count;
}

}  // namespace

ShapeBox boxAround(Pixel a, Pixel b) {
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1, std::max(a.y, b.y) + 1};
}

Stroke::Stroke(Surface& surface, const ShapeBox& box) : surface_(surface), width_(std::max(surface.penWidth, 1)) {
  const int reach = isWide() ? width_ : 0;
  area_ = {std::max(box.left - reach, 0), std::max(box.top - reach, 0), std::min(box.right + reach, surface.width()),
           std::min(box.bottom + reach, surface.height())};
  if (area_.isEmpty()) area_ = {};
  covers_.resize(static_cast<std::size_t>(area_.width()) * static_cast<std::size_t>(area_.height()));
}

void Stroke::pen(const PixelPath& path, bool closed) {
  if (isWide())
    widePen(path, closed);
  else
    thinPen(path);
}

void Stroke::brush(int y, int x1, int x2) {
  for (int x = std::max(x1, area_.left); x <= std::min(x2, area_.right - 1); ++x) cover(x, y, Cover::Brush);
}

void Stroke::draw(Color penColor) {
  for (int y = area_.top; y < area_.bottom; ++y) drawRow(y, penColor);
}

void Stroke::thinPen(const PixelPath& path) {
  const bool dotted = surface_.penStyle == PenStyle::Dot;
  std::size_t walked = 0;
  for (std::size_t i = 0; i < path.size(); ++i) {
    if (i > 0 && path[i] == path[i - 1]) continue;
    if (!dotted || walked / kDotLength % 2 == 0) cover(path[i].x, path[i].y, Cover::Pen);
    ++walked;
  }
}

void Stroke::widePen(const PixelPath& path, bool closed) {
  const PixelPath nib = nibOf(width_);
  for (std::size_t i = 0; i < path.size(); ++i) {
    for (Pixel n : nib) cover(path[i].x + n.x, path[i].y + n.y, Cover::Pen);
    if (i > 0) joinDiagonal(path[i - 1], path[i]);
  }
  if (closed && !path.empty()) joinDiagonal(path.back(), path.front());
}

void Stroke::joinDiagonal(Pixel a, Pixel b) {
  if (std::abs(a.x - b.x) != 1 || std::abs(a.y - b.y) != 1) return;
  const Pixel left = a.x < b.x ? a : b;
  const Pixel right = a.x < b.x ? b : a;
  for (Pixel n : notchesFor(width_, right.y > left.y)) cover(left.x + n.x, left.y + n.y, Cover::Pen);
}

void Stroke::cover(int x, int y, Cover by) {
  if (x < area_.left || y < area_.top || x >= area_.right || y >= area_.bottom) return;
  Cover& c =
      covers_[static_cast<std::size_t>(y - area_.top) * static_cast<std::size_t>(area_.width()) + (x - area_.left)];
  c = std::max(c, by);
}

void Stroke::drawRow(int y, Color penColor) {
  const Cover* covers =
      covers_.data() + static_cast<std::size_t>(y - area_.top) * static_cast<std::size_t>(area_.width());
  std::uint32_t* row = surface_.rowForWriting(y, area_.left, area_.right) + area_.left;
  const bool inverting = surface_.drawMode == DrawMode::Invert;
  static_assert(sizeof(Cover) == 1 && static_cast<int>(Cover::None) == 0);
  const int width = area_.width();
  for (int i = nextCovered(covers, 0, width); i < width; i = nextCovered(covers, i + 1, width)) {
    row[i] = inverting ? row[i] ^ kColorBits : storedForm(covers[i] == Cover::Pen ? penColor : surface_.fillColor);
  }
}

}  // namespace gp
