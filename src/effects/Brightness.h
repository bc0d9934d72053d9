// The channels of the painted pixels brighter or darker.
#pragma once

#include "document/IconImage.h"
#include "effects/Channels.h"

#include <array>

namespace gp {

enum class BrightnessOf { Red, Green, Blue, Overall };

// Changes of brightness, one after the other. Each works on what the ones before it have made.
class BrightnessTable {
 public:
  // Without a change.
  BrightnessTable();
  // Changes a channel, or all of them, by a percentage from -100 up. The result is cut to a whole number and limited to
  // 255.
  void change(BrightnessOf channel, int percent);
  // Returns the icon with its painted pixels changed.
  IconImage on(const IconImage& icon) const;

 private:
  static constexpr std::size_t kLevels = 256;
  std::array<std::array<int, kLevels>, kChannelCount> levels_;  // what each level of each channel becomes
};

}  // namespace gp
