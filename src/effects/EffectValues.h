// The values of an effect's settings, in the order of the settings.
#pragma once

#include "document/IconImage.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace gp {

// A point is one value. Coordinates are in pixels, from -kFarthest to kFarthest.
inline constexpr int kFarthest = 32767;
// The middle of the icon, whatever its size; it has no coordinates.
inline constexpr int kMiddlePoint = std::numeric_limits<int>::min();

constexpr int pointValue(int x, int y) { return y * (1 << 16) + (x & 0xFFFF); }
constexpr int xOfPoint(int point) { return static_cast<std::int16_t>(point & 0xFFFF); }
constexpr int yOfPoint(int point) { return point >> 16; }

class EffectValues {
 public:
  EffectValues() = default;
  EffectValues(std::initializer_list<int> values) : values_(values) {}

  // The value of the setting at index i, which must exist. `number` returns tenths as a count of tenths and a word as
  // its index.
  int number(std::size_t i) const { return values_.at(i); }
  Color color(std::size_t i) const { return values_.at(i); }
  bool flag(std::size_t i) const { return values_.at(i) != 0; }

  // What the file of a setting contains: icons without alpha, or one picture, which has no Mask. Empty without a file.
  std::span<const IconImage> pictures() const {
    return pictures_ ? std::span(*pictures_) : std::span<const IconImage>();
  }
  void setPictures(std::vector<IconImage> pictures) {
    pictures_ = std::make_shared<const std::vector<IconImage>>(std::move(pictures));
  }

  void append(int value) { values_.push_back(value); }
  void set(std::size_t i, int value) { values_.at(i) = value; }

  // Pictures are equal only if one is a copy of the other.
  bool operator==(const EffectValues&) const = default;

 private:
  std::vector<int> values_;
  std::shared_ptr<const std::vector<IconImage>> pictures_;  // shared by copies
};

}  // namespace gp
