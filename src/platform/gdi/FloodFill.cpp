#include "platform/gdi/FloodFill.h"

#include <vector>

namespace gp {
namespace {

struct Seed {
  int x, y;
};

class Filler {
 public:
  Filler(Surface& surface, Color from) : surface_(surface), from_(storedForm(from)) {}

  void run(int x, int y) {
    seeds_.push_back({x, y});
    while (!seeds_.empty()) {
      const Seed seed = seeds_.back();
      seeds_.pop_back();
      fillSpan(seed);
    }
  }

 private:
  bool isOpen(std::uint32_t pixel) const { return (pixel & kColorBits) == from_; }

  void fillSpan(Seed seed) {
    const std::uint32_t* pixels = surface_.row(seed.y).data();
    // Another span may have filled the seed already.
    if (!isOpen(pixels[seed.x])) return;
    int left = seed.x;
    int right = seed.x + 1;
    while (left > 0 && isOpen(pixels[left - 1])) --left;
    while (right < surface_.width() && isOpen(pixels[right])) ++right;
    std::uint32_t* row = surface_.rowForWriting(seed.y, left, right);
    for (int x = left; x < right; ++x) row[x] = storedForm(surface_.fillColor);
    if (seed.y > 0) seedRuns(left, right, seed.y - 1);
    if (seed.y + 1 < surface_.height()) seedRuns(left, right, seed.y + 1);
  }

  // Adds one seed for each run of open pixels in a row adjacent to a span.
  void seedRuns(int left, int right, int y) {
    const std::uint32_t* pixels = surface_.row(y).data();
    bool inRun = false;
    for (int x = left; x < right; ++x) {
      const bool open = isOpen(pixels[x]);
      if (open && !inRun) seeds_.push_back({x, y});
      inRun = open;
    }
  }

  Surface& surface_;
  const std::uint32_t from_;
  std::vector<Seed> seeds_;
};

}  // namespace

bool ExtFloodFill(Surface& surface, int x, int y, Color surfaceColor) {
  if (!surface.contains(x, y) || surface.GetPixel(x, y) != surfaceColor) return false;
  // Filled pixels must not look open, or filling would not end.
  if (storedForm(surface.fillColor) != storedForm(surfaceColor)) Filler(surface, surfaceColor).run(x, y);
  return true;
}

}  // namespace gp
