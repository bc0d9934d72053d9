#include "effects/TexturePatterns.h"

#include <array>
#include <random>

namespace gp {
namespace {

using Levels = std::array<std::array<int, kPatternSide>, kPatternSide>;

// The number at a position that continues at the other side.
int wrapped(const Levels& levels, int x, int y) {
  return levels[static_cast<std::size_t>(y % kPatternSide)][static_cast<std::size_t>(x % kPatternSide)];
}

// Noise from 0 to 255, the same in every run: the generator is defined to the bit.
Levels noise(unsigned seed) {
  constexpr unsigned kLevels = 256;
  std::minstd_rand numbers(seed);
  Levels levels{};
  // The lowest bits of this generator are less random.
  for (auto& row : levels)
    for (int& level : row) level = static_cast<int>(numbers() / kLevels % kLevels);
  return levels;
}

// Returns the mean of the noise in the block with this upper left corner.
int meanOf(const Levels& levels, int x, int y, int width, int height) {
  int sum = 0;
  for (int dy = 0; dy < height; ++dy)
    for (int dx = 0; dx < width; ++dx) sum += wrapped(levels, x + dx, y + dy);
  return sum / (width * height);
}

// Round threads that go over and under each other in turn.
int wovenLevel(int x, int y) {
  constexpr int kThread = 4;
  constexpr std::array kAcross{80, 150, 150, 80}, kAlong{0, 30, 30, 0};
  const bool isUpright = (x / kThread + y / kThread) % 2 == 0;
  const int across = isUpright ? x : y, along = isUpright ? y : x;
  return kAcross.at(static_cast<std::size_t>(across % kThread)) + kAlong.at(static_cast<std::size_t>(along % kThread));
}

// Scratches from left to right.
int brushedLevel(int x, int y) {
  static const Levels kNoise = noise(5);
  constexpr int kScratch = 12;
  return meanOf(kNoise, x, y, kScratch, 1);
}

// Spots of about two pixels.
int grainedLevel(int x, int y) {
  static const Levels kNoise = noise(11);
  constexpr int kSpot = 2;
  return meanOf(kNoise, x, y, kSpot, kSpot);
}

Surface patternOf(int (*levelAt)(int x, int y)) {
  Surface pattern(kPatternSide, kPatternSide);
  for (int y = 0; y < kPatternSide; ++y)
    for (int x = 0; x < kPatternSide; ++x) {
      const int level = levelAt(x, y);
      pattern.SetPixelV(x, y, rgb(level, level, level));
    }
  return pattern;
}

}  // namespace

const Surface& storedPattern(int index) {
  static const std::array<Surface, kStoredPatterns> kPatterns{patternOf(wovenLevel), patternOf(brushedLevel),
                                                              patternOf(grainedLevel)};
  return kPatterns.at(static_cast<std::size_t>(index));
}

}  // namespace gp
