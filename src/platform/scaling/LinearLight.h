// Conversion between the stored value of a channel, which is encoded as in sRGB, and linear light, in which values can
// be added and averaged.
#pragma once

#include <array>
#include <cstdint>

namespace gp {

class LinearLight {
 public:
  LinearLight();

  // The light of a stored value, from 0 to 1.
  double linearOf(std::uint8_t stored) const { return light_[stored]; }
  // The stored value nearest to a light. Values below 0 and above 1 give 0 and 255.
  std::uint8_t storedOf(double linear) const {
    if (!(linear > 0)) return 0;
    if (linear >= 1) return kMostStored;
    std::uint8_t stored = nearby_[static_cast<std::size_t>(linear * kSteps)];
    while (stored < kMostStored && bounds_[stored] <= linear) ++stored;
    return stored;
  }

 private:
  static constexpr std::uint8_t kMostStored = 255;
  static constexpr std::size_t kSteps = 4096;

  std::array<double, kMostStored + 1> light_{};
  std::array<double, kMostStored> bounds_{};   // the light halfway, as stored, between a value and the next one
  std::array<std::uint8_t, kSteps> nearby_{};  // the stored value at the begin of each step of light
};

}  // namespace gp
