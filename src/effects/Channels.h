// The three channels of a pixel as numbers that may be outside 0 to 255.
#pragma once

#include "platform/gdi/Surface.h"
#include "platform/text/Numbers.h"

#include <array>

namespace gp {

inline constexpr std::size_t kChannelCount = 3;
using Channels = std::array<int, kChannelCount>;  // red, green, blue

// Returns the channels of a colour. kNoColor, which is read outside a Surface, has red -1 and no green or blue.
constexpr Channels channelsOf(Color color) {
  return color == kNoColor ? Channels{-1, 0, 0} : Channels{redOf(color), greenOf(color), blueOf(color)};
}

// Returns the colour of the channels, each limited to 0 to 255.
constexpr Color colorOfChannels(const Channels& channels) {
  const auto limited = [](int channel) { return channel < 0 ? 0 : channel > 255 ? 255 : channel; };
  return rgb(limited(channels[0]), limited(channels[1]), limited(channels[2]));
}

// Returns what `make` returns for each channel: it gets the channel of every colour, in the order of the arguments.
template <class Make, class... Colors>
constexpr Channels eachChannel(Make make, const Colors&... colors) {
  Channels result{};
  for (std::size_t i = 0; i < kChannelCount; ++i) result[i] = make(colors[i]...);
  return result;
}

}  // namespace gp
