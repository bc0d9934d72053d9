// The palette engine implemented a second time, simple and slow, directly from its rules; the real one is compared with
// it. Pixels are (red, green, blue); row 0 is the bottom row, as in the engine.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <map>
#include <optional>
#include <vector>

namespace gp::test {

struct SlowColor {
  int r = 0, g = 0, b = 0;
  bool operator==(const SlowColor&) const = default;
};
using SlowRow = std::vector<SlowColor>;
using SlowPicture = std::vector<SlowRow>;

// Quantiser -----------------------------------------------------------------------------------------------------------

// Nodes by number; the root is 1. Numbers are assigned on demand and reused when nodes are freed.
class SlowTree {
 public:
  SlowTree(int maxColors, int levels) : maxColors_(maxColors), levels_(levels) { nodes_[1] = {}; }

  void add(const SlowColor& c) {
    insert(1, 1, {0, 255, 0, 255, 0, 255}, c);
    while (leaves_ > maxColors_ && fold()) {
    }
  }
  std::vector<SlowColor> palette() const {
    std::vector<SlowColor> colors;
    for (const auto& [number, node] : nodes_)
      if (node.leaf) colors.push_back({mean(node.r, node.count), mean(node.g, node.count), mean(node.b, node.count)});
    return colors;
  }

 private:
  struct Node {
    bool leaf = false, listed = false;
    int r = 0, g = 0, b = 0, count = 0;
    std::array<int, 8> child{};
  };
  static int evenByte(double v) { return static_cast<int>(std::nearbyint(v)); }
  static int mean(int sum, int count) { return evenByte(static_cast<double>(sum) / count); }

  int fresh() {
    if (free_.empty()) return ++highest_;
    const int number = free_.back();
    free_.pop_back();
    return number;
  }
  void insert(int at, int level, std::array<int, 6> box, const SlowColor& c) {
    const int values[] = {c.r, c.g, c.b};
    int slot = 0;
    for (int i = 0; i < 3; ++i) {
      const int mid = evenByte(box[2 * i] / 2.0 + box[2 * i + 1] / 2.0);
      const bool upper = values[i] > mid;
      if (upper) slot |= 1 << i;
      box[upper ? 2 * i : 2 * i + 1] = mid;
    }
    int child = nodes_[at].child[slot];
    if (child == 0) {
      child = fresh();
      nodes_[child] = {};
      nodes_[child].leaf = level == levels_;
      nodes_[at].child[slot] = child;
    }
    Node& node = nodes_[child];
    if (node.leaf) {
      if (node.count > 0) return;
      ++leaves_;
      node = {true, node.listed, c.r, c.g, c.b, 1, node.child};
      return;
    }
    if (!node.listed) {
      node.listed = true;
      lists_[level].push_back(child);
    }
    insert(child, level + 1, box, c);
  }
  bool fold() {
    for (int level = levels_; level >= 1; --level) {
      auto& list = lists_[level];
      if (list.empty()) continue;
      Node& node = nodes_[list.back()];
      list.pop_back();
      node.r = node.g = node.b = node.count = 0;
      for (int& child : node.child) {
        if (child == 0) continue;
        const Node gone = nodes_[child];
        node.r += gone.r, node.g += gone.g, node.b += gone.b, node.count += gone.count;
        nodes_.erase(child);
        free_.push_back(child);
        child = 0;
        --leaves_;
      }
      node.leaf = true;
      ++leaves_;
      return true;
    }
    return false;
  }

