// The names and sizes in an animated cursor file, which is a RIFF file of the form ACON.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace gp::ani {

inline constexpr std::string_view kRiff = "RIFF";
inline constexpr std::string_view kForm = "ACON";
inline constexpr std::string_view kList = "LIST";
inline constexpr std::string_view kInfo = "INFO";
inline constexpr std::string_view kTitle = "INAM";
inline constexpr std::string_view kArtist = "IART";
inline constexpr std::string_view kHeader = "anih";
inline constexpr std::string_view kRates = "rate";
inline constexpr std::string_view kSequence = "seq ";
// A chunk that only this program writes: the milliseconds of each step, which jiffies state less exactly.
inline constexpr std::string_view kDelays = "msec";
inline constexpr std::string_view kFrames = "fram";
inline constexpr std::string_view kImage = "icon";

inline constexpr std::size_t kTagSize = 4;
inline constexpr std::size_t kChunkHeaderSize = 8;  // tag and size
inline constexpr std::size_t kFileHeaderSize = 12;  // RIFF, size and form
inline constexpr std::uint32_t kAnihSize = 36;

// Bits of the header's flags.
inline constexpr std::uint32_t kImagesAreFiles = 1;  // icon or cursor files; otherwise bitmaps without headers
inline constexpr std::uint32_t kHasSequence = 2;

inline constexpr int kLeastJiffies = 1;
inline constexpr int kMostJiffies = 90;
inline constexpr int kMostHotspot = 31;

}  // namespace gp::ani
