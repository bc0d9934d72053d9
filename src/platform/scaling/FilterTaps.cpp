#include "platform/scaling/FilterTaps.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace gp {
namespace {

constexpr double kLobes = 3;

double sinc(double x) { return x == 0 ? 1 : std::sin(std::numbers::pi * x) / (std::numbers::pi * x); }

double lanczos(double x) { return std::abs(x) < kLobes ? sinc(x) * sinc(x / kLobes) : 0; }

void normalise(std::vector<double>& weights) {
  double sum = 0;
  for (const double weight : weights) sum += weight;
  for (double& weight : weights) weight /= sum;
}

// The source pixels that [begin, end) touches.
PixelTaps tapsBetween(double begin, double end, int source) {
  PixelTaps taps;
  taps.first = std::clamp(static_cast<int>(std::floor(begin)), 0, source - 1);
  const int last = std::clamp(static_cast<int>(std::ceil(end)), taps.first + 1, source);
  taps.weights.resize(static_cast<std::size_t>(last - taps.first));
  return taps;
}

// How much of each source pixel the target pixel covers.
PixelTaps boxTaps(int at, double step, int source) {
  const double begin = at * step, end = (at + 1) * step;
  PixelTaps taps = tapsBetween(begin, end, source);
  double left = taps.first;
  for (double& weight : taps.weights) {
    weight = std::max(0.0, std::min(end, left + 1) - std::max(begin, left));
    left += 1;
  }
  return taps;
}

PixelTaps lanczosTaps(int at, double step, int source) {
  const double width = std::max(step, 1.0), centre = (at + 0.5) * step;
  PixelTaps taps = tapsBetween(centre - kLobes * width, centre + kLobes * width, source);
  double left = taps.first;
  for (double& weight : taps.weights) {
    weight = lanczos((left + 0.5 - centre) / width);
    left += 1;
  }
  return taps;
}

}  // namespace

std::vector<PixelTaps> filterTaps(int source, int target, ScalingFilter filter) {
  const double step = static_cast<double>(source) / target;
  std::vector<PixelTaps> all;
  for (int at = 0; at < target; ++at) {
    all.push_back(filter == ScalingFilter::Box ? boxTaps(at, step, source) : lanczosTaps(at, step, source));
    normalise(all.back().weights);
  }
  return all;
}

}  // namespace gp