  int maxColors_, levels_, leaves_ = 0, highest_ = 1;
  std::map<int, Node> nodes_;
  std::map<int, std::vector<int>> lists_;
  std::vector<int> free_;
};

inline std::vector<SlowColor> slowOptimal(const SlowPicture& picture, int maxColors) {
  SlowTree tree(maxColors, 8);
  for (const SlowRow& row : picture)
    for (const SlowColor& c : row) tree.add(c);
  std::vector<SlowColor> colors = tree.palette();
  colors.resize(256);
  return colors;
}

// Dithers -------------------------------------------------------------------------------------------------------------

inline int slowNearest(const std::vector<SlowColor>& palette, const SlowColor& c) {
  int best = 0;
  long least = -1;
  for (std::size_t i = 0; i < palette.size(); ++i) {
    const long dr = palette[i].r - c.r, dg = palette[i].g - c.g, db = palette[i].b - c.b;
    const long distance = dr * dr + dg * dg + db * db;
    if (least < 0 || distance < least) least = distance, best = static_cast<int>(i);
  }
  return best;
}

inline int coarse(int v) { return static_cast<int>(std::nearbyint(v / 17.0)) * 17; }
inline int clampByte(int v) { return std::clamp(v, 0, 255); }

// Changes the picture to its dithered colours and returns the index of each pixel.
inline std::vector<std::vector<int>> slowFloydSteinberg(SlowPicture& p, const std::vector<SlowColor>& palette) {
  const int height = static_cast<int>(p.size()), width = static_cast<int>(p[0].size());
  std::map<std::array<int, 3>, int> known;  // the nearest entry of each coarse colour
  std::vector<std::vector<int>> indices(p.size(), std::vector<int>(p[0].size()));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const SlowColor old = p[y][x];
      const SlowColor cell{coarse(old.r), coarse(old.g), coarse(old.b)};
      const auto [found, isNew] = known.try_emplace({cell.r, cell.g, cell.b}, 0);
      if (isNew) found->second = slowNearest(palette, cell);
      const SlowColor entry = palette[static_cast<std::size_t>(indices[y][x] = found->second)];
      p[y][x] = entry;
      const SlowColor e{old.r - entry.r, old.g - entry.g, old.b - entry.b};
      if (std::abs(e.r) + std::abs(e.g) + std::abs(e.b) <= 3) continue;
      auto give = [&](int tx, int ty, int w) {
        if (tx < 0 || tx >= width || ty >= height) return;
        SlowColor& t = p[ty][tx];
        t = {clampByte(t.r + e.r * w / 16), clampByte(t.g + e.g * w / 16), clampByte(t.b + e.b * w / 16)};
      };
      give(x + 1, y, 7), give(x, y + 1, 5), give(x + 1, y + 1, 1), give(x - 1, y + 1, 3);
    }
  }
  return indices;
}

struct SlowShare {
  int dx, dy, w;
};

// Light or dark for each pixel. Errors are kept for the whole picture; `spare` rows at its end get none from above.
inline std::vector<std::vector<bool>> slowMono(const SlowPicture& p, const std::vector<SlowShare>& shares, int weight,
                                               int divisor, int spare) {
  const int height = static_cast<int>(p.size()), width = static_cast<int>(p[0].size());
  auto bright = [&](int x, int y) { return (p[y][x].r + p[y][x].g + p[y][x].b) / 3; };
  long sum = 0;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) sum += bright(x, y);
  const int threshold = static_cast<int>(sum / (long{width} * height));
  std::vector<std::vector<int>> errors(p.size(), std::vector<int>(p[0].size()));
  std::vector<std::vector<bool>> light(p.size(), std::vector<bool>(p[0].size()));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int value = clampByte(bright(x, y) + errors[y][x] * 10 / divisor);
      light[y][x] = value >= threshold;
      const int e = value - (light[y][x] ? 255 : 0);
      for (const SlowShare& s : shares) {
        const int tx = x + s.dx, ty = y + s.dy;
        if (tx < 0 || tx >= width || (s.dy > 0 && ty >= height - spare)) continue;
        errors[ty][tx] += e * s.w / weight;
      }
    }
  }
  return light;
}

inline std::vector<std::vector<bool>> slowStucki(const SlowPicture& p, int divisor) {
  return slowMono(p,
                  {{1, 0, 8},
                   {2, 0, 4},
                   {-2, 1, 2},
                   {-1, 1, 4},
                   {0, 1, 8},
                   {1, 1, 4},
                   {2, 1, 2},
                   {-2, 2, 1},
                   {-1, 2, 2},
                   {0, 2, 4},
                   {1, 2, 2},
                   {2, 2, 1}},
                  42, divisor, 1);
}

inline std::vector<std::vector<bool>> slowBurkes(const SlowPicture& p) {
  return slowMono(p, {{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4}, {2, 1, 2}}, 32, 15, 0);
}

inline std::vector<std::vector<bool>> slowOrdered(const SlowPicture& p) {
  // By column, then row.
  constexpr int kMatrix[4][4] = {{1, 9, 3, 11}, {13, 5, 15, 7}, {4, 12, 2, 10}, {16, 8, 14, 6}};
  std::vector<std::vector<bool>> light(p.size(), std::vector<bool>(p[0].size()));
  for (std::size_t y = 0; y < p.size(); ++y)
    for (std::size_t x = 0; x < p[y].size(); ++x)
      light[y][x] = (p[y][x].r + p[y][x].g + p[y][x].b) / 3 / 16 + 1 >= kMatrix[x % 4][y % 4];
  return light;
}

}  // namespace gp::test
