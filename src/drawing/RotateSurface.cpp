#include "drawing/RotateSurface.h"

#include "platform/text/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace gp {

namespace {

// The number of digits affects how pixels are rounded.
constexpr double kPi = 3.14159265359;
constexpr double kFullCircle = 360;
// Added before rounding down: moves a fractional coordinate to the next pixel and keeps a whole one.
constexpr double kAlmostOne = 0.999;
// A picture's middle is rounded: its far corner can be this much further away.
constexpr int kReserve = 2;

// A pixel's direction and distance from the middle.
struct Polar {
  double angle, distance;
};

Polar computePolar(int x, int y) {
  return {x == 0 ? kPi / 2 : std::atan(static_cast<double>(y) / x), std::sqrt(static_cast<double>(x * x + y * y))};
}

// Kept for the pixels of small pictures: computing them takes half of the time of a rotation.
constexpr std::size_t kKept = 64;
using PolarTable = std::array<Polar, kKept * kKept>;

PolarTable makePolarTable() {
  PolarTable table;
  for (std::size_t i = 0; i < table.size(); ++i)
    table[i] = computePolar(static_cast<int>(i / kKept), static_cast<int>(i % kKept));
  return table;
}

Polar polarOf(int x, int y) {
  static const PolarTable table = makePolarTable();
  const auto column = static_cast<std::size_t>(x), row = static_cast<std::size_t>(y);
  return column < kKept && row < kKept ? table[column * kKept + row] : computePolar(x, y);
}

struct Turn {
  double sourceX, sourceY;
  int targetX, targetY;
};

class Rotation {
 public:
  Rotation(const Surface& src, Surface& dst, const RotateSettings& settings)
      : src_(src), dst_(dst), settings_(settings), angle_(settings.angleDegrees / kFullCircle * 2 * kPi) {}

  void run() {
    const int reach = std::min((diagonalOf(src_.width(), src_.height()) + kReserve) / 2, farthestSide());
    for (int x = 0; x <= reach; ++x)
      for (int y = 0; y <= reach; ++y) turnQuarters(x, y);
  }

 private:
  // The distance from the middle to the farthest row or column of the target.
  int farthestSide() const {
    return std::max({targetX_, dst_.width() - 1 - targetX_, targetY_, dst_.height() - 1 - targetY_});
  }

  // One angle applies to four pixels, a quarter turn apart.
  void turnQuarters(int x, int y) {
    const Polar polar = polarOf(x, y);
    const double u = polar.distance * std::cos(angle_ + polar.angle);
    const double v = polar.distance * std::sin(angle_ + polar.angle);
    for (const Turn& turn : {Turn{u, v, x, y}, Turn{-u, -v, -x, -y}, Turn{v, -u, y, -x}, Turn{-v, u, -y, x}})
      write(turn);
  }

  void write(const Turn& turn) {
    const double x = sourceX_ + turn.sourceX;
    const double y = sourceY_ + turn.sourceY;
    Color color = src_.GetPixel(roundToInteger(x), roundToInteger(y));
    if (color == kNoColor || (settings_.skipBackground && color == settings_.backgroundColor)) return;
    if (settings_.antialias) color = sampleBilinear(src_, x, y);
    dst_.SetPixelV(targetX_ + turn.targetX, targetY_ + turn.targetY, color);
  }

  const Surface& src_;
  Surface& dst_;
  const RotateSettings& settings_;
  const double angle_;
  const int sourceX_ = src_.width() / 2;
  const int sourceY_ = src_.height() / 2;
  const int targetX_ = settings_.centerX == 0 ? dst_.width() / 2 : settings_.centerX;
  const int targetY_ = settings_.centerY == 0 ? dst_.height() / 2 : settings_.centerY;
};

// Returns the mixture of two colours; when one of them lies outside the picture, returns the other one.
Color mixInside(Color a, Color b, double weightB) {
  if (a == kNoColor) return b;
  if (b == kNoColor) return a;
  return mixColors(a, 1 - weightB, b, weightB);
}

}  // namespace

int diagonalOf(int width, int height) {
  return roundToInteger(std::sqrt(static_cast<double>(width * width + height * height)));
}

void rotateSurface(const Surface& src, Surface& dst, const RotateSettings& settings) {
  Rotation(src, dst, settings).run();
}

Color sampleBilinear(const Surface& surface, double x, double y) {
  const double x0 = std::floor(x);
  const double x1 = std::floor(x + kAlmostOne);
  const Color a = sampleColumn(surface, x0, y);
  if (x0 == x1) return a;
  return mixInside(a, sampleColumn(surface, x1, y), x - x0);
}

Color sampleColumn(const Surface& surface, double x, double y) {
  const double y0 = std::floor(y);
  const double y1 = std::floor(y + kAlmostOne);
  const int column = roundToInteger(x);
  const Color a = surface.GetPixel(column, roundToInteger(y0));
  if (y0 == y1) return a;
  return mixInside(a, surface.GetPixel(column, roundToInteger(y1)), y - y0);
}

Color mixColors(Color a, double weightA, Color b, double weightB) {
  auto mix = [&](int channelA, int channelB) { return roundToByte(channelA * weightA + channelB * weightB); };
  return rgb(mix(redOf(a), redOf(b)), mix(greenOf(a), greenOf(b)), mix(blueOf(a), blueOf(b)));
}

}  // namespace gp
