// The times and the hot spot of an animated cursor file. They are searched for by their tags, anywhere in the file, and
// read from low bytes only.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace gp {

struct AniInfo {
  std::vector<int> jiffies;  // of each frame, from 1 to 90
  int hotspotX = 0;          // of all frames, from 0 to 31
  int hotspotY = 0;
};

// Returns the first position, counted from 1, at or behind `fromPosition` at which the bytes are those of a pattern in
// hexadecimal digits, two for each byte; 0 when there is none.
std::size_t findBytes(std::span<const std::uint8_t> bytes, std::string_view hexPattern, std::size_t fromPosition);

// Returns what a file states about that many frames; empty for a file that is no RIFF file, or has no `anih`.
std::optional<AniInfo> readAniInfo(std::span<const std::uint8_t> bytes, int frames);

}  // namespace gp
