// Checks that the bytes of a picture file reach the end that its structure states. Picture readers tend to fill missing
// data in silently, which would falsify pictures used as data. Nothing is decoded.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace gp {

// True when the end marker follows the scans. Markers inside an embedded preview do not count.
bool isWholeJpeg(std::span<const std::uint8_t> bytes);
// True when the first picture is complete, with its last block.
bool isWholeGif(std::span<const std::uint8_t> bytes);
// True when the last chunk is complete.
bool isWholePng(std::span<const std::uint8_t> bytes);
// The number of bytes up to the end of the last chunk; 0 when it is not complete.
std::size_t wholePngSize(std::span<const std::uint8_t> bytes);

}  // namespace gp
