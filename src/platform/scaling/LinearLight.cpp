#include "platform/scaling/LinearLight.h"

#include <algorithm>
#include <cmath>

namespace gp {
namespace {

// The transfer function of sRGB: linear near black, a power above.
double decoded(double encoded) {
  constexpr double kKnee = 0.04045, kSlope = 12.92, kOffset = 0.055, kExponent = 2.4;
  return encoded <= kKnee ? encoded / kSlope : std::pow((encoded + kOffset) / (1 + kOffset), kExponent);
}

}  // namespace

LinearLight::LinearLight() {
  for (std::size_t i = 0; i < light_.size(); ++i) light_[i] = decoded(static_cast<double>(i) / kMostStored);
  for (std::size_t i = 0; i < bounds_.size(); ++i) bounds_[i] = decoded((static_cast<double>(i) + 0.5) / kMostStored);
  for (std::size_t i = 0; i < nearby_.size(); ++i) {
    const auto bound = std::ranges::upper_bound(bounds_, static_cast<double>(i) / kSteps);
    nearby_[i] = static_cast<std::uint8_t>(bound - bounds_.begin());
  }
}

}  // namespace gp
