// Tells whether the bytes of a picture file reach as far as its own structure says. Readers of pictures tend to fill up
// what is missing, which is no use for pictures that are data. Nothing is decoded, and nothing is kept.
#pragma once

#include <cstdint>
#include <span>

namespace gp {

// Up to the mark behind the scans; marks inside an embedded preview do not count.
bool isWholeJpeg(std::span<const std::uint8_t> bytes);
// Up to the end of the first picture, its last block included.
bool isWholeGif(std::span<const std::uint8_t> bytes);
// Up to the end of the last chunk.
bool isWholePng(std::span<const std::uint8_t> bytes);

}  // namespace gp
